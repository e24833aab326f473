#include "ui/questions/frmWizard.h"

#include "editing/question_list.h"
#include "editing/title_history.h"
#include "help/help_topics.h"
#include "model/question_types.h"
#include "model/texts.h"
#include "ui/common/box_names.h"
#include "ui/common/desktop_manners.h"
#include "ui/common/focus_ring.h"
#include "ui/common/help_key.h"
#include "ui/common/key_filter.h"
#include "ui/common/one_line_box.h"
#include "ui/common/plain_text.h"
#include "ui/common/project_document.h"
#include "ui/common/prompts.h"
#include "ui/common/screen_centre.h"
#include "ui/common/stray_input.h"
#include "ui/questions/focus_frame_delegate.h"
#include "ui_frmWizard.h"

#include <QEvent>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

/// The rules tell of what is too long; a box that cut it off would hide that.
constexpr int longestText = 16777216;

constexpr quint32 helpOfSteps[] = {HelpContext::questionTypes, HelpContext::questionWizard,
                                   HelpContext::questionWizard, HelpContext::questionWizard,
                                   HelpContext::items};

/// What takes the most room on the step with the items.
QString LongestIntroduction()
{
    QString longest;
    for (const QuestionType &type : questionTypes)
        if (type.items && type.items->introduction.size() > longest.size())
            longest = type.items->introduction;
    return longest;
}

} // namespace

frmWizard::frmWizard(ProjectDocument &document, QWidget *parent)
    : QDialog(parent), ui(std::make_unique<Ui::frmWizard>()), m_document(document)
{
    NameComboBoxes(); // first: what a box is to others is settled when it is set up
    ui->setupUi(this);
    for (const QuestionType &type : questionTypes)
        ui->lstWiz1_1->addItem(type.name);
    ui->lstWiz1_1->setItemDelegate(new FocusFrameDelegate(this));
    ConfigureTitleBox();
    OfferTitles();
    ui->items->Configure(wizardItemList, {.list = u"lstWiz4_1"_s,
                                          .add = u"cmdWiz4_Add"_s,
                                          .remove = u"cmdWiz4_Remove"_s,
                                          .up = u"cmdWiz4_Up"_s,
                                          .down = u"cmdWiz4_Down"_s});
    ui->lblWiz4_1->setBuddy(ui->items->List());

    // The drop-down has the focus and passes on to its edit line what is typed.
    RefuseKeys(ui->cboWiz2_1, doubleQuotes);
    RefuseKeys(ui->cboWiz2_1->lineEdit(), doubleQuotes);
    RefuseKeys(ui->txtWiz5_1, doubleQuotes);
    RefuseKeys(ui->txtWiz3_1, lineBreaks);
    KeepToOneLine(ui->cboWiz2_1->lineEdit());
    KeepToOneLine(ui->txtWiz5_1);
    KeepWheelForFocus(ui->cboWiz2_1);

    ConnectControls();
    RingWhenFocused(ui->txtWiz3_1);
    PlaceTypeLink();
    ui->lblWiz4_1->setText(LongestIntroduction());
    FollowDesktop(*this);
    CentreOnScreen(*this); // first: it is as large as its largest step
    ShowStep();
}

frmWizard::~frmWizard() = default;

/// The title is taken as it is typed: nothing completes it, and Enter does not look it up.
void frmWizard::ConfigureTitleBox()
{
    ui->cboWiz2_1->setCompleter(nullptr);
    ui->cboWiz2_1->lineEdit()->setMaxLength(longestText);
}

void frmWizard::OfferTitles()
{
    ui->cboWiz2_1->addItems(m_document.project().TitleList);
    ui->cboWiz2_1->setCurrentIndex(-1); // a list that is filled chooses its first entry
}

void frmWizard::ConnectControls()
{
    connect(ui->cmdNav_1, &QPushButton::clicked, this, &frmWizard::reject);
    connect(ui->cmdNav_2, &QPushButton::clicked, this, &frmWizard::GoBack);
    connect(ui->cmdNav_3, &QPushButton::clicked, this, &frmWizard::GoNext);
    connect(ui->cmdNav_4, &QPushButton::clicked, this, &frmWizard::Finish);
    connect(ui->lstWiz1_1, &QListWidget::itemDoubleClicked, this, &frmWizard::GoNext);
    ShowHelpByKey(*this, [this] { emit HelpAsked(helpOfSteps[m_step - 1]); });
    connect(ui->items, &ItemListEditor::HelpAsked, this, &frmWizard::HelpAsked);
    for (const LinkLabel *link :
         {ui->lblLkWzType, ui->lblLkWzTitle, ui->lblLkWzColumn, ui->lblLkWzText})
        connect(link, &LinkLabel::Followed, this,
                [this] { emit HelpAsked(HelpContext::questionWizard); });
}

/// The link lies over its words in the label.
void frmWizard::PlaceTypeLink()
{
    const QString text = ui->lblWiz1_2->text();
    const QString before = text.first(text.indexOf(ui->lblLkWzType->text()));
    const int left = ui->lblWiz1_2->fontMetrics().horizontalAdvance(before);
    ui->overQuestion->setContentsMargins(left, 0, 0, 0);
    // The words run from left to right in a mirrored window, too; it has the label at its right.
    ui->lblWiz1_2->setLayoutDirection(Qt::LeftToRight);
    ui->layoutPictWizard1->setAlignment(ui->lblWiz1_2,
                                        isRightToLeft() ? Qt::AlignRight : Qt::AlignLeft);
}

void frmWizard::changeEvent(QEvent *event)
{
    QDialog::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        PlaceTypeLink();
}

QWidget *frmWizard::Input() const
{
    // By step; the numbers in the names go their own way, here and in ShowPanel.
    QWidget *const inputs[] = {ui->lstWiz1_1, ui->cboWiz2_1, ui->txtWiz5_1, ui->txtWiz3_1,
                               ui->items->List()};
    return inputs[m_step - 1];
}

void frmWizard::ShowStep()
{
    setWindowTitle(u"Vellumo Designer Question Wizard- Step %1"_s.arg(m_step));
    ShowPanel();
    if (m_step == 3)
        ProposeColumnName();
    if (m_step == 5)
        ShowItemsForType();
    EnableButtons();
}

/// The focus moves before a button is disabled under it, which would send it to the next one.
void frmWizard::ShowPanel()
{
    QWidget *const panels[] = {ui->PictWizard1, ui->PictWizard2, ui->PictWizard5, ui->PictWizard3,
                               ui->PictWizard4};
    ui->steps->setCurrentWidget(panels[m_step - 1]);
    for (QWidget *panel : panels) { // those that are not shown do not make it scroll
        const bool shown = panel == ui->steps->currentWidget();
        const auto policy = shown ? QSizePolicy::Preferred : QSizePolicy::Ignored;
        panel->setSizePolicy(policy, policy);
    }
    Input()->setFocus();
}

void frmWizard::ProposeColumnName()
{
    if (!TrimBlanks(ui->txtWiz5_1->text()).isEmpty())
        return;
    ui->txtWiz5_1->setText(ProposedColumnName(m_document.source()));
    ui->txtWiz5_1->selectAll();
}

void frmWizard::ShowItemsForType()
{
    const QString type = Entered().type;
    ui->items->SetType(type);
    const QuestionType *known = TypeNamed(type);
    if (known && known->items)
        ui->lblWiz4_1->setText(known->items->introduction);
}

void frmWizard::EnableButtons()
{
    const StepButtons buttons = ButtonsOf(m_step, Entered().type);
    (buttons.next ? ui->cmdNav_3 : ui->cmdNav_4)->setDefault(true);
    if (buttons.back)
        ui->cmdNav_2->setEnabled(*buttons.back);
    ui->cmdNav_3->setEnabled(buttons.next);
    ui->cmdNav_4->setEnabled(buttons.finish);
}

void frmWizard::GoBack()
{
    --m_step;
    ShowStep();
}

void frmWizard::GoNext()
{
    Question entered = Entered();
    const QString objection = ObjectionToNext(m_step, entered, m_document.source());
    ShowTrimmed(entered); // also where it is refused
    if (!objection.isEmpty()) {
        ShowExclamation(this, objection);
        if (m_step > 1) // by intention not on step 1, nor on step 5 where finishing is refused
            Input()->setFocus();
        return;
    }
    ++m_step;
    ShowStep();
}

void frmWizard::Finish()
{
    Question entered = Entered();
    const QString objection = ObjectionToFinish(m_step, entered);
    ShowTrimmed(entered);
    if (!objection.isEmpty()) {
        ShowExclamation(this, objection);
        if (m_step == 4)
            Input()->setFocus();
        return;
    }
    Append(entered);

    const QString created = u"You have successfully created a question.\r\n"_s;
    if (m_document.source().QuestionCount() >= questionCountLimit.most) {
        ShowExclamation(this, created + questionCountLimit.message +
                                  "\r\nYou can't create more questions."_L1);
        accept();
    } else if (AskYesNo(this, created + u"Would you like to create another one?"_s) == "Yes"_L1) {
        StartAnother();
    } else {
        accept();
    }
}

void frmWizard::Append(const Question &question)
{
    m_document.SetProjectChanged(true);
    QStringList offered;
    for (int i = 0; i < ui->cboWiz2_1->count(); ++i)
        offered += ui->cboWiz2_1->itemText(i);
    m_document.ChangeProject([&](Project &project) {
        AppendQuestion(project.source, question);
        RememberTitle(question.title, project.TitleList, offered);
    });
    ui->cboWiz2_1->addItems(offered.sliced(ui->cboWiz2_1->count()));
}

/// Empties what was entered, all but the type.
void frmWizard::StartAnother()
{
    ui->cboWiz2_1->setCurrentIndex(-1);
    ui->cboWiz2_1->clearEditText();
    ui->txtWiz5_1->clear();
    ui->txtWiz3_1->clear();
    ui->items->SetItems({});
    m_step = 1;
    ShowStep();
}

Question frmWizard::Entered() const
{
    const QList<QListWidgetItem *> selected = ui->lstWiz1_1->selectedItems();
    return {.title = ui->cboWiz2_1->currentText(),
            .question = TextOf(*ui->txtWiz3_1),
            .type = selected.isEmpty() ? QString() : selected.first()->text(),
            .columnName = ui->txtWiz5_1->text(),
            .items = ui->items->Items()};
}

void frmWizard::ShowTrimmed(const Question &entered)
{
    // A text that is set anew sends the cursor elsewhere, so the same one is left alone.
    if (ui->txtWiz5_1->text() != entered.columnName)
        ui->txtWiz5_1->setText(entered.columnName);
    if (TextOf(*ui->txtWiz3_1) != entered.question)
        ui->txtWiz3_1->setPlainText(entered.question);
}

} // namespace vellumo
