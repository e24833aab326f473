#include "ui/main/step_info.h"

#include "help/help_topics.h"
#include "ui/common/focus_ring.h"
#include "ui_step_info.h"

namespace vellumo {

StepInfo::StepInfo(ProjectDocument &document, QWidget *parent)
    : StepPage(document, parent), ui(std::make_unique<Ui::StepInfo>())
{
    ui->setupUi(this);
    PlaceParts(ui->lblHeading, ui->scrollAreaInfo, ui->navigationLine);
    RingWhenFocused(ui->txtAppDesc);
    Bind(FormField::Name, ui->txtAppName);
    Bind(FormField::Version, ui->txtAppVersion);
    Bind(FormField::Description, ui->txtAppDesc);
    ConnectHelp({{ui->Label13, HelpContext::formInformation},
                 {ui->lblLinkName, HelpContext::formName},
                 {ui->lblLinkVersion, HelpContext::formVersion},
                 {ui->Label14, HelpContext::formDescription}});
    connect(ui->cmd1_Next, &QPushButton::clicked, this, &StepInfo::NextAsked);
}

StepInfo::~StepInfo() = default;

} // namespace vellumo
