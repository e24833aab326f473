#include "ui/questions/step_questions.h"

#include "editing/question_list.h"
#include "help/help_topics.h"
#include "ui/common/focus_ring.h"
#include "ui/common/pictures.h"
#include "ui/common/prompts.h"
#include "ui/questions/delivery_notice.h"
#include "ui/questions/frmWizard.h"
#include "ui/questions/propertyForm.h"
#include "ui/questions/question_clipboard.h"
#include "ui/questions/question_grid.h"
#include "ui/questions/question_model.h"
#include "ui/questions/row_dragging.h"
#include "ui/questions/row_keys.h"
#include "ui_step_questions.h"

#include <QKeyEvent>
#include <QTextDocument>

#include <utility>

using namespace Qt::StringLiterals;

namespace vellumo {

StepQuestions::StepQuestions(ProjectDocument &document, QWidget *parent)
    : StepPage(document, parent),
      ui(std::make_unique<Ui::StepQuestions>()),
      m_layout(*ui),
      m_model(new QuestionModel(document, this))
{
    ui->setupUi(this);
    RingWhenFocused(ui->DataGrid1);
    PlaceParts(ui->lblHeading, ui->scrollArea, ui->navigationLine);
    ui->deliveryArea->viewport()->setAutoFillBackground(false);
    ui->lblDelivery->setAutoFillBackground(false);
    ConnectHelp({{ui->lblAdd, HelpContext::questions},
                 {ui->lblEdit, HelpContext::questions},
                 {ui->lblDelete, HelpContext::questions},
                 {ui->lblReorder, HelpContext::questions},
                 {ui->Label10, HelpContext::questionPreview}});
    ConnectButtons();
    ConnectGrid();
    ConnectKeys();
    LayOutColumns(*ui->DataGrid1);
}

StepQuestions::~StepQuestions() = default;

void StepQuestions::ConnectButtons()
{
    connect(ui->cmd2_Back, &QPushButton::clicked, this, &StepQuestions::BackAsked);
    connect(ui->cmd2_Next, &QPushButton::clicked, this, &StepQuestions::NextAsked);
    connect(ui->cmdAdd, &QToolButton::clicked, this, &StepQuestions::Add);
    connect(ui->cmdView, &QToolButton::clicked, this, &StepQuestions::Edit);
    connect(ui->cmdDel, &QToolButton::clicked, this, &StepQuestions::Remove);
    connect(ui->cmdUp, &QToolButton::clicked, this, [this] { Move(-1); });
    connect(ui->cmdDown, &QToolButton::clicked, this, [this] { Move(+1); });
    connect(ui->cmdDuplic, &QToolButton::clicked, this, &StepQuestions::Duplicate);
}

void StepQuestions::ConnectGrid()
{
    ui->DataGrid1->setModel(m_model);
    ui->DataGrid1->installEventFilter(this);
    connect(ui->DataGrid1->selectionModel(), &QItemSelectionModel::currentChanged, this,
            &StepQuestions::FollowGrid);
    connect(ui->DataGrid1, &QTableView::clicked, this, &StepQuestions::RefreshAfterClick);
    connect(ui->DataGrid1, &QTableView::doubleClicked, this, &StepQuestions::Edit);
    KeepCurrentRowSelectedAndSeen(*ui->DataGrid1);
    new RowDragging(ui->DataGrid1, [this](int from, int gap) {
        document().source().SetPosition(from);
        Move(gap - (gap > from ? from + 1 : from));
    });
    connect(&document(), &ProjectDocument::QuestionsChanged, this,
            &StepQuestions::SelectCurrentRow);
    connect(&document(), &ProjectDocument::Replaced, this, [this] {
        ui->previewBox->Show({});
        ShowNotice({});
    });
}

/// Wherever the focus is, as this step has nothing to type into; Enter is the button's that has it.
void StepQuestions::ConnectKeys()
{
    const auto press = [this](const QList<QKeySequence> &keys, Qt::ShortcutContext context,
                              QToolButton *button) {
        CallByKeys(ui->DataGrid1, keys, context, [button] { button->click(); });
    };
    press({Qt::Key_Return, Qt::Key_Enter}, Qt::WidgetShortcut, ui->cmdView);
    press({Qt::Key_Insert}, Qt::WindowShortcut, ui->cmdAdd);
    press({Qt::Key_Delete}, Qt::WindowShortcut, ui->cmdDel);
    press({Qt::CTRL | Qt::Key_D}, Qt::WindowShortcut, ui->cmdDuplic);
    press({Qt::ALT | Qt::Key_Up}, Qt::WindowShortcut, ui->cmdUp);
    press({Qt::ALT | Qt::Key_Down}, Qt::WindowShortcut, ui->cmdDown);
    for (const MoveKey &move : moveKeys)
        CallByKeys(ui->DataGrid1, {move.key}, Qt::WindowShortcut,
                   [this, move] { Move(move.distance); });
    CallByKeys(ui->DataGrid1, QKeySequence::keyBindings(QKeySequence::Copy), Qt::WindowShortcut,
               [this] { Copy(); });
    CallByKeys(ui->DataGrid1, QKeySequence::keyBindings(QKeySequence::Paste), Qt::WindowShortcut,
               [this] { Paste(); });
}

bool StepQuestions::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyRelease) { // the press has moved the grid to its row
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_PageUp ||
            key == Qt::Key_PageDown)
            RefreshPreview();
    }
    return StepPage::eventFilter(watched, event);
}

void StepQuestions::Add()
{
    const QString refusal = RefusalWhenFull(document().source());
    if (!refusal.isEmpty())
        return ShowExclamation(window(), refusal);

    frmWizard wizard(document(), window());
    connect(&wizard, &frmWizard::HelpAsked, this, &StepQuestions::HelpAsked);
    // The wizard makes several questions in a row, and each is shown behind it.
    connect(&document(), &ProjectDocument::QuestionsChanged, &wizard, [this] { RefreshPreview(); });
    wizard.exec();
    RefreshPreview();
}

void StepQuestions::Edit()
{
    if (RefusesWithoutSelection())
        return;
    propertyForm form(document(), window());
    connect(&form, &propertyForm::HelpAsked, this, &StepQuestions::HelpAsked);
    form.exec();
    RefreshPreview();
}

void StepQuestions::Remove()
{
    if (RefusesWithoutSelection())
        return;
    if (AskYesNo(window(), u"Are you sure you want to delete this question?"_s) == "No"_L1)
        return;
    document().ChangeQuestions(RemoveQuestion);
    if (document().source().QuestionCount() == 0)
        LayOutColumns(*ui->DataGrid1);
    RefreshPreview();
    document().SetProjectChanged(true);
}

void StepQuestions::Move(int distance)
{
    if (RefusesWithoutSelection())
        return;
    if (!document().ChangeQuestions(
            [distance](clsDataSource &source) { return MoveQuestion(source, distance); }))
        return;
    document().SetProjectChanged(true);
    RefreshPreview();
}

void StepQuestions::Duplicate()
{
    if (RefusesWithoutSelection())
        return;
    const QString refusal = RefusalWhenFull(document().source());
    if (!refusal.isEmpty())
        return ShowExclamation(window(), refusal);
    if (AskYesNo(window(), u"Are you sure you want to duplicate this question?"_s) == "No"_L1)
        return;

    m_previewPending = false; // or the grid's reset would refresh the preview as well
    const Outcome duplicated =
        document().ChangeQuestions(DuplicateQuestion, ProjectDocument::Counts::No);
    if (!duplicated)
        return ShowExclamation(window(), duplicated.error().text);
    RefreshPreview(); // the project counts as unchanged, on purpose
}

void StepQuestions::Copy()
{
    if (!RefusesWithoutSelection())
        CopyQuestion(document().source());
}

void StepQuestions::Paste()
{
    m_previewPending = false; // or the grid's reset would refresh the preview as well
    const QString refused = PasteFromClipboard(document());
    RefreshPreview();
    if (!refused.isEmpty())
        ShowExclamation(window(), refused);
}

bool StepQuestions::RefusesWithoutSelection()
{
    const QString refusal = RefusalWithoutSelection(document().source());
    if (!refusal.isEmpty())
        ShowExclamation(window(), refusal);
    return !refusal.isEmpty();
}

void StepQuestions::Enter()
{
    SelectCurrentRow();
    RefreshPreview();
    ui->DataGrid1->setFocus();
}

void StepQuestions::SelectCurrentRow()
{
    const clsDataSource &source = document().source();
    if (source.AtEnd() || source.AtStart())
        return ui->DataGrid1->setCurrentIndex({});
    ui->DataGrid1->setCurrentIndex(m_model->index(static_cast<int>(source.GetPosition()), 0));
}

void StepQuestions::RefreshPreview()
{
    const auto preview = PreviewOf(document().source());
    ui->previewBox->Show(preview);
    const int position = preview ? static_cast<int>(document().source().GetPosition()) + 1 : 0;
    ShowNotice(NoticeOf(document().project(), position));
    if (preview && !preview->type)
        ShowCritical(window(), u"This type is wrong!"_s);
}

void StepQuestions::ShowNotice(const DeliveryNotice &notice)
{
    ui->lblDelivery->setText(notice.line);
    ui->lblDelivery->setAccessibleName(notice.line.isEmpty()
                                           ? u"Everything fits and will arrive as typed"_s
                                           : u"What does not fit or will not arrive as typed"_s);
    ui->lblDelivery->setAccessibleDescription(notice.all);
    // Tool tips take for markup what looks like it.
    ui->lblDelivery->setToolTip(notice.all.isEmpty() ? QString()
                                                     : Qt::convertFromPlainText(notice.all));
}

void StepQuestions::RefreshAfterClick()
{
    m_previewPending = true;
    RefreshPreview();
}

void StepQuestions::FollowGrid(const QModelIndex &current)
{
    if (current.isValid())
        document().source().SetPosition(current.row());
    if (std::exchange(m_previewPending, false))
        RefreshPreview();
}

void StepQuestions::LayOutIfLargeEnough()
{
    m_layout.LayOutIfLargeEnough();
}

int StepQuestions::LeastView() const
{
    return m_layout.LeastView();
}

void StepQuestions::showEvent(QShowEvent *event)
{
    StepPage::showEvent(event);
    m_layout.LayOutOnce();
}

void StepQuestions::FitContent()
{
    m_layout.FitContent();
}

} // namespace vellumo
