#include "ui/main/fileOpenForm.h"

#include "ui/common/desktop_manners.h"
#include "ui/common/help_key.h"
#include "ui/common/screen_centre.h"
#include "ui_fileOpenForm.h"

#include <QDir>
#include <QFileDialog>
#include <QKeyEvent>

using namespace Qt::StringLiterals;

namespace vellumo {

fileOpenForm::fileOpenForm(QString projectsFolder, std::function<void()> hideOpenFormNextTime,
                           QWidget *parent)
    : QDialog(parent),
      ui(std::make_unique<Ui::fileOpenForm>()),
      m_projectsFolder(std::move(projectsFolder)),
      m_hideOpenFormNextTime(std::move(hideOpenFormNextTime))
{
    ui->setupUi(this);
    ui->imgWelcome->SetPicture(Drawing::Welcome);
    ui->Option1_0->installEventFilter(this);
    ui->Option1_1->installEventFilter(this);
    FollowDesktop(*this);
    CentreOnScreen(*this);
    ShowHelpByKey(*this, [this] { emit HelpAsked(); });

    connect(ui->Option1_1, &QRadioButton::toggled, this, &fileOpenForm::ShowFileName);
    connect(ui->Option1_1, &QRadioButton::clicked, this, &fileOpenForm::ChooseFile);
    connect(ui->Command1, &QPushButton::clicked, this, &fileOpenForm::Finish);
}

fileOpenForm::~fileOpenForm() = default;

Start fileOpenForm::Chosen() const
{
    return {ui->Option1_0->isChecked() ? newProject : existingProject, m_path};
}

/// Left to itself, an option that is selected by an arrow key is clicked, and the file dialog would
/// open under the user's hand.
bool fileOpenForm::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress)
        return QDialog::eventFilter(watched, event);
    const int key = static_cast<QKeyEvent *>(event)->key();
    const bool back = key == Qt::Key_Up || key == Qt::Key_Left;
    if (!back && key != Qt::Key_Down && key != Qt::Key_Right)
        return QDialog::eventFilter(watched, event);
    QRadioButton *option = back ? ui->Option1_0 : ui->Option1_1;
    option->setChecked(true);
    option->setFocus(back ? Qt::BacktabFocusReason : Qt::TabFocusReason);
    return true;
}

void fileOpenForm::ChooseFile()
{
    QFileDialog dialog(this, {}, m_projectsFolder, u"VMP Files (*.vmp)"_s);
    dialog.setObjectName(u"fileOpenDialog"_s);
    dialog.setFileMode(QFileDialog::ExistingFile);
    m_dialogSeen = true; // also where it is cancelled: OK does not ask again
    if (dialog.exec() == QDialog::Accepted)
        m_path = QDir::toNativeSeparators(dialog.selectedFiles().constFirst());
    ShowFileName();
}

void fileOpenForm::ShowFileName()
{
    const bool existing = ui->Option1_1->isChecked();
    m_dialogSeen = m_dialogSeen && existing;
    ui->txtFileName->setText(existing ? m_path : QString());
}

void fileOpenForm::Finish()
{
    if (ui->Option1_1->isChecked() && m_path.isEmpty() && !m_dialogSeen) {
        ChooseFile();
        if (m_path.isEmpty())
            return;
    }
    if (!ui->chkShowThis->isChecked())
        m_hideOpenFormNextTime();
    accept();
}

} // namespace vellumo
