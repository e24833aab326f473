#include "ui/main/step_data.h"

#include "help/help_topics.h"
#include "platform/folders.h"
#include "ui/common/key_filter.h"
#include "ui_step_data.h"

#include <QFileDialog>

using namespace Qt::StringLiterals;

namespace vellumo {

StepData::StepData(ProjectDocument &document, QWidget *parent)
    : StepPage(parent), ui(std::make_unique<Ui::StepData>()), m_document(document)
{
    ui->setupUi(this);
    ConnectHelp({{ui->Label15, HelpContext::uploadingData}, {ui->Label16, HelpContext::csvFile}});
    RefuseKeys(ui->txt3_appDir, u"\""_s, u"Double quotes are not allowed."_s);
    connect(ui->txt3_appDir, &QLineEdit::textChanged, this, [this](const QString &text) {
        m_document.project().FormPath = text;
        m_document.SetProjectChanged(true);
    });
    connect(ui->cmdBrowse, &QPushButton::clicked, this, &StepData::Browse);
    connect(ui->cmd3_Back, &QPushButton::clicked, this, &StepData::BackAsked);
    connect(ui->cmd3_Next, &QPushButton::clicked, this, &StepData::NextAsked);
}

StepData::~StepData() = default;

void StepData::ShowTexts()
{
    ui->txt3_appDir->setText(m_document.project().FormPath);
}

void StepData::Browse()
{
    QFileDialog picker(nullptr, u"Select a folder"_s, QDir::rootPath());
    picker.setFileMode(QFileDialog::Directory);
    picker.setOption(QFileDialog::ShowDirsOnly);
    if (picker.exec() == QDialog::Accepted)
        ui->txt3_appDir->setText(DataFolderOf(picker.selectedFiles().constFirst()));
}

} // namespace vellumo
