#include "ui/common/step_page.h"

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

void StepPage::ConnectHelp(std::initializer_list<HelpLink> links)
{
    for (const HelpLink &link : links)
        connect(link.label, &LinkLabel::Followed, this,
                [this, id = link.contextId] { emit HelpAsked(id); });
}

} // namespace vellumo
