// What somebody else laid into the clipboard, taken for copied questions, for a table of questions
// and for a list of items: what is added keeps the rules, and what is copied comes back.

#include "editing/copied_questions.h"
#include "editing/pasted_items.h"
#include "editing/pasted_questions.h"
#include "editing/text_table.h"
#include "fuzz/require.h"
#include "model/limits.h"

#include <algorithm>

using namespace vellumo;

namespace {

void Paste(const QList<CopiedQuestion> &questions)
{
    clsDataSource source;
    source.GetDataMember();
    const QString refused = PasteQuestions(source, questions);
    Require(source.QuestionCount() <= questionCountLimit.most, "there are places");
    Require(!refused.isEmpty() || source.QuestionCount() == questions.size(), "all or told");
    for (const QuestionRow &row : source.Questions().Rows())
        Require(row.Title.size() <= titleLimit.most && !row.ColumnName.contains(u'"') &&
                    !row.Question.contains(u'\n'),
                "the rules hold");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray bytes = BytesOf(data, size);
    if (const auto questions = ReadQuestions(bytes))
        Paste(*questions);

    const QString text = QString::fromUtf8(bytes);
    Paste(ReadQuestionTable(text));
    const QList<QStringList> table = ReadTable(text);
    Require(ReadTable(WriteTable(table)) == table, "a table comes back");

    ItemList items;
    PasteItems(items, propertyItemList, u"Checkboxes", LinesOf(text));
    Require(items.Items().size() <= pulldownLimit.most, "the list is not too long");
    for (const QString &item : items.Items())
        Require(!item.isEmpty() && !item.contains(u'\n'), "an item is a line");
    return 0;
}
