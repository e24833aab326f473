#include "cli/vellumo.h"

#include "cli/create_command.h"
#include "cli/info_command.h"
#include "cli/project_commands.h"
#include "cli/review_command.h"
#include "cli/verify_command.h"

#include <algorithm>
#include <limits>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

struct Command {
    QString name;
    CommandShape shape;
    Exit (*run)(const CommandLine &line, const Console &console);
};

constexpr int anyNumber = std::numeric_limits<int>::max();
const QString whichProject = u"Which project? Please name a .vmp file."_s;
const QString whichDatabase = u"Which database? Please name a .prc file."_s;
const QString whichFile = u"Which file? Please name a .vmp or .prc file."_s;

const Command commands[] = {
    {u"create"_s,
     {.mostInputs = anyNumber,
      .whichInput = whichProject,
      .output = true,
      .identifier = true,
      .timeout = true},
     CreateDatabases},
    {u"info"_s, {.mostInputs = 1, .whichInput = whichFile}, TellInfo},
    {u"review"_s, {.mostInputs = anyNumber, .whichInput = whichProject}, ReviewProjects},
    {u"rewrite"_s, {.mostInputs = 1, .whichInput = whichProject, .output = true}, RewriteProject},
    {u"script"_s,
     {.mostInputs = 1, .whichInput = whichProject, .output = true, .identifier = true},
     WriteScript},
    {u"verify"_s, {.mostInputs = 2, .whichInput = whichDatabase}, VerifyDatabase},
};

constexpr QLatin1StringView help =
    R"(vellumo turns projects of Vellumo Designer into Palm databases, without a window.

  vellumo review PROJECT...
      Tells what is wrong with each project, as the designer's error list has it,
      and then what would not arrive on the handheld as typed.
  vellumo create PROJECT... [-o DIR] [--guid HEX32] [--timeout SECONDS]
      Reviews each project, makes its database, reads that back and prints its
      path. DIR is "My Vellumo" in the documents folder unless given.
  vellumo verify DATABASE [PROJECT]
      Reads a database back and, with a project, holds it against that.
  vellumo info PROJECT|DATABASE
      Tells what is in it.
  vellumo script PROJECT [-o FILE] [--guid HEX32]
      Writes the resource script alone, to standard output unless FILE is given.
  vellumo rewrite PROJECT [-o FILE]
      Reads a project and saves it as the designer does, in its place unless FILE
      is given.
  vellumo --help | --version

  --guid HEX32       the identifier to build in, 32 hexadecimal digits; a new one
                     is made unless given
  --timeout SECONDS  how long each tool may take, 60 unless given
  --json             one JSON object a line for each finding, result or error
  --                 what follows are names, whatever they begin with
  -                  in place of a file: standard input or output

Exit status: 0 fine; 1 findings, or the project does not pass; 2 wrong use; 3 an
input is unreadable or no project or database; 4 a tool is missing or failed; 5 an
output could not be written. Of several projects each is tried, and the highest
status is returned.)"_L1;

Exit RefuseUse(const Console &console, const QString &reason)
{
    const Exit exit = Refuse(console, Exit::WrongUse, {reason, u"vellumo"_s});
    if (!console.json)
        console.Complain({.kind = "error"_L1, .code = {}, .text = u"Try 'vellumo --help'."_s});
    return exit;
}

/// Whether a word stands before "--", where it would be an option.
bool HasOption(const QStringList &words, const QString &option)
{
    const auto end = std::ranges::find(words, u"--"_s);
    return std::find(words.begin(), end, option) != end;
}

Exit Run(const QStringList &words, const Console &console)
{
    if (HasOption(words, u"--help"_s) || HasOption(words, u"-h"_s)) {
        console.Write(help.latin1() + QByteArray("\n"));
        return Exit::Fine;
    }
    if (HasOption(words, u"--version"_s)) {
        console.Write("vellumo " VELLUMO_VERSION "\n");
        return Exit::Fine;
    }
    if (words.isEmpty())
        return RefuseUse(console, u"Which command?"_s);
    const auto command = std::ranges::find(commands, words.first(), &Command::name);
    if (command == std::end(commands))
        return RefuseUse(console, u"There is no command '%1'."_s.arg(words.first()));
    const Result<CommandLine> line = ParseCommandLine(words.sliced(1), command->shape);
    if (!line)
        return RefuseUse(console, line.error().text);
    return command->run(*line, console);
}

} // namespace

int RunVellumo(const QStringList &words, Console console)
{
    console.json = HasOption(words, u"--json"_s);
    const Exit exit = Run(words, console);
    if (console.out.flush())
        return static_cast<int>(exit);
    console.json = false;
    return static_cast<int>(
        std::max(exit, Refuse(console, Exit::NotWritten,
                              {u"Standard output cannot be written."_s, u"vellumo"_s})));
}

} // namespace vellumo
