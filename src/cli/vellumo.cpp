#include "cli/vellumo.h"

#include "cli/commands.h"
#include "cli/near_miss.h"
#include "cli/option_words.h"
#include "cli/word_hints.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

/// Refuses words that are not understood.
Exit RefuseWords(const Console &console, const QString &reason)
{
    const Exit exit = RefuseUse(console, reason);
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

Exit RefuseCommand(const Console &console, const QString &name)
{
    const QString meant = NearMiss(name, CommandNames());
    const QString hint = meant.isEmpty() ? QString() : u" Did you mean '%1'?"_s.arg(meant);
    return RefuseWords(console, u"There is no command '%1'."_s.arg(name) + hint);
}

/// Of one command where its name is among the words, of all where none is.
Exit Help(const QStringList &words, const Console &console)
{
    const qsizetype at = CommandAt(words);
    if (at < 0) {
        console.Write(HelpText().toLatin1());
        return Exit::Fine;
    }
    const Command *command = CommandNamed(words[at]);
    if (!command)
        return RefuseCommand(console, words[at]);
    console.Write(HelpText(*command).toLatin1());
    return Exit::Fine;
}

Exit Run(QStringList words, const Console &console, const Outcome &typed)
{
    if (!typed)
        return RefuseWords(console, typed.error().text);
    if (HasOption(words, u"--version"_s) && !HasOption(words, u"--help"_s)) {
        console.Write("vellumo " VELLUMO_VERSION "\n");
        return Exit::Fine;
    }
    const qsizetype at = CommandAt(words);
    const QString name = at < 0 ? QString() : words.takeAt(at);
    if (name == "help"_L1)
        return Help(words, console);
    if (HasOption(words, u"--help"_s) || HasOption(words, u"-h"_s))
        return Help(at < 0 ? QStringList() : QStringList{name}, console);
    if (at < 0)
        return RefuseWords(console, u"Which command?"_s + HintWithoutCommand(words));
    const Command *command = CommandNamed(name);
    if (!command)
        return RefuseCommand(console, name);
    const Result<CommandLine> line = ParseCommandLine(words, command->shape);
    if (!line)
        return RefuseWords(console, line.error().text);
    return command->run(*line, console);
}

} // namespace

int RunVellumo(const QStringList &words, Console console, const Outcome &typed)
{
    // Before the words are understood, so that wrong use is told as JSON, too.
    console.json = AsksFor(words, Option::Json);
    console.quiet = AsksFor(words, Option::Quiet);
    const Exit exit = Run(words, console, typed);
    // What the stream still holds may meet a full disk only now.
    if (console.out.flush())
        return static_cast<int>(exit);
    const qsizetype at = CommandAt(words);
    const Command *command = at < 0 ? nullptr : CommandNamed(words[at]);
    console.json = false; // else the complaint would go where nothing can be written
    return static_cast<int>(
        std::max(exit, Refuse(console, command ? command->notWritten : Exit::NotWritten,
                              {u"Standard output cannot be written."_s, u"vellumo"_s})));
}

} // namespace vellumo
