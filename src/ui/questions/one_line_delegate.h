#pragma once

#include "ui/questions/focus_frame_delegate.h"

namespace vellumo {

/// Shows each item on one line as wide as the list, however long or broken its text from a file is.
class OneLineDelegate : public FocusFrameDelegate
{
    Q_OBJECT

public:
    using FocusFrameDelegate::FocusFrameDelegate;

    QString displayText(const QVariant &value, const QLocale &locale) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
};

} // namespace vellumo
