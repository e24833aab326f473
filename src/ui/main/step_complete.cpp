#include "ui/main/step_complete.h"

#include "help/help_topics.h"
#include "ui_step_complete.h"

#include <QShortcut>

namespace vellumo {

StepComplete::StepComplete(QWidget *parent)
    : StepPage(parent), ui(std::make_unique<Ui::StepComplete>())
{
    ui->setupUi(this);
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

void StepComplete::ShowErrors(const QStringList &listTexts)
{
    ui->lstError->clear();
    ui->lstError->addItems(listTexts);
}

void StepComplete::AllowCreation(bool allowed)
{
    ui->cmdCreateForm->setEnabled(allowed);
}

void StepComplete::ChooseError()
{
    const QList<QListWidgetItem *> selected = ui->lstError->selectedItems();
    if (!selected.isEmpty())
        emit ErrorChosen(selected.constFirst()->text());
}

} // namespace vellumo
