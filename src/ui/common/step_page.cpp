#include "ui/common/step_page.h"

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
