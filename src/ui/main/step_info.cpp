#include "ui/main/step_info.h"

#include "help/help_topics.h"
#include "ui/common/key_filter.h"
#include "ui/common/plain_text.h"
#include "ui_step_info.h"

using namespace Qt::StringLiterals;

namespace vellumo {

StepInfo::StepInfo(ProjectDocument &document, QWidget *parent)
    : StepPage(parent), ui(std::make_unique<Ui::StepInfo>()), m_document(document)
{
    ui->setupUi(this);
    ConnectHelp({{ui->Label13, HelpContext::formInformation},
                 {ui->lblLinkName, HelpContext::formName},
                 {ui->lblLinkVersion, HelpContext::formVersion},
                 {ui->Label14, HelpContext::formDescription}});
    RefuseKeys(ui->txtAppName, u"\"*/:<>?\\|"_s, u"\"\\/:*?<>|are not allowed for file name"_s);
    RefuseKeys(ui->txtAppVersion, u"\""_s, u"Double quotes are not allowed."_s);
    RefuseKeys(ui->txtAppDesc, u"\r\n"_s, u"Carriage returns are not allowed."_s);
    ConnectBoxes();
    connect(ui->cmd1_Next, &QPushButton::clicked, this, &StepInfo::NextAsked);
}

StepInfo::~StepInfo() = default;

void StepInfo::ConnectBoxes()
{
    connect(ui->txtAppName, &QLineEdit::textChanged, this, [this](const QString &text) {
        m_document.project().FormName = text;
        m_document.SetProjectChanged(true);
    });
    connect(ui->txtAppVersion, &QLineEdit::textChanged, this, [this](const QString &text) {
        m_document.project().FormVersion = text;
        m_document.SetProjectChanged(true);
    });
    connect(ui->txtAppDesc, &QPlainTextEdit::textChanged, this, &StepInfo::TakeDescription);
}

void StepInfo::TakeDescription()
{
    m_shownDescription = TextOf(*ui->txtAppDesc);
    m_document.project().Description = m_shownDescription;
    m_document.SetProjectChanged(true);
}

void StepInfo::ShowTexts()
{
    const Project &project = m_document.project();
    ui->txtAppName->setText(project.FormName);
    ui->txtAppVersion->setText(project.FormVersion);
    if (project.Description == m_shownDescription)
        return;
    const QString description = project.Description;
    ui->txtAppDesc->setPlainText(description);
    m_document.project().Description = m_shownDescription = description;
}

} // namespace vellumo
