#pragma once

#include <QStyledItemDelegate>

namespace vellumo {

/// Shows each item on one line as wide as the list, however long or broken its text from a file is.
class OneLineDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QString displayText(const QVariant &value, const QLocale &locale) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
};

} // namespace vellumo
