#include "cli/items_command.h"

#include "cli/changed_project.h"
#include "cli/inputs.h"
#include "cli/outputs.h"
#include "cli/refusals.h"
#include "editing/wizard_rules.h"
#include "exchange/csv_text.h"
#include "exchange/item_source.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

/// What is missing or makes no sense among the words; empty = nothing.
QString ObjectionTo(const CommandLine &line)
{
    if (!line.Has(Option::Question))
        return u"Items of which question? Please name it with --question."_s;
    if (!line.Has(Option::From))
        return u"Items from where? Please name a file with --from."_s;
    return {};
}

RowsAre KindOf(const CommandLine &line)
{
    const QString from = line.Value(Option::From);
    const bool isTable = line.Has(Option::Column) ||
                         from.endsWith(".csv"_L1, Qt::CaseInsensitive) ||
                         from.endsWith(".tsv"_L1, Qt::CaseInsensitive);
    return isTable ? RowsAre::RowsOfTable : RowsAre::LinesOfText;
}

Result<QList<NewItem>> ReadItems(const CommandLine &line, const Console &console)
{
    const QString from = line.Value(Option::From);
    const Result<QByteArray> bytes = ReadInput(from, sheetLimit, console);
    if (!bytes)
        return bytes.error();
    Result<QList<NewItem>> items = KindOf(line) == RowsAre::RowsOfTable
                                       ? ItemsOfTable(*bytes, line.Value(Option::Column))
                                       : ItemsOfText(*bytes);
    if (!items)
        return Error{items.error().text, InputName(from), items.error().line};
    return items;
}

struct NumberedQuestion {
    QuestionRow row;
    int number; ///< position from 1
};

/// The question at this place or of this column name.
Result<NumberedQuestion> QuestionCalled(const QString &name, const clsDataSource &source)
{
    const QList<QuestionRow> &rows = source.Questions().Rows();
    bool isNumber = false;
    const qsizetype place = name.toInt(&isNumber);
    if (isNumber && place >= 1 && place <= rows.size())
        return NumberedQuestion{rows[place - 1], int(place)};
    const auto named = std::ranges::find(rows, name, &QuestionRow::ColumnName);
    if (named == rows.end())
        return Error{u"There is no question '%1'."_s.arg(name)};
    return NumberedQuestion{*named, int(named - rows.begin()) + 1};
}

/// Why a question of these items cannot be finished; empty = it can.
QString ObjectionTo(const QStringList &items, const QString &type)
{
    Question question = {.type = type, .items = items};
    return ObjectionToFinish(5, question);
}

/// Adds what the file has to the items of a question; Fine = it can be finished with it.
Exit Fill(ItemList &items, const NumberedQuestion &question, const CommandLine &line,
          const Console &console)
{
    const QString &type = question.row.Type;
    const Result<QList<NewItem>> added = ReadItems(line, console);
    if (!added)
        return Refuse(console, Exit::Unreadable, added.error());
    const QString from = InputName(line.Value(Option::From));
    QList<Refusal> refusals = AddItems(items, *TypeNamed(type)->items, *added);
    for (Refusal &refusal : refusals)
        refusal.question = question.number;
    if (!MayWrite(refusals, KindOf(line), from, line, console))
        return Exit::NotPassed;
    if (const QString objection = ObjectionTo(items.Items(), type); !objection.isEmpty())
        return Refuse(console, Exit::NotPassed, {objection, from});
    return Exit::Fine;
}

Ending SetItemsOf(const NumberedQuestion &question, Project &project, const CommandLine &line,
                  const Console &console)
{
    ItemList items;
    if (line.Has(Option::Append))
        items.SetItems(project.source.ItemsOf(question.row.Id));
    const qsizetype before = items.Items().size();
    if (const Exit filled = Fill(items, question, line, console); filled != Exit::Fine)
        return filled;
    const qsizetype count = items.Items().size() - before;
    if (line.Has(Option::Sort))
        items.Sort();
    project.source.ReplaceItems(question.row.Id, items.Items());

    const QString input = line.inputs.first(), target = line.Value(Option::Output, input);
    const Ending ending = DeliverProject(project, InputName(input), target, "items"_L1, console);
    return Said(ending, count == 1 ? u"1 item was added."_s : u"%1 items were added."_s.arg(count),
                {{u"added"_s, count}}, target, console);
}

Ending SetItemsIn(const QString &input, const CommandLine &line, const Console &console)
{
    Result<Project> project = ReadProjectInput(input, console);
    if (!project)
        return Refuse(console, Exit::Unreadable, project.error());
    const Result<NumberedQuestion> question =
        QuestionCalled(line.Value(Option::Question), project->source);
    if (!question)
        return Refuse(console, Exit::WrongUse, {Visible(question.error().text), InputName(input)});
    if (!HasItems(question->row.Type))
        return Refuse(
            console, Exit::WrongUse,
            {u"A question of the type '%1' has no items."_s.arg(Visible(question->row.Type)),
             InputName(input)});
    return SetItemsOf(*question, *project, line, console);
}

} // namespace

Exit SetItems(const CommandLine &line, const Console &console)
{
    const QString input = line.inputs.first();
    if (const QString objection = ObjectionTo(line); !objection.isEmpty())
        return RefuseUse(console, objection);
    if (RefusedAsSecond(input, line.Value(Option::From), console))
        return Exit::WrongUse;
    if (const Exit checked = CheckTarget(input, line, console); checked != Exit::Fine)
        return checked;
    const QString target = line.Value(Option::Output, input);
    if (const Exit checked = CheckIsNoInput(target, {line.Value(Option::From)}, console);
        checked != Exit::Fine)
        return checked;
    return ForInput(line, console,
                    [&](const QString &each) { return SetItemsIn(each, line, console); });
}

} // namespace vellumo
