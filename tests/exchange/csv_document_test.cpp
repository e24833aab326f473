// The examples of docs/csv.md are what they are said to be.

#include "exchange/sheet_import.h"
#include "exchange/sheet_writer.h"
#include "support/page.h"
#include "support/print.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

/// The sheets in the document, in their order.
QStringList Examples()
{
    return ExamplesIn(Page(u"csv.md"_s), u"csv"_s);
}

SheetImport Imported(const QString &text)
{
    const Result<Sheet> sheet = ReadSheet(text.toUtf8());
    return sheet ? ImportSheet(*sheet) : SheetImport{.refusals = {{0, {}, sheet.error().text}}};
}

} // namespace

TEST(CsvDocument, TheSheetIsWhatItsProjectIsExportedAs)
{
    ASSERT_EQ(Examples().size(), 2);
    const SheetImport import = Imported(Examples()[0]);
    ASSERT_EQ(import.refusals, QList<Refusal>());
    EXPECT_EQ(import.added, 3);
    EXPECT_EQ(import.project.FormName, u"Tree survey"_s);
    EXPECT_EQ(import.project.TitleList, (QStringList{u"Tree"_s, u"Age"_s}));
    EXPECT_EQ(import.project.source.ItemsOf(4),
              (QStringList{u"Broken branches"_s, u"Mushrooms"_s}));
    // What a document cannot show: the mark, and how rows end. Cells are written with LF.
    QByteArray written = WriteSheet(import.project);
    EXPECT_TRUE(written.startsWith("\xEF\xBB\xBF"));
    EXPECT_EQ(QString::fromUtf8(written.sliced(3).replace("\r\n", "\n")), Examples()[0]);
}

TEST(CsvDocument, ThePersonsSheetIsAProject)
{
    ASSERT_EQ(Examples().size(), 2);
    const SheetImport import = Imported(Examples()[1]);
    ASSERT_EQ(import.refusals, QList<Refusal>());
    const QList<QuestionRow> &rows = import.project.source.Questions().Rows();
    ASSERT_EQ(rows.size(), 2);
    EXPECT_EQ(rows[0].Id, 1);
    EXPECT_EQ(rows[1].Id, 2);
    EXPECT_EQ(import.project.source.ItemsOf(2), (QStringList{u"Great tit"_s, u"Nuthatch"_s}));
    EXPECT_EQ(import.project.FormName, QString());
}
