#include "ui/main/logoForm.h"

#include "ui/common/desktop_manners.h"
#include "ui/common/environment.h"
#include "ui/common/screen_centre.h"
#include "ui_logoForm.h"

#include <QShowEvent>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace vellumo {

logoForm::logoForm(const Environment &environment, Check check, QWidget *parent)
    : QDialog(parent, Qt::Dialog | Qt::FramelessWindowHint),
      ui(std::make_unique<Ui::logoForm>()),
      m_check(std::move(check)),
      m_timer(new QTimer(this))
{
    ui->setupUi(this);
    ui->imgSplash->SetPicture(Drawing::Splash);
    ui->imgProgram->SetPicture(ProgramPicture);
    ui->lblVersion->setText("Version "_L1 + environment.version);
    ui->lblSite->setText(environment.siteAddress);
    FollowDesktop(*this);
    CentreOnScreen(*this);

    m_timer->setObjectName(u"Timer1"_s);
    m_timer->setSingleShot(true);
    m_timer->setTimerType(Qt::PreciseTimer); // a coarse one may be off by a twentieth
    m_timer->setInterval(environment.splashDuration);
    connect(m_timer, &QTimer::timeout, this, &logoForm::CheckAndClose);
}

logoForm::~logoForm() = default;

/// Escape and every other way to close a window end here.
void logoForm::reject() {}

void logoForm::showEvent(QShowEvent *event)
{
    QDialog::showEvent(event);
    if (!event->spontaneous()) // one of those comes when the window was put away
        m_timer->start();
}

void logoForm::CheckAndClose()
{
    m_check(this);
    accept();
}

} // namespace vellumo
