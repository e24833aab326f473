#include "support/print.h"
#include "ui/main/typed_form.h"
#include "ui/support/designer.h"
#include "ui/support/prompt_script.h"

#include <QPlainTextEdit>

#include <iostream>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

/// A form of 25 questions: those of an inspection, all ten types, over and over.
Project Form()
{
    const Result<Project> loaded = LoadProject(sample);
    EXPECT_TRUE(loaded);
    Project form = *loaded;
    form.source = {};
    form.source.GetDataMember();
    const auto &rows = loaded->source.Questions().Rows();
    for (int n = 1; n <= 25; ++n) {
        QuestionRow row = rows[(n - 1) % rows.size()];
        const QStringList items = loaded->source.ItemsOf(row.Id);
        row.Order = n;
        row.ColumnName += QString::number(n);
        row.Id = form.source.IssueId();
        form.source.Questions().Append(row);
        form.source.AppendItems(row.Id, items);
    }
    return form;
}

/// Types the questions as a table, a cell after the other, and lays it into the clipboard.
void TypeTable(Typist &typist, const Project &form)
{
    for (const QuestionRow &row : form.source.Questions().Rows()) {
        QStringList cells = {row.Title, row.Question, row.Type, row.ColumnName};
        if (HasItems(row.Type))
            cells += form.source.ItemsOf(row.Id).join(u'|');
        for (const QString &cell : cells) {
            typist.Text(cell);
            typist.Key(&cell == &cells.back() ? Qt::Key_Return : Qt::Key_Tab);
        }
    }
    typist.Key(Qt::Key_A, Qt::ControlModifier);
    typist.Key(Qt::Key_C, Qt::ControlModifier);
}

void ExpectQuestions(const Designer &designer, const Project &form)
{
    EXPECT_EQ(designer.project().FormName, form.FormName);
    EXPECT_EQ(designer.project().FormPath, form.FormPath);
    EXPECT_TRUE(designer.project().source.Questions().Rows() == form.source.Questions().Rows());
    EXPECT_TRUE(designer.project().source.Items().Rows() == form.source.Items().Rows());
    EXPECT_EQ(designer.Mark(4), StepMarkValid);
}

/// From the questions to the review.
void TypeTheRest(Typist &typist, const Project &form)
{
    typist.Key(Qt::Key_PageDown, Qt::ControlModifier);
    typist.Text(form.FormPath);
    typist.Key(Qt::Key_PageDown, Qt::ControlModifier);
    typist.Key(Qt::Key_Return);
    typist.Await("that it is valid", BoxAsks);
    typist.Key(Qt::Key_Return);
}

TEST(QuickForm, TakesHalfTheKeysOfTheWizardByATable)
{
    const Project form = Form();
    Typist slow;
    {
        const Designer designer;
        TypeFormInformation(slow, form);
        TypeQuestions(slow, form);
        TypeTheRest(slow, form);
        ASSERT_TRUE(slow.Run());
        ExpectQuestions(designer, form);
    }
    Typist table, quick;
    {
        QPlainTextEdit sheet;
        sheet.show();
        sheet.setFocus();
        TypeTable(table, form);
        ASSERT_TRUE(table.Run());
    }
    const Designer designer;
    TypeFormInformation(quick, form);
    quick.Key(Qt::Key_V, Qt::ControlModifier);
    TypeTheRest(quick, form);
    ASSERT_TRUE(quick.Run());
    ExpectQuestions(designer, form);

    const qsizetype keys = table.keys() + quick.keys();
    std::cout << "25 questions: " << slow.keys() << " keys and " << slow.letters()
              << " letters in the wizard; " << keys << " keys and "
              << table.letters() + quick.letters() << " letters as a table, of which "
              << quick.keys() << " keys and " << quick.letters() << " letters in the designer\n";
    EXPECT_LE(keys, 145) << "half of what it was";
    EXPECT_LE(2 * keys, slow.keys());
}

} // namespace
