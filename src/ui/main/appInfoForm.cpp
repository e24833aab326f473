#include "ui/main/appInfoForm.h"

#include "help/help_topics.h"
#include "model/project_file.h"
#include "ui/common/desktop_manners.h"
#include "ui/common/help_key.h"
#include "ui/common/prompts.h"
#include "ui/common/screen_centre.h"
#include "ui/common/stray_input.h"
#include "ui/main/create_database.h"
#include "ui/main/dropped_project.h"
#include "ui/main/rescue_offer.h"
#include "ui/main/step_complete.h"
#include "ui/main/step_data.h"
#include "ui/main/step_info.h"
#include "ui/main/step_mark.h"
#include "ui/main/window_keys.h"
#include "ui/questions/step_questions.h"
#include "ui_appInfoForm.h"
#include "validation/project_review.h"

#include <QCloseEvent>
#include <QShortcut>
#include <QTabBar>

#include <utility>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

constexpr quint32 helpOfSteps[] = {HelpContext::formInformation, HelpContext::questions,
                                   HelpContext::uploadingData, HelpContext::finalReview};

} // namespace

appInfoForm::appInfoForm(Environment environment, QWidget *parent)
    : QMainWindow(parent),
      m_environment(std::move(environment)),
      m_rescue(m_document, m_environment),
      ui(std::make_unique<Ui::appInfoForm>()),
      m_files(new ProjectFiles(m_document, m_environment, this)),
      m_info(new StepInfo(m_document)),
      m_questions(new StepQuestions(m_document)),
      m_data(new StepData(m_document)),
      m_complete(new StepComplete(m_document)),
      m_steps{m_info, m_questions, m_data, m_complete}
{
    ui->setupUi(this);
    AddSteps();
    FollowDesktop(*this);
    CentreOnScreen(*this);
    ConnectSteps();
    ConnectMenus();
    ConnectToolbar();
    ConnectKeys();
    new DroppedProject(this, [this](const QString &path) { OpenInPlace([path] { return path; }); });
    connect(&m_document, &ProjectDocument::Replaced, this, &appInfoForm::ForgetReview);
    ForgetReview();
}

appInfoForm::~appInfoForm()
{
    ui->SSTab1->disconnect(this);
    qDeleteAll(m_steps); // their boxes speak to the document until they are gone
}

void appInfoForm::AddSteps()
{
    ui->SSTab1->addTab(m_info, u"1:  Vellsheet Info"_s);
    ui->SSTab1->addTab(m_questions, u"2: Vellsheet Questions"_s);
    ui->SSTab1->addTab(m_data, u"3: Vellsheet Data"_s);
    ui->SSTab1->addTab(m_complete, u"4: Complete Vellsheet"_s);
    // Only now: that the first tab came to be the current one was no change of steps.
    connect(ui->SSTab1, &QTabWidget::currentChanged, this, &appInfoForm::ChangeStep);
}

void appInfoForm::ConnectSteps()
{
    for (int step = 1; const StepPage *page : m_steps) {
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
}

void appInfoForm::ConnectToolbar()
{
    connect(ui->cmdToolbar_0, &QToolButton::clicked, this, &appInfoForm::New);
    connect(ui->cmdToolbar_1, &QToolButton::clicked, m_files, &ProjectFiles::SaveAndForget);
    connect(ui->cmdToolbar_2, &QToolButton::clicked, this, &appInfoForm::Open);
}

/// The keys that no menu has. In a text box, those of undoing are the box's own until it has
/// nothing more to take back.
void appInfoForm::ConnectKeys()
{
    WalkTabsByKeys(*ui->SSTab1);
    PressButtonsByEnter(*this);
    new StrayLetters(this);
    ShowHelpByKey(*this, [this] { emit HelpAsked(helpOfSteps[m_step - 1]); });

    for (const QKeySequence &key : KeysOf(QKeySequence::Undo, Qt::CTRL | Qt::Key_Z))
        connect(new QShortcut(key, this), &QShortcut::activated, &m_document,
                &ProjectDocument::Undo);
    for (const QKeySequence &key : KeysOf(QKeySequence::Redo, Qt::CTRL | Qt::SHIFT | Qt::Key_Z))
        connect(new QShortcut(key, this), &QShortcut::activated, &m_document,
                &ProjectDocument::Redo);
    connect(&m_document, &ProjectDocument::WentTo, this, &appInfoForm::GoToChange);
}

void appInfoForm::FinishSetUp()
{
    SelectStep(1);
    m_info->Enter(); // also where step 1 was the selected one already
    m_document.SetProjectChanged(false);
    m_formReady = true;
    m_questions->LayOutIfLargeEnough();
}

void appInfoForm::New()
{
    if (!m_files->MayDiscard(ProjectFiles::Reason::New))
        return;
    m_document.Replace({}, {});
    SelectStep(1);
    // Last: emptied boxes and a step that is left can count as changes.
    m_document.SetProjectChanged(false);
}

void appInfoForm::Open()
{
    OpenInPlace([this] { return m_files->ChooseProject(); });
}

/// The path is asked for when the open project may go; empty = none.
void appInfoForm::OpenInPlace(const std::function<QString()> &choose)
{
    if (!m_files->MayDiscard(ProjectFiles::Reason::Open))
        return;
    const QString path = choose();
    if (path.isEmpty())
        return;
    if (m_files->SaveMissed())
        m_rescue.Leave();
    OpenProject(path);
}

void appInfoForm::OpenProject(const QString &path, const QString &hint)
{
    Fingerprint fingerprint;
    Result<Project> loaded = LoadProject(path, &fingerprint);
    if (loaded) {
        m_document.Replace(std::move(*loaded), path, fingerprint);
    } else {
        m_document.Replace({}, {});
        m_document.SetProjectChanged(false); // nothing to rescue while the box is up
        const QString reason = Describe(loaded.error());
        ShowCritical(this, invalidProjectFile, hint.isEmpty() ? reason : reason + u'\n' + hint);
    }
    ShowOpened(false);
}

/// Last comes whether it is unsaved: a review and a step that is left can count as changes.
void appInfoForm::ShowOpened(bool isUnsaved)
{
    Review(false);
    SelectStep(1);
    isUnsaved ? m_document.MarkUnsaved() : m_document.SetProjectChanged(false);
}

void appInfoForm::OfferRescue()
{
    std::optional<RescuedWork> wanted = OfferRescuedWork(this, m_environment.stateFolder);
    if (!wanted)
        return;
    m_document.Replace(std::move(wanted->snapshot.project), wanted->snapshot.path,
                       wanted->snapshot.fingerprint);
    ShowOpened(true);
    m_rescue.Adopt(std::move(wanted->copy));
}

void appInfoForm::Exit()
{
    if (m_files->MayDiscard(ProjectFiles::Reason::Exit))
        close();
}

void appInfoForm::ForgetReview()
{
    m_complete->ShowErrors({});
    for (int step = 1; step <= 4; ++step)
        MarkTab(*ui->SSTab1, step, false);
}

/// Only the program closes the window without asking.
void appInfoForm::closeEvent(QCloseEvent *event)
{
    emit HelpCloseAsked();
    if (event->spontaneous() && !m_files->MayDiscard(ProjectFiles::Reason::CloseBox))
        return event->ignore();
    m_rescue.Forget();
    QMainWindow::closeEvent(event);
}

void appInfoForm::resizeEvent(QResizeEvent *event)
{
    QMainWindow::resizeEvent(event);
    KeepButtonsInView();
    if (m_formReady)
        m_questions->LayOutIfLargeEnough();
}

/// Where toolbar, tabs, buttons and what the step has to show are more than fits, all but the
/// buttons scrolls.
void appInfoForm::KeepButtonsInView()
{
    constexpr int buttonLines = 5; // with the margins
    const StepPage *shown = m_steps[static_cast<size_t>(m_step - 1)];
    const int needed = ui->cmdToolbar_0->sizeHint().height() +
                       ui->SSTab1->tabBar()->sizeHint().height() + shown->LeastView() +
                       buttonLines * fontMetrics().lineSpacing();
    for (StepPage *page : m_steps)
        page->SetLow(page == shown && ui->outer->height() < needed, *ui->foot);
}

void appInfoForm::LeaveForward(int step)
{
    // The rules take the blanks off the texts, so a look at them can be a change.
    const StepVerdict verdict =
        m_document.ChangeTexts([step](Project &project) { return CheckStep(step, project); });
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
    KeepButtonsInView();
    m_steps[static_cast<size_t>(tabIndex)]->Enter();
    if (m_step == 4) // each visit needs a review of its own
        MarkTab(*ui->SSTab1, 4, false);
    m_questions->LayOutIfLargeEnough();
}

void appInfoForm::MarkLeftStep()
{
    if (m_step == 4) // its mark is the review's
        return;
    const StepVerdict verdict =
        m_document.ChangeTexts([this](Project &project) { return CheckStep(m_step, project); });
    MarkTab(*ui->SSTab1, m_step, !verdict.failed);
}

void appInfoForm::Review(bool showResults)
{
    const ReviewResult result =
        m_document.ChangeTexts([](Project &project) { return ReviewProject(project); });
    for (int step = 1; step <= 3; ++step)
        MarkTab(*ui->SSTab1, step, !result.stepFailed[static_cast<size_t>(step - 1)]);
    MarkTab(*ui->SSTab1, 4, result.Passed());
    m_complete->AllowCreation(result.Passed());

    m_complete->ShowErrors(showResults ? result.entries : std::vector<ReviewEntry>());
    if (showResults && result.Passed())
        ShowInformation(this, u"Your Vellsheet has been validated successfully!\r\n"
                              "Press the Create Vellsheet button to create it."_s);
    else if (showResults)
        ShowCritical(this, u"There are errors in your Vellsheet. "
                           "Please check the Error List for details."_s);
}

void appInfoForm::GoToChange(std::optional<FormField> field)
{
    if (!field) // entered once: the preview may have something to tell
        return m_step == 2 ? m_questions->Enter() : SelectStep(2);
    for (int step = 1; const StepPage *page : m_steps) {
        if (page->Has(*field))
            SelectStep(step);
        ++step;
    }
    for (StepPage *page : m_steps)
        page->Focus(*field);
}

void appInfoForm::GoToError(const ReviewEntry &entry)
{
    SelectStep(entry.step); // first, as entering a step moves the focus, too
    if (entry.leadsTo)
        m_steps[static_cast<size_t>(entry.step - 1)]->Focus(*entry.leadsTo);
}

} // namespace vellumo
