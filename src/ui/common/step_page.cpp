#include "ui/common/step_page.h"

#include "ui/common/button_line.h"
#include "ui/common/scroll_page.h"

#include <QBoxLayout>
#include <QScrollBar>

#include <algorithm>

namespace vellumo {

StepPage::StepPage(ProjectDocument &document, QWidget *parent)
    : QWidget(parent), m_document(document)
{
    connect(&document, &ProjectDocument::TextsChanged, this, &StepPage::ShowTexts);
}

StepPage::~StepPage() = default;

void StepPage::ShowTexts()
{
    for (const auto &box : m_boxes)
        box->Show();
}

bool StepPage::Has(FormField field) const
{
    return std::ranges::any_of(m_boxes, [field](const auto &box) { return box->Field() == field; });
}

void StepPage::Focus(FormField field)
{
    for (const auto &box : m_boxes)
        if (box->Field() == field)
            box->Focus();
}

void StepPage::PlaceParts(Heading *heading, ScrollPage *page, ButtonLine *buttons)
{
    m_heading = heading;
    m_page = page;
    m_buttons = buttons;
}

void StepPage::SetLow(bool low, QBoxLayout &foot)
{
    if (low == m_isLow)
        return;
    m_isLow = low;
    QWidget *focus = window()->focusWidget(); // which a button loses on its way
    low ? foot.addWidget(m_buttons) : layout()->addWidget(m_buttons);
    m_buttons->show();
    if (focus && m_buttons->isAncestorOf(focus))
        focus->setFocus();
    PlaceContent();
}

int StepPage::LeastView() const
{
    constexpr int lines = 5; // a sentence, a box and the next
    return lines * fontMetrics().lineSpacing();
}

void StepPage::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    PlaceContent();
}

void StepPage::PlaceContent()
{
    PlaceHeading();
    FitContent();
    GiveHeight();
}

void StepPage::PlaceHeading()
{
    constexpr int buttonLines = 2;
    const QMargins margins = layout()->contentsMargins();
    const int width = contentsRect().width() - margins.left() - margins.right();
    const int needed =
        m_heading->heightForWidth(width) + LeastView() + buttonLines * fontMetrics().lineSpacing();
    QWidget *home = m_isLow || height() < needed ? m_page->widget() : this;
    if (m_heading->parentWidget() == home)
        return;
    qobject_cast<QBoxLayout *>(home->layout())->insertWidget(0, m_heading);
    m_heading->show(); // at once, as what is hidden is given no room
}

/// By what does not depend on the bars, which depend on the height. What scrolls sideways by itself
/// keeps its bar in view.
void StepPage::GiveHeight()
{
    if (!m_isLow)
        return m_page->setMinimumHeight(0);
    const QWidget &content = *m_page->widget();
    const int least = content.minimumSizeHint().width();
    const int bar =
        m_page->width() < least ? m_page->horizontalScrollBar()->sizeHint().height() : 0;
    const int all = content.heightForWidth(std::max(m_page->width(), least)) + bar;
    m_page->setMinimumHeight(m_page->widgetResizable() ? all
                                                       : std::min(all, window()->height() / 2));
}

QSize StepPage::minimumSizeHint() const
{
    QSize size = QWidget::minimumSizeHint();
    if (m_heading && m_heading->parentWidget() == this) // which can go
        size.rheight() -= m_heading->minimumSizeHint().height() + layout()->spacing();
    return size;
}

void StepPage::ConnectHelp(std::initializer_list<HelpLink> links)
{
    for (const HelpLink &link : links)
        connect(link.label, &LinkLabel::Followed, this,
                [this, id = link.contextId] { emit HelpAsked(id); });
}

} // namespace vellumo
