#include "cli/diff_command.h"

#include "cli/inputs.h"
#include "exchange/difference_text.h"

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

constexpr auto nullDevice = "/dev/null"_L1;

/// An input, and what it is called.
struct Side {
    QString input, name;
};

struct Sides {
    Side before, after;
};

using Differences = std::vector<Difference>;

Result<Project> ReadSide(const Side &side, const Console &console)
{
    if (side.input == nullDevice)
        return Project();
    return ReadProjectInput(side.input, console);
}

Result<Differences> DifferencesOf(const Sides &sides, const Console &console)
{
    const Result<Project> before = ReadSide(sides.before, console);
    if (!before)
        return before.error();
    const Result<Project> after = ReadSide(sides.after, console);
    if (!after)
        return after.error();
    return DifferencesOf(*before, *after);
}

/// Of each kind, for programs; never changes.
QLatin1StringView CodeOf(DifferenceKind kind)
{
    switch (kind) {
    case DifferenceKind::FormChanged:
        return "form-changed"_L1;
    case DifferenceKind::QuestionRemoved:
        return "question-removed"_L1;
    case DifferenceKind::QuestionAdded:
        return "question-added"_L1;
    case DifferenceKind::QuestionMoved:
        return "question-moved"_L1;
    case DifferenceKind::QuestionChanged:
        return "question-changed"_L1;
    case DifferenceKind::ItemRemoved:
        return "item-removed"_L1;
    case DifferenceKind::ItemAdded:
        return "item-added"_L1;
    case DifferenceKind::ItemMoved:
        break;
    }
    return "item-moved"_L1;
}

Notice NoticeOf(const Difference &difference, const QString &name)
{
    Notice notice = {.kind = "finding"_L1,
                     .code = CodeOf(difference.kind),
                     .text = Heading(difference),
                     .file = name,
                     .step = StepOf({difference.field, difference.question}),
                     .question = difference.question,
                     .field = difference.field,
                     .more = {{u"before"_s, difference.before}, {u"after"_s, difference.after}}};
    if (difference.question > 0)
        notice.more.insert(u"columnName"_s, difference.columnName);
    if (difference.itemBefore > 0)
        notice.more.insert(u"itemBefore"_s, difference.itemBefore);
    if (difference.itemAfter > 0)
        notice.more.insert(u"itemAfter"_s, difference.itemAfter);
    return notice;
}

void WriteLines(const QStringList &lines, const Console &console)
{
    for (const QString &line : lines)
        console.Write(Visible(line).toLocal8Bit() + '\n');
}

void WriteBelowNames(const QStringList &lines, const Sides &sides, const Console &console)
{
    WriteLines({"--- "_L1 + sides.before.name, "+++ "_L1 + sides.after.name}, console);
    WriteLines(lines, console);
}

Ending Compare(const Sides &sides, const Console &console)
{
    const Result<Differences> differences = DifferencesOf(sides, console);
    if (!differences) {
        Refuse(console, Exit::Unreadable, differences.error());
        return Exit::WrongUse;
    }
    if (differences->empty())
        return {Exit::Fine, "equal"_L1, u"There is no difference."_s};
    if (!console.json)
        WriteBelowNames(DifferenceLines(*differences), sides, console);
    else
        for (const Difference &difference : *differences)
            console.Tell(NoticeOf(difference, sides.after.name));
    return {Exit::NotPassed, "different"_L1, u"There are differences."_s};
}

/// A side that does not exist has the null device's name for git, too.
Side GitSide(const QString &input, QLatin1StringView folder, const QString &path)
{
    return {input, input == nullDevice ? input : folder + path};
}

/// Git names the path alone where it is not merged. Else file, object and mode follow as they were
/// and as they are and, where the path is another now, that and words about it.
Exit TellGit(const QStringList &names, const Console &console)
{
    if (names.size() == 1) {
        WriteLines({"* Unmerged path "_L1 + names[0]}, console);
        return Exit::Fine;
    }
    if (names.size() != 7 && names.size() != 9)
        return RefuseUse(console, u"Git gives an external diff one name, seven or nine."_s);
    const Sides sides = {GitSide(names[1], "a/"_L1, names[0]),
                         GitSide(names[4], "b/"_L1, names.value(7, names[0]))};
    const Result<Differences> differences = DifferencesOf(sides, console);
    if (!differences)
        WriteBelowNames({"@@ "_L1 + Describe(differences.error()) + " @@"_L1}, sides, console);
    else if (!differences->empty())
        WriteBelowNames(DifferenceLines(*differences), sides, console);
    return Exit::Fine;
}

} // namespace

Exit TellDifferences(const CommandLine &line, const Console &console)
{
    const QStringList &names = line.inputs;
    if (line.Has(Option::Git) && console.json)
        return RefuseUse(console, u"Git wants no objects: --git or --json."_s);
    if (line.Has(Option::Git))
        return TellGit(names, console);
    if (names.size() != 2)
        return RefuseUse(console, u"Differences are those of two projects: please name both."_s);
    const Sides sides = {{names[0], InputName(names[0])}, {names[1], InputName(names[1])}};
    const Ending ending = Compare(sides, console);
    Tell(ending, sides.after.name, console);
    return ending.exit;
}

} // namespace vellumo
