#include "ui/common/step_page.h"

#include <QBoxLayout>

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

void StepPage::PlaceHeading(Heading *heading, QWidget *scrolled)
{
    m_heading = heading;
    m_scrolled = scrolled;
}

void StepPage::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    constexpr int linesBelow = 5; // the buttons' line among them
    const QMargins margins = layout()->contentsMargins();
    const int width = contentsRect().width() - margins.left() - margins.right();
    const int needed = m_heading->heightForWidth(width) + linesBelow * fontMetrics().lineSpacing();
    QWidget *home = height() < needed ? m_scrolled : this;
    if (m_heading->parentWidget() != home)
        qobject_cast<QBoxLayout *>(home->layout())->insertWidget(0, m_heading);
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
