// A sheet, taken as it may come from a spreadsheet or a person, and lists of items: what is
// imported keeps the rules, and is exported and imported as the same project again.

#include "exchange/item_source.h"
#include "exchange/sheet_import.h"
#include "exchange/sheet_writer.h"
#include "fuzz/require.h"
#include "model/limits.h"
#include "model/project_writer.h"

using namespace vellumo;

namespace {

void ImportAgain(const Project &project)
{
    const Result<Sheet> sheet = ReadSheet(WriteSheet(project));
    Require(bool(sheet), "an exported sheet is read");
    const SheetImport again = ImportSheet(*sheet);
    Require(again.refusals.isEmpty(), "a project that keeps the rules is imported again");
    const Result<QByteArray> before = WriteProject(project);
    const Result<QByteArray> after = WriteProject(again.project);
    Require(bool(before) == bool(after) && (!before || *before == *after), "it is the same");
}

void Import(const Sheet &sheet)
{
    const SheetImport import = ImportSheet(sheet);
    Require(import.added + import.leftOut == sheet.questions.size(), "no row is lost");
    Require(import.project.source.QuestionCount() == import.added, "questions are counted");
    Require(import.added <= questionCountLimit.most, "there are places");
    for (const QuestionRow &row : import.project.source.Questions().Rows())
        Require(row.Title.size() <= titleLimit.most && !row.ColumnName.contains(u'"') &&
                    !row.Question.contains(u'\n') && TypeNamed(row.Type),
                "the rules hold");
    if (import.refusals.isEmpty())
        ImportAgain(import.project);
    const SheetImport appended = AppendSheet(import.project, sheet);
    Require(appended.project.source.QuestionCount() == import.added + appended.added,
            "what was there stays");
}

void Take(const Result<QList<NewItem>> &items)
{
    if (!items) {
        Require(!items.error().text.isEmpty(), "a refusal has its reason");
        return;
    }
    for (const NewItem &item : *items)
        Require(!item.text.isEmpty() && !item.text.contains(u'\n'), "an item is a line");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray bytes = BytesOf(data, size);
    if (const Result<Sheet> sheet = ReadSheet(bytes))
        Import(*sheet);
    else
        Require(!sheet.error().text.isEmpty(), "a refusal has its reason");
    Take(ItemsOfText(bytes));
    Take(ItemsOfTable(bytes, QString()));
    Take(ItemsOfTable(bytes, QStringLiteral("Items")));
    return 0;
}
