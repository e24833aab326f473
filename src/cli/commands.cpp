#include "cli/commands.h"

#include "cli/columns_command.h"
#include "cli/create_command.h"
#include "cli/diff_command.h"
#include "cli/examples.h"
#include "cli/export_command.h"
#include "cli/import_command.h"
#include "cli/info_command.h"
#include "cli/items_command.h"
#include "cli/merge_command.h"
#include "cli/new_command.h"
#include "cli/project_commands.h"
#include "cli/recover_command.h"
#include "cli/review_command.h"
#include "cli/screens_command.h"
#include "cli/verify_command.h"

#include <algorithm>
#include <limits>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

constexpr int anyNumber = std::numeric_limits<int>::max();
constexpr auto whichProject = "Which project? Please name a .vmp file."_L1;
constexpr auto whichProjects = "Which projects? Please name two .vmp files."_L1;
constexpr auto whichDatabase = "Which database? Please name a .prc file."_L1;
constexpr auto whichSheet = "Which sheet? Please name a .csv file."_L1;
constexpr auto whichFile = "Which file? Please name a .vmp or .prc file."_L1;

constexpr Command commands[] = {
    {.name = "review"_L1,
     .synopsis = "PROJECT... [--strict]"_L1,
     .help = "Tells what is wrong with each project, as the designer's error list has it,\n"
             "and then what would not arrive on the handheld as typed or fit its screen.\n"_L1,
     .shape = {.mostInputs = anyNumber, .whichInput = whichProject, .options = Option::Strict},
     .run = ReviewProjects},
    {.name = "create"_L1,
     .synopsis = "PROJECT... [-o DIR|FILE.prc] [--guid HEX32] [--strict]\n"
                 "[--pilrc PATH] [--build-prc PATH] [--timeout SECONDS]"_L1,
     .help = "Reviews each project, makes its database, reads that back and prints its\n"
             "path. DIR is \"My Vellumo\" in the documents folder unless given; it is made\n"
             "where its name ends in a slash. FILE.prc is for a single project, and so is\n"
             "-, standard output.\n"_L1,
     .shape = {.mostInputs = anyNumber,
               .whichInput = whichProject,
               .options = Option::Output | Option::Strict | Option::Identifier | making},
     .run = CreateDatabases},
    {.name = "verify"_L1,
     .synopsis = "DATABASE [PROJECT]"_L1,
     .help = "Reads a database back and, with a project, holds it against that.\n"_L1,
     .shape = {.mostInputs = 2, .whichInput = whichDatabase},
     .run = VerifyDatabase},
    {.name = "info"_L1,
     .synopsis = "PROJECT|DATABASE..."_L1,
     .help = "Tells what is in each; with --json, all texts of its questions too.\n"_L1,
     .shape = {.mostInputs = anyNumber, .whichInput = whichFile},
     .run = TellInfo},
    {.name = "screens"_L1,
     .synopsis = "PROJECT|DATABASE... [-o FILE]\n"
                 "[--pilrc PATH] [--build-prc PATH] [--timeout SECONDS]"_L1,
     .help = "Draws every form as the handheld shows it, on a page of HTML to look at and\n"
             "to print, to standard output unless FILE is given.\n"_L1,
     .shape = {.mostInputs = anyNumber,
               .whichInput = whichFile,
               .options = Option::Output | making},
     .run = DrawScreens},
    {.name = "script"_L1,
     .synopsis = "PROJECT [-o FILE] [--guid HEX32]"_L1,
     .help = "Writes the resource script alone, to standard output unless FILE is given.\n"_L1,
     .shape = {.mostInputs = 1,
               .whichInput = whichProject,
               .options = Option::Output | Option::Identifier},
     .run = WriteScript},
    {.name = "rewrite"_L1,
     .synopsis = "PROJECT [-o FILE]"_L1,
     .help = "Reads a project and saves it as the designer does, in its place unless FILE\n"
             "is given.\n"_L1,
     .shape = {.mostInputs = 1, .whichInput = whichProject, .options = Option::Output},
     .run = RewriteProject},
    {.name = "recover"_L1,
     .synopsis = "DATABASE [-o PROJECT]\n"
                 "[--pilrc PATH] [--build-prc PATH] [--timeout SECONDS]"_L1,
     .help = "Writes the project that a database holds, to standard output unless PROJECT\n"
             "is given, and tells in what its database would be another one.\n"_L1,
     .shape = {.mostInputs = 1, .whichInput = whichDatabase, .options = Option::Output | making},
     .run = RecoverDatabase},
    {.name = "export"_L1,
     .synopsis = "PROJECT --csv [-o FILE] | --xlsform [--lossy] -o FILE.xlsx"_L1,
     .help = "Writes a project as a table for spreadsheets, to standard output unless FILE\n"
             "is given, or as a workbook that the form tools of phones take.\n"_L1,
     .shape = {.whichInput = whichProject,
               .options = Option::Csv | Option::FormSheet | Option::Lossy | Option::Output},
     .run = ExportProject},
    {.name = "import"_L1,
     .synopsis = "FILE.csv [--into PROJECT] [--skip] [-o PROJECT]"_L1,
     .help = "Makes a project of such a table, to standard output unless PROJECT is given,\n"
             "or appends its questions to a project, in its place unless -o is given.\n"
             "Nothing is written where a cell breaks a rule.\n"_L1,
     .shape = {.whichInput = whichSheet, .options = Option::Into | Option::Skip | Option::Output},
     .run = ImportProject},
    {.name = "items"_L1,
     .synopsis = "PROJECT --question N|COLUMN --from FILE [--column NAME] [--append]\n"
                 "[--sort] [--skip] [-o PROJECT]"_L1,
     .help = "Gives a question the items that a file has, and writes the project in its\n"
             "place unless -o is given. Nothing is written where an item breaks a rule.\n"_L1,
     .shape = {.whichInput = whichProject,
               .options = Option::Question | Option::From | Option::Column | Option::Append |
                          Option::Sort | Option::Skip | Option::Output},
     .run = SetItems},
    {.name = "columns"_L1,
     .synopsis = "PROJECT... [--csv | --markdown]"_L1,
     .help = "Tells of each question what its column in the collected data holds.\n"_L1,
     .shape = {.mostInputs = anyNumber,
               .whichInput = whichProject,
               .options = Option::Csv | Option::Markdown},
     .run = TellColumns},
    {.name = "diff"_L1,
     .synopsis = "BEFORE AFTER | --git NAMES..."_L1,
     .help = "Tells in what a project differs from what it was: form information, then\n"
             "question by question. The exit status is that of diff: 0 where there is no\n"
             "difference, 1 where there is one, 2 for any trouble; for git it is 0.\n"_L1,
     .shape = {.mostInputs = 9, .whichInput = whichProjects, .options = Option::Git},
     .run = TellDifferences,
     .notWritten = Exit::WrongUse},
    {.name = "merge"_L1,
     .synopsis = "PROJECT PROJECT... [-o FILE]"_L1,
     .help = "Writes the first project with the questions of the others behind its own, to\n"
             "standard output unless FILE is given. A column name that is taken gets a\n"
             "number, as that of a duplicate does.\n"_L1,
     .shape = {.fewestInputs = 2,
               .mostInputs = anyNumber,
               .whichInput = whichProjects,
               .options = Option::Output},
     .run = MergeProjects},
    {.name = "new"_L1,
     .synopsis = "NAME [--from EXAMPLE] [-o FILE]"_L1,
     .help = "Writes a new project of this name, empty or with what is in an example, to\n"
             "standard output unless FILE is given. A file that is there stays as it is.\n"_L1,
     .shape = {.mostInputs = 1,
               .whichInput = "Which name? Please give one to the new Vellsheet."_L1,
               .options = Option::From | Option::Output},
     .run = WriteNewProject,
     .sources = ExampleNames},
};

constexpr QLatin1StringView head =
    "vellumo turns projects of Vellumo Designer into Palm databases, without a window.\n\n"_L1;

constexpr QLatin1StringView tail = R"(  vellumo help [COMMAND] | --help | --version

)"_L1;

constexpr QLatin1StringView exits =
    R"(Exit status: 0 fine; 1 findings, or the project does not pass; 2 wrong use; 3 an
input is unreadable or no project, database or sheet; 4 a tool is missing or
failed; 5 an output could not be written. Of several projects each is tried, and
the highest status is returned.
)"_L1;

/// Each line of the text with six blanks in front.
QString Indented(QLatin1StringView text)
{
    QString indented;
    for (const QLatin1StringView line : text.tokenize(u'\n', Qt::SkipEmptyParts))
        indented.append("      "_L1).append(line).append(u'\n');
    return indented;
}

QString HelpOf(const Command &command)
{
    const QString start = "  vellumo %1 "_L1.arg(command.name);
    return start + QString(command.synopsis).replace(u'\n', u'\n' + QString(start.size(), u' ')) +
           u'\n' + Indented(command.help);
}

} // namespace

std::span<const Command> Commands()
{
    return commands;
}

const Command *CommandNamed(const QString &name)
{
    const auto *found = std::ranges::find(commands, name, &Command::name);
    return found == std::end(commands) ? nullptr : found;
}

QStringList CommandNames()
{
    QStringList names;
    for (const Command &command : commands)
        names += command.name;
    return names;
}

QString ExitStatuses()
{
    return exits;
}

QString HelpText()
{
    QString text = head;
    for (const Command &command : commands)
        text += HelpOf(command);
    return text + tail + OptionsHelp(~Options()) + u'\n' + exits;
}

QString HelpText(const Command &command)
{
    return HelpOf(command) + u'\n' + OptionsHelp(command.shape.options | everywhere) + u'\n' +
           exits;
}

} // namespace vellumo
