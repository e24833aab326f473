#include "ui/questions/one_line_delegate.h"

namespace vellumo {

QString OneLineDelegate::displayText(const QVariant &value, const QLocale &) const
{
    constexpr qsizetype more = 1000; // than any list is wide
    const QString text = value.toString();
    QString shown = text.left(more);
    shown.replace(u'\n', u' ');
    return shown.size() < text.size() ? shown + QChar(0x2026) : shown;
}

QSize OneLineDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    return {0, FocusFrameDelegate::sizeHint(option, index).height()};
}

} // namespace vellumo
