#include "cli/vellumo.h"

#include "cli/create_command.h"
#include "cli/project_commands.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

struct Command {
    QLatin1StringView name;
    AllowedOptions allowed;
    Exit (*run)(const CommandLine &line, const Console &console);
};

constexpr Command commands[] = {
    {"create"_L1, {.identifier = true, .severalProjects = true}, CreateDatabases},
    {"rewrite"_L1, {}, RewriteProject},
    {"script"_L1, {.identifier = true}, WriteScript},
};

constexpr QLatin1StringView help =
    R"(vellumo turns projects of Vellumo Designer into Palm databases, without a window.

  vellumo create PROJECT... [-o DIR] [--guid HEX32]
      Makes the database of each project and prints its path. DIR is "My Vellumo"
      in the documents folder unless given.
  vellumo script PROJECT [-o FILE] [--guid HEX32]
      Writes the resource script alone, to standard output unless FILE is given.
  vellumo rewrite PROJECT [-o FILE]
      Reads a project and saves it as the designer does, in its place unless FILE
      is given.
  vellumo --help | --version

HEX32 is the identifier to build in, 32 hexadecimal digits; a new one is made
unless given. Words after -- are projects, whatever they begin with.

Exit status: 0 fine; 1 the project does not pass; 2 wrong use; 3 input unreadable
or not a project; 4 a tool missing or failed; 5 output could not be written.)"_L1;

Exit RefuseUse(const Console &console, const QString &reason)
{
    console.Complain("vellumo: "_L1 + reason);
    console.Complain(u"Try 'vellumo --help'."_s);
    return Exit::WrongUse;
}

/// Whether a word stands before "--", where it would be an option.
bool HasOption(const QStringList &words, const QString &option)
{
    const auto end = std::ranges::find(words, u"--"_s);
    return std::find(words.begin(), end, option) != end;
}

Exit Run(const QStringList &words, const Console &console)
{
    if (words.isEmpty())
        return RefuseUse(console, u"Which command?"_s);
    if (HasOption(words, u"--help"_s)) {
        console.Tell(help);
        return Exit::Fine;
    }
    if (HasOption(words, u"--version"_s)) {
        console.Tell(u"vellumo " VELLUMO_VERSION ""_s);
        return Exit::Fine;
    }
    const auto command = std::ranges::find_if(
        commands, [&words](const Command &known) { return words.first() == known.name; });
    if (command == std::end(commands))
        return RefuseUse(console, u"There is no command '%1'."_s.arg(words.first()));
    const Result<CommandLine> line = ParseCommandLine(words.sliced(1), command->allowed);
    if (!line)
        return RefuseUse(console, line.error().text);
    return command->run(*line, console);
}

} // namespace

int RunVellumo(const QStringList &words, const Console &console)
{
    const Exit exit = Run(words, console);
    if (!console.out.flush()) {
        console.Complain(u"vellumo: Standard output cannot be written."_s);
        return static_cast<int>(std::max(exit, Exit::NotWritten));
    }
    return static_cast<int>(exit);
}
