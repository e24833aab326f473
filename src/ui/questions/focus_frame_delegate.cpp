#include "ui/questions/focus_frame_delegate.h"

#include <QPainter>

namespace vellumo {

void FocusFrameDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                               const QModelIndex &index) const
{
    const bool isSelected = option.state & QStyle::State_Selected;
    const bool isFramed = option.state & QStyle::State_HasFocus && !isSelected;
    QStyleOptionViewItem plain = option;
    plain.state.setFlag(QStyle::State_HasFocus, !isFramed && option.state & QStyle::State_HasFocus);
    QStyledItemDelegate::paint(painter, plain, index);
    if (!isFramed)
        return;
    painter->save();
    painter->setPen(QPen(option.palette.color(QPalette::Text), 1, Qt::DotLine));
    painter->drawRect(option.rect.adjusted(0, 0, -1, -1));
    painter->restore();
}

} // namespace vellumo
