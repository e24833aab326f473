#include "ui/questions/propertyForm.h"

#include "editing/property_rules.h"
#include "help/help_topics.h"
#include "model/question_types.h"
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
#include "ui_propertyForm.h"

#include <QFontMetricsF>
#include <QListView>
#include <QtMath>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

/// The height of a box that shows so many lines of text.
int HeightOf(int lines, const QPlainTextEdit &box)
{
    const qreal margins = 2 * (box.document()->documentMargin() + box.frameWidth());
    return qCeil(lines * QFontMetricsF(box.font()).lineSpacing() + margins) + 1;
}

/// Offers the types. A type of another name, which a file may have brought, is one more to choose.
void FillTypes(QComboBox &box, const QString &type)
{
    for (const QuestionType &known : questionTypes)
        box.addItem(known.name);
    if (box.findText(type, Qt::MatchExactly | Qt::MatchCaseSensitive) < 0)
        box.addItem(type);
    box.setCurrentText(type);
}

} // namespace

propertyForm::propertyForm(ProjectDocument &document, QWidget *parent)
    : QDialog(parent), ui(std::make_unique<Ui::propertyForm>()), m_document(document)
{
    NameComboBoxes(); // first: what a box is to others is settled when it is set up
    ui->setupUi(this);
    FollowDesktop(*this);
    ui->lblSelections->setBuddy(ui->items->List());
    RingWhenFocused(ui->txtQuestion);
    ui->txtQuestion->setFixedHeight(HeightOf(3, *ui->txtQuestion));
    ui->items->Configure(propertyItemList, {.list = u"lstSelection"_s,
                                            .add = u"cmdNew"_s,
                                            .remove = u"cmdDelete"_s,
                                            .up = u"cmdUp"_s,
                                            .down = u"cmdDown"_s});
    ShowQuestion();
    ui->txtTitle->setFocus();

    RefuseKeys(ui->txtTitle, doubleQuotes);
    RefuseKeys(ui->txtColumnName, doubleQuotes);
    RefuseKeys(ui->txtQuestion, lineBreaks);
    KeepToOneLine(ui->txtTitle);
    KeepToOneLine(ui->txtColumnName);
    KeepWheelForFocus(ui->cboType);
    ShowHelpByKey(*this, [this] { emit HelpAsked(HelpContext::questionProperties); });

    connect(ui->items, &ItemListEditor::HelpAsked, this, &propertyForm::HelpAsked);

    // Whenever a type is picked, also the same one: that brings back the stored items.
    connect(ui->cboType, &QComboBox::activated, this, &propertyForm::ShowItemsForType);
    connect(ui->cmdOK, &QPushButton::clicked, this, &propertyForm::SaveUnlessRefused);
    connect(ui->cmdCancel, &QPushButton::clicked, this, &propertyForm::reject);
    CentreOnScreen(*this);
}

propertyForm::~propertyForm() = default;

void propertyForm::ShowQuestion()
{
    const QuestionRow &row = m_document.source().Questions().Current();
    ui->txtOrder->setText(QString::number(row.Order));
    ui->txtTitle->setText(row.Title);
    ui->txtQuestion->setPlainText(row.Question);
    FillTypes(*ui->cboType, row.Type);
    ui->txtColumnName->setText(row.ColumnName);
    ShowItemsForType();
}

/// Shows the items as they are stored: edits of the list are lost.
void propertyForm::ShowItemsForType()
{
    const QString type = ui->cboType->currentText();
    const bool hasItems = HasItems(type);
    const clsDataSource &source = m_document.source();
    ui->items->SetType(type);
    ui->items->SetItems(hasItems ? source.ItemsOf(source.Questions().Current().Id) : QStringList());
    ui->lblSelections->setVisible(hasItems);
    ui->items->setVisible(hasItems);
}

Question propertyForm::Edited() const
{
    return {.title = ui->txtTitle->text(),
            .question = TextOf(*ui->txtQuestion),
            .type = ui->cboType->currentText(),
            .columnName = ui->txtColumnName->text(),
            .items = ui->items->Items()};
}

void propertyForm::SaveUnlessRefused()
{
    Question edited = Edited();
    TrimEdited(edited);
    // Shown also where it is refused. The column name keeps its blanks, by intention.
    ui->txtTitle->setText(edited.title);
    ui->txtQuestion->setPlainText(edited.question);

    const QString objections = ObjectionsTo(edited, m_document.source());
    if (!objections.isEmpty()) {
        ShowExclamation(this, objections);
        return;
    }
    m_document.ChangeQuestions(
        [&](clsDataSource &source) { ReplaceCurrentQuestion(source, edited); });
    m_document.SetProjectChanged(true);
    accept();
}

} // namespace vellumo
