#include "ui/questions/questions_layout.h"

#include "handheld/screen_geometry.h"
#include "ui/questions/question_grid.h"
#include "ui_step_questions.h"

#include <QHeaderView>
#include <QScreen>
#include <QScrollBar>

#include <algorithm>

namespace vellumo {

bool QuestionsLayout::IsLargeEnough() const
{
    // 790 by 576 pixels, in the unit in which the limit was set.
    constexpr int twipsPerPixel = 15, leastWidth = 11850, leastHeight = 8640;
    const auto reaches = [](QSize size) {
        return size.width() * twipsPerPixel >= leastWidth &&
               size.height() * twipsPerPixel >= leastHeight;
    };
    const QWidget &window = *m_controls.content->window();
    return reaches(window.size()) || !reaches(window.screen()->availableSize());
}

void QuestionsLayout::LayOutIfLargeEnough()
{
    if (IsLargeEnough())
        LayOut();
}

int QuestionsLayout::LeastView() const
{
    return m_controls.DataGrid1->horizontalHeader()->sizeHint().height() +
           2 * m_controls.DataGrid1->verticalHeader()->defaultSectionSize() +
           m_controls.scrollArea->horizontalScrollBar()->sizeHint().height();
}

void QuestionsLayout::LayOut()
{
    // Of a window that is larger than at the start, the preview takes its share.
    constexpr QSize start(860, 620);
    const QSize more = (m_controls.content->window()->size() - start).expandedTo({0, 0});
    m_controls.previewBox->SetSide(screen::width + std::min(more.width() / 3, more.height()));
    const QSize room = m_controls.scrollArea->maximumViewportSize();
    Fit(room);
    // The place of the bar is not to scroll sideways for.
    if (m_controls.content->height() > room.height())
        Fit(room - QSize(m_controls.scrollArea->verticalScrollBar()->sizeHint().width(), 0));
    LayOutColumns(*m_controls.DataGrid1);
    m_laidOut = true;
}

/// Not smaller than the texts are.
void QuestionsLayout::Fit(QSize size)
{
    size = size.expandedTo(m_controls.content->minimumSizeHint());
    size.setHeight(std::max(size.height(), m_controls.content->heightForWidth(size.width())));
    m_controls.content->resize(size);
}

void QuestionsLayout::LayOutOnce()
{
    if (!m_laidOut)
        LayOut();
}

void QuestionsLayout::FitContent()
{
    IsLargeEnough() ? LayOut() : Fit(m_controls.content->size()); // as the heading may scroll along
}

} // namespace vellumo
