#include "cli/vellumo.h"

#include "cli/commands.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

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

Exit Run(const QStringList &words, const Console &console, const Outcome &typed)
{
    if (!typed)
        return RefuseUse(console, typed.error().text);
    if (HasOption(words, u"--help"_s) || HasOption(words, u"-h"_s)) {
        console.Write(HelpText().toLatin1());
        return Exit::Fine;
    }
    if (HasOption(words, u"--version"_s)) {
        console.Write("vellumo " VELLUMO_VERSION "\n");
        return Exit::Fine;
    }
    if (words.isEmpty())
        return RefuseUse(console, u"Which command?"_s);
    const Command *command = CommandNamed(words.first());
    if (!command)
        return RefuseUse(console, u"There is no command '%1'."_s.arg(words.first()));
    const Result<CommandLine> line = ParseCommandLine(words.sliced(1), command->shape);
    if (!line)
        return RefuseUse(console, line.error().text);
    return command->run(*line, console);
}

} // namespace

int RunVellumo(const QStringList &words, Console console, const Outcome &typed)
{
    // Before the words are understood, so that wrong use is told as JSON, too.
    console.json = HasOption(words, u"--json"_s);
    const Exit exit = Run(words, console, typed);
    // What the stream still holds may meet a full disk only now.
    if (console.out.flush())
        return static_cast<int>(exit);
    console.json = false; // else the complaint would go where nothing can be written
    return static_cast<int>(
        std::max(exit, Refuse(console, Exit::NotWritten,
                              {u"Standard output cannot be written."_s, u"vellumo"_s})));
}

} // namespace vellumo
