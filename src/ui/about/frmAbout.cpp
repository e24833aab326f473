#include "ui/about/frmAbout.h"

#include "ui/common/desktop_manners.h"
#include "ui/common/help_key.h"
#include "ui/common/pictures.h"
#include "ui/common/screen_centre.h"
#include "ui_frmAbout.h"

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

constexpr int pictureSize = 64;

QString TrademarkNotice()
{
    return QStringList{
        u"\u00A9 2026 Brindlecot Data Collect"_s,
        u"Vellumo Viewer, Vellumo Conduit and Vellumo Designer are trademarks of Brindlecot Data "
        u"Collect."_s,
        u"Palm OS, HotSync and the Palm Powered logo are trademarks of Palm, Inc."_s,
    }
        .join("\r\n"_L1);
}

const QString disclaimer =
    u"This program comes without any warranty, as far as the law allows. Its maker is not liable "
    u"for data that are lost, nor for decisions that are based on collected data."_s;

} // namespace

frmAbout::frmAbout(const Environment &environment, QWidget *parent)
    : QDialog(parent), ui(std::make_unique<Ui::frmAbout>())
{
    ui->setupUi(this);
    ui->picIcon->setPixmap(
        Picture(ProgramPicture).pixmap({pictureSize, pictureSize}, devicePixelRatioF()));
    ui->lblVersion->setText("Version "_L1 + environment.version);
    ui->lblDescription->setText(TrademarkNotice());
    ui->lblDisclaimer->setText(disclaimer);
    ui->lblurl->setText(environment.siteAddress);
    FollowDesktop(*this);
    CentreOnScreen(*this);
    ui->cmdOK->setFocus(); // not on the link, which Enter would follow

    ShowHelpByKey(*this, [this] { emit HelpAsked(); });
    connect(ui->lblurl, &LinkLabel::Followed, this,
            [open = environment.open, address = environment.siteAddress] { open(address); });
    connect(ui->cmdOK, &QPushButton::clicked, this, &frmAbout::accept);
}

frmAbout::~frmAbout() = default;

} // namespace vellumo
