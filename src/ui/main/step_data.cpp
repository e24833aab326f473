#include "ui/main/step_data.h"

#include "help/help_topics.h"
#include "platform/folders.h"
#include "ui_step_data.h"

#include <QFileDialog>

using namespace Qt::StringLiterals;

namespace vellumo {

StepData::StepData(ProjectDocument &document, QWidget *parent)
    : StepPage(document, parent), ui(std::make_unique<Ui::StepData>())
{
    ui->setupUi(this);
    PlaceParts(ui->lblHeading, ui->scrollAreaData, ui->navigationLine);
    Bind(FormField::DataFolder, ui->txt3_appDir);
    ConnectHelp({{ui->Label15, HelpContext::uploadingData}, {ui->Label16, HelpContext::csvFile}});
    connect(ui->cmdBrowse, &QPushButton::clicked, this, &StepData::Browse);
    connect(ui->cmd3_Back, &QPushButton::clicked, this, &StepData::BackAsked);
    connect(ui->cmd3_Next, &QPushButton::clicked, this, &StepData::NextAsked);
}

StepData::~StepData() = default;

void StepData::Browse()
{
    // By intention without an owner, and from above all drives.
    QFileDialog picker(nullptr, u"Select a folder"_s, QDir::rootPath());
    picker.setFileMode(QFileDialog::Directory);
    picker.setOption(QFileDialog::ShowDirsOnly);
    if (picker.exec() == QDialog::Accepted)
        ui->txt3_appDir->setText(DataFolderOf(picker.selectedFiles().constFirst()));
}

} // namespace vellumo
