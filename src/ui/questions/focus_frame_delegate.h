#pragma once

#include <QStyledItemDelegate>

namespace vellumo {

/// Marks an item that has the focus and is not selected with a frame alone; styles fill it in a way
/// that looks like a selection.
class FocusFrameDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
};

} // namespace vellumo
