#include "ui/common/flow_layout.h"

#include <QLabel>
#include <QStyle>

#include <algorithm>

namespace vellumo {
namespace {

/// On one line. A label that may wrap asks for the shape of a paragraph instead.
QSize WantedSize(const QLayoutItem &item)
{
    const auto *label = qobject_cast<const QLabel *>(const_cast<QLayoutItem &>(item).widget());
    if (!label || !label->wordWrap())
        return item.sizeHint();
    const int rounding = 1;
    const int text = label->fontMetrics().size(Qt::TextExpandTabs, label->text()).width();
    return {text + 2 * label->margin() + rounding,
            label->fontMetrics().height() + 2 * label->margin()};
}

bool TakesPlace(const QLayoutItem &item)
{
    return !item.isEmpty() || const_cast<QLayoutItem &>(item).spacerItem();
}

bool Expands(const QLayoutItem &item)
{
    return item.expandingDirections() & Qt::Horizontal;
}

int HeightOf(const QLayoutItem &item, int width)
{
    const QSize wanted = WantedSize(item);
    return item.hasHeightForWidth() && width < wanted.width() ? item.heightForWidth(width)
                                                              : wanted.height();
}

} // namespace

struct FlowLayout::Line {
    struct Placed {
        QLayoutItem *item;
        int width;
    };
    std::vector<Placed> items = {};
    int width = 0;
    int height = 0;
    bool afterSpacer = false; ///< which stands in a line above
};

FlowLayout::FlowLayout(QWidget *parent) : QLayout(parent) {}

FlowLayout::~FlowLayout() = default;

void FlowLayout::addItem(QLayoutItem *item)
{
    m_items.emplace_back(item);
}

int FlowLayout::count() const
{
    return static_cast<int>(m_items.size());
}

QLayoutItem *FlowLayout::itemAt(int index) const
{
    return index >= 0 && index < count() ? m_items[static_cast<size_t>(index)].get() : nullptr;
}

QLayoutItem *FlowLayout::takeAt(int index)
{
    if (!itemAt(index))
        return nullptr;
    QLayoutItem *taken = m_items[static_cast<size_t>(index)].release();
    m_items.erase(m_items.begin() + index);
    return taken;
}

std::vector<FlowLayout::Line> FlowLayout::LinesOf(int width) const
{
    std::vector<Line> lines(1);
    for (const auto &item : m_items) {
        if (!TakesPlace(*item))
            continue;
        const int wanted = std::min(WantedSize(*item).width(), width);
        const bool follows = !lines.back().items.empty() && !item->spacerItem();
        int before = follows && !lines.back().items.back().item->spacerItem() ? spacing() : 0;
        if (follows && lines.back().width + before + wanted > width) {
            const Line &full = lines.back();
            const bool hasSpacer = std::ranges::any_of(
                full.items, [](const auto &placed) { return placed.item->spacerItem(); });
            lines.push_back({.afterSpacer = full.afterSpacer || hasSpacer});
            before = 0;
        }
        Line &line = lines.back();
        line.items.push_back({item.get(), wanted});
        line.width += before + wanted;
        line.height = std::max(line.height, HeightOf(*item, wanted));
    }
    return lines;
}

int FlowLayout::heightForWidth(int width) const
{
    const QMargins margins = contentsMargins();
    int height = -spacing();
    for (const Line &line : LinesOf(width - margins.left() - margins.right()))
        height += line.height + spacing();
    return height + margins.top() + margins.bottom();
}

QSize FlowLayout::sizeHint() const
{
    const Line line = LinesOf(QLAYOUTSIZE_MAX).front();
    return QSize(line.width, line.height).grownBy(contentsMargins());
}

QSize FlowLayout::minimumSize() const
{
    QSize smallest;
    for (const auto &item : m_items)
        if (TakesPlace(*item))
            smallest = smallest.expandedTo(item->minimumSize());
    return smallest.grownBy(contentsMargins());
}

void FlowLayout::setGeometry(const QRect &rect)
{
    QLayout::setGeometry(rect);
    const QRect area = rect.marginsRemoved(contentsMargins());
    int top = area.top();
    for (const Line &line : LinesOf(area.width())) {
        Place(line, area, top);
        top += line.height + spacing();
    }
}

void FlowLayout::Place(const Line &line, const QRect &area, int top) const
{
    auto expanding = static_cast<int>(std::ranges::count_if(
        line.items, [](const auto &placed) { return Expands(*placed.item); }));
    int rest = area.width() - line.width;
    int left = area.left() + (line.afterSpacer && expanding == 0 ? rest : 0);
    const QLayoutItem *before = nullptr;
    for (const auto &[item, wanted] : line.items) {
        int width = wanted;
        if (Expands(*item)) {
            Q_ASSERT(expanding > 0);
            const int share = rest / expanding--;
            width += share;
            rest -= share;
        }
        const bool isSpacer = item->spacerItem();
        if (before && !isSpacer && !const_cast<QLayoutItem *>(before)->spacerItem())
            left += spacing();
        const int height = HeightOf(*item, width);
        const QRect place(left, top + (line.height - height) / 2, width, height);
        item->setGeometry(QStyle::visualRect(
            parentWidget() ? parentWidget()->layoutDirection() : Qt::LeftToRight, area, place));
        left += width;
        before = item;
    }
}

} // namespace vellumo
