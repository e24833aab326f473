#include "ui/main/appInfoForm.h"

#include "model/project_file.h"
#include "ui/common/pictures.h"
#include "ui/common/prompts.h"
#include "ui/common/screen_centre.h"
#include "ui/main/create_database.h"
#include "ui/main/step_complete.h"
#include "ui/main/step_data.h"
#include "ui/main/step_info.h"
#include "ui/questions/step_questions.h"
#include "ui_appInfoForm.h"
#include "validation/project_review.h"

#include <QCloseEvent>
#include <QTabBar>

#include <utility>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

/// The first of a command's keys that the platform names, or else the given one.
QList<QKeySequence> KeysOf(QKeySequence::StandardKey standard, const QKeySequence &other)
{
    const QList<QKeySequence> keys = QKeySequence::keyBindings(standard);
    return keys.isEmpty() ? QList{other} : keys;
}

} // namespace

appInfoForm::appInfoForm(Environment environment, QWidget *parent)
    : QMainWindow(parent),
      m_environment(std::move(environment)),
      ui(std::make_unique<Ui::appInfoForm>()),
      m_files(new ProjectFiles(m_document, m_environment, this)),
      m_info(new StepInfo(m_document)),
      m_questions(new StepQuestions(m_document)),
      m_data(new StepData(m_document)),
      m_complete(new StepComplete)
{
    ui->setupUi(this);
    CentreOnScreen(*this);
    AddSteps();
    ConnectSteps();
    ConnectMenus();
    ConnectToolbar();
    for (int step = 1; step <= 4; ++step)
        MarkStep(step, false);
}

appInfoForm::~appInfoForm() = default;

void appInfoForm::AddSteps()
{
    ui->SSTab1->addTab(m_info, u"1:  Vellsheet Info"_s);
    ui->SSTab1->addTab(m_questions, u"2: Vellsheet Questions"_s);
    ui->SSTab1->addTab(m_data, u"3: Vellsheet Data"_s);
    ui->SSTab1->addTab(m_complete, u"4: Complete Vellsheet"_s);
    connect(ui->SSTab1, &QTabWidget::currentChanged, this, &appInfoForm::ChangeStep);
}

void appInfoForm::ConnectSteps()
{
    const StepPage *steps[] = {m_info, m_questions, m_data, m_complete};
    for (int step = 1; const StepPage *page : steps) {
        connect(page, &StepPage::BackAsked, this, [=, this] { SelectStep(step - 1); });
        connect(page, &StepPage::NextAsked, this, [=, this] { LeaveForward(step); });
        connect(page, &StepPage::HelpAsked, this, &appInfoForm::HelpAsked);
        ++step;
    }
    connect(m_complete, &StepComplete::ReviewAsked, this, [this] { Review(true); });
    connect(m_complete, &StepComplete::CreationAsked, this,
            [this] { CreateDatabase(m_document.project(), m_environment, this); });
    connect(m_complete, &StepComplete::ErrorChosen, this, &appInfoForm::GoToError);
}

void appInfoForm::ConnectMenus()
{
    connect(ui->mnuFileNew, &QAction::triggered, this, &appInfoForm::New);
    connect(ui->mnuFileOpen, &QAction::triggered, this, &appInfoForm::Open);
    connect(ui->mnuFileSave, &QAction::triggered, m_files, &ProjectFiles::Save);
    connect(ui->mnuFileSaveAS, &QAction::triggered, m_files, &ProjectFiles::SaveAs);
    connect(ui->mnuFileExit, &QAction::triggered, this, &appInfoForm::Exit);
    connect(ui->mnuContents, &QAction::triggered, this, &appInfoForm::ContentsAsked);
    connect(ui->mnuVellumo_Designer, &QAction::triggered, this, &appInfoForm::AboutAsked);

    ui->mnuFileNew->setShortcuts(QKeySequence::New);
    ui->mnuFileOpen->setShortcuts(QKeySequence::Open);
    ui->mnuFileSave->setShortcuts(QKeySequence::Save);
    ui->mnuFileSaveAS->setShortcuts(KeysOf(QKeySequence::SaveAs, Qt::CTRL | Qt::SHIFT | Qt::Key_S));
    ui->mnuFileExit->setShortcuts(KeysOf(QKeySequence::Quit, Qt::CTRL | Qt::Key_Q));
    ui->mnuContents->setShortcut(Qt::Key_F1);
}

void appInfoForm::ConnectToolbar()
{
    connect(ui->cmdToolbar_0, &QToolButton::clicked, this, &appInfoForm::New);
    connect(ui->cmdToolbar_1, &QToolButton::clicked, m_files, &ProjectFiles::SaveAndForget);
    connect(ui->cmdToolbar_2, &QToolButton::clicked, this, &appInfoForm::Open);
}

void appInfoForm::FinishSetUp()
{
    SelectStep(1);
    findChild<QWidget *>(u"txtAppName"_s)->setFocus();
    m_document.SetProjectChanged(false);
    m_formReady = true;
    LayOutIfLargeEnough();
}

void appInfoForm::New()
{
    if (!m_files->MayDiscard(ProjectFiles::Reason::New))
        return;
    EmptyProject();
    SelectStep(1);
    m_document.SetProjectChanged(false);
    m_document.project().path.clear();
}

void appInfoForm::Open()
{
    if (!m_files->MayDiscard(ProjectFiles::Reason::Open))
        return;
    const QString path = m_files->ChooseProject();
    if (!path.isEmpty())
        OpenProject(path);
}

void appInfoForm::OpenProject(const QString &path)
{
    EmptyProject();
    m_document.project().path = path;
    const Outcome loaded = m_document.ChangeQuestions([this] {
        const Outcome outcome = LoadProject(m_document.project());
        m_document.source().MoveFirst();
        return outcome;
    });
    if (!loaded)
        ShowCritical(this, invalidProjectFile);
    ShowTexts();
    Review(false);
    SelectStep(1);
    m_document.SetProjectChanged(false);
}

void appInfoForm::Exit()
{
    if (m_files->MayDiscard(ProjectFiles::Reason::Exit))
        close();
}

void appInfoForm::EmptyProject()
{
    m_document.ChangeQuestions([this] {
        m_document.source().ClearQuestions();
        m_document.source().ClearItems();
        return true;
    });
    ResetFormInfo();
    m_questions->Refresh();
}

void appInfoForm::ResetFormInfo()
{
    Project &project = m_document.project();
    project.TitleList = {QString()};
    project.FormName = project.FormVersion = project.Description = project.FormPath = QString();
    ShowTexts();
    m_complete->ShowErrors({});
    for (int step = 1; step <= 4; ++step)
        MarkStep(step, false);
}

/// Only the program closes the window without asking.
void appInfoForm::closeEvent(QCloseEvent *event)
{
    emit HelpCloseAsked();
    if (event->spontaneous() && !m_files->MayDiscard(ProjectFiles::Reason::CloseBox))
        return event->ignore();
    QMainWindow::closeEvent(event);
}

void appInfoForm::resizeEvent(QResizeEvent *event)
{
    QMainWindow::resizeEvent(event);
    if (m_formReady)
        LayOutIfLargeEnough();
}

void appInfoForm::LayOutIfLargeEnough()
{
    constexpr int twipsPerPixel = 15;
    if (width() * twipsPerPixel >= 11850 && height() * twipsPerPixel >= 8640)
        m_questions->LayOut();
}

void appInfoForm::LeaveForward(int step)
{
    const StepVerdict verdict = CheckStep(step, m_document.project());
    ShowTexts();
    if (verdict.failed)
        ShowExclamation(this, verdict.text);
    else
        SelectStep(step + 1);
}

void appInfoForm::SelectStep(int step)
{
    ui->SSTab1->setCurrentIndex(step - 1);
}

void appInfoForm::ChangeStep(int tabIndex)
{
    MarkLeftStep();
    m_step = tabIndex + 1;
    EnterStep();
    LayOutIfLargeEnough();
}

void appInfoForm::MarkLeftStep()
{
    if (m_step == 4)
        return;
    MarkStep(m_step, !CheckStep(m_step, m_document.project()).failed);
    ShowTexts();
}

void appInfoForm::EnterStep()
{
    if (m_step == 1)
        findChild<QWidget *>(u"txtAppName"_s)->setFocus();
    if (m_step == 2)
        m_questions->Refresh();
    if (m_step == 3)
        findChild<QWidget *>(u"txt3_appDir"_s)->setFocus();
    if (m_step == 4) {
        MarkStep(4, false);
        m_complete->AllowCreation(false);
    }
}

void appInfoForm::MarkStep(int step, bool valid)
{
    const int tab = step - 1;
    const int picture = valid ? StepMarkValid : StepMarkInvalid;
    ui->SSTab1->setTabIcon(tab, Picture(picture));
    QTabBar *bar = ui->SSTab1->tabBar();
    bar->setTabData(tab, picture);
    bar->setAccessibleTabName(tab, ui->SSTab1->tabText(tab) +
                                       (valid ? u", valid"_s : u", not valid yet"_s));
}

void appInfoForm::ShowTexts()
{
    m_info->ShowTexts();
    m_data->ShowTexts();
}

void appInfoForm::Review(bool showResults)
{
    const ReviewResult result = ReviewProject(m_document.project());
    ShowTexts();
    for (int step = 1; step <= 3; ++step)
        MarkStep(step, !result.stepFailed[static_cast<size_t>(step - 1)]);
    MarkStep(4, result.Passed());
    m_complete->AllowCreation(result.Passed());

    QStringList errors;
    if (showResults)
        for (const ReviewEntry &entry : result.entries)
            errors += ListText(entry);
    m_complete->ShowErrors(errors);

    if (showResults && result.Passed())
        ShowInformation(this, u"Your Vellsheet has been validated successfully!\r\n"
                              "Press the Create Vellsheet button to create it."_s);
    else if (showResults)
        ShowCritical(this, u"There are errors in your Vellsheet. "
                           "Please check the Error List for details."_s);
}

void appInfoForm::GoToError(const QString &listText)
{
    const EntryTarget target = TargetOfEntry(listText);
    if (target.step == 0)
        return;
    SelectStep(target.step);
    if (!target.textBox.isEmpty())
        findChild<QWidget *>(target.textBox)->setFocus();
}

} // namespace vellumo
