#include "ui/main/step_complete.h"

#include "help/help_topics.h"
#include "ui/common/focus_ring.h"
#include "ui_step_complete.h"

#include <QShortcut>

namespace vellumo {

StepComplete::StepComplete(ProjectDocument &document, QWidget *parent)
    : StepPage(document, parent), ui(std::make_unique<Ui::StepComplete>())
{
    ui->setupUi(this);
    RingWhenFocused(ui->lstError);
    PlaceParts(ui->lblHeading, ui->scrollAreaComplete, ui->navigationLine);
    ConnectHelp(
        {{ui->Label17, HelpContext::finalReview}, {ui->lblErrorList, HelpContext::errorList}});
    connect(ui->cmdReviewForm, &QPushButton::clicked, this, &StepComplete::ReviewAsked);
    connect(ui->cmdCreateForm, &QPushButton::clicked, this, &StepComplete::CreationAsked);
    connect(ui->cmd4_back, &QPushButton::clicked, this, &StepComplete::BackAsked);

    connect(ui->lstError, &QListWidget::itemDoubleClicked, this, &StepComplete::ChooseError);
    for (const int key : {Qt::Key_Return, Qt::Key_Enter})
        connect(new QShortcut(key, ui->lstError, nullptr, nullptr, Qt::WidgetShortcut),
                &QShortcut::activated, this, &StepComplete::ChooseError);
}

StepComplete::~StepComplete() = default;

void StepComplete::Enter()
{
    AllowCreation(false);
    ui->cmdReviewForm->setFocus();
}

void StepComplete::ShowErrors(const std::vector<ReviewEntry> &entries)
{
    m_entries = entries;
    ui->lstError->clear();
    for (const ReviewEntry &entry : entries)
        ui->lstError->addItem(ListText(entry));
}

void StepComplete::AllowCreation(bool allowed)
{
    ui->cmdCreateForm->setEnabled(allowed);
}

void StepComplete::ChooseError()
{
    // By the selection, as Enter brings no item with it.
    const QModelIndexList selected = ui->lstError->selectionModel()->selectedIndexes();
    if (!selected.isEmpty())
        emit ErrorChosen(m_entries[static_cast<size_t>(selected.constFirst().row())]);
}

} // namespace vellumo
