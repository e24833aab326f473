// docs/xlsform.md is held against the code: its table of types and its example are true.

#include "exchange/csv.h"
#include "exchange/form_sheet.h"
#include "exchange/sheet_import.h"
#include "model/question_types.h"

#include "support/page.h"
#include "support/print.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

/// What a cell shows: the words in marks of code as they are, LIST being the name of a list.
QString Shown(const QString &cell)
{
    return QString(cell).remove(u'`').replace(u"LIST"_s, u"ANSWER"_s);
}

SheetTable SurveyOf(const QuestionType &type)
{
    Project project = {.FormName = u"Visit"_s};
    QuestionRow row = {
        .Title = u"the title"_s, .Question = u"Q?"_s, .Type = type.name, .ColumnName = u"ANSWER"_s};
    row.Id = project.source.IssueId();
    row.Order = 1;
    project.source.Questions().Append(row);
    if (type.items)
        project.source.ReplaceItems(row.Id, {u"One"_s});
    const auto sheet = MakeFormSheet(project);
    EXPECT_TRUE(sheet) << sheet.error().text.toStdString();
    return sheet ? sheet->tables[0] : SheetTable();
}

QString Cell(const SheetTable &table, const QString &heading)
{
    return table.rows.value(0).value(table.headings.indexOf(heading));
}

} // namespace

TEST(FormSheetPage, HasTheTypesOfQuestions)
{
    const QList<QStringList> rows = TableOf(Page(u"xlsform.md"_s), u"| type | `type` |"_s);
    ASSERT_EQ(rows.size(), std::ssize(questionTypes));
    for (const QStringList &row : rows) {
        SCOPED_TRACE(row[0].toStdString());
        const QuestionType *type = TypeNamed(row[0]);
        ASSERT_TRUE(type);
        const SheetTable survey = SurveyOf(*type);
        EXPECT_EQ(Cell(survey, u"type"_s), Shown(row[1]));
        EXPECT_EQ(Cell(survey, u"appearance"_s), Shown(row[2]));
        EXPECT_TRUE(Cell(survey, u"hint"_s).startsWith(u"the title"_s));
        EXPECT_EQ(Cell(survey, u"hint"_s) == u"the title"_s, row[3] == u"the title"_s);
    }
}

TEST(FormSheetPage, HasTheSheetsOfAForm)
{
    const QStringList projects = ExamplesIn(Page(u"csv.md"_s), u"csv"_s);
    const QStringList sheets = ExamplesIn(Page(u"xlsform.md"_s), u"csv"_s);
    ASSERT_EQ(sheets.size(), 3);
    const Result<Sheet> project = ReadSheet(projects[0].toUtf8());
    ASSERT_TRUE(project) << project.error().text.toStdString();
    const auto form = MakeFormSheet(ImportSheet(*project).project);
    ASSERT_TRUE(form) << form.error().text.toStdString();
    for (int index = 0; index < 3; ++index) {
        const SheetTable &table = form->tables[index];
        QByteArray written = WriteCsv(QList<QStringList>{table.headings} + table.rows);
        EXPECT_EQ(QString::fromUtf8(written.replace("\r\n", "\n")), sheets[index])
            << table.name.toStdString();
    }
}
