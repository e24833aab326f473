#include "cli/commands.h"
#include "cli/manual.h"

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

/// The first sentence of a help, on one line.
QString Brief(const QString &help)
{
    return QString(help).replace(u'\n', u' ').section(u". "_s, 0, 0).section(u';', 0, 0).trimmed();
}

/// Whether the value of an option is the name of a file or folder.
bool TakesFile(const OptionRow &row)
{
    const QString value = row.valueName;
    return row.option != Option::Column && (value == "NAME"_L1 || value == "PATH"_L1 ||
                                            value == "PROJECT"_L1 || value == "FILE"_L1);
}

/// What the value of the command's option may be, between blanks; empty where it is none of a few.
QString Choices(const Command &command, const OptionRow &row)
{
    const bool hasFew = row.option == Option::From && command.sources != nullptr;
    return hasFew ? command.sources().join(u' ') : QString();
}

QStringList Words(const OptionRow &row)
{
    QStringList words = {"--"_L1 + row.name};
    if (!row.letter.isEmpty())
        words.prepend(u'-' + row.letter);
    return words;
}

QList<OptionRow> OptionsOf(const Command &command)
{
    QList<OptionRow> rows;
    for (const OptionRow &row : OptionRows())
        if ((command.shape.options | everywhere).testFlag(row.option))
            rows += row;
    return rows;
}

/// The words of options whose values are, or are not, names of files.
QStringList WordsWithValues(bool files)
{
    QStringList words;
    for (const OptionRow &row : OptionRows())
        if (!row.valueName.isEmpty() && TakesFile(row) == files)
            words += Words(row);
    return words;
}

/// Of all commands, since options may stand before the command.
QStringList AllWords()
{
    QStringList words;
    for (const OptionRow &row : OptionRows())
        words += Words(row);
    return words;
}

QString BashChoices(const Command &command)
{
    QString cases;
    for (const OptionRow &row : OptionsOf(command))
        if (const QString choices = Choices(command, row); !choices.isEmpty())
            for (const QString &word : Words(row))
                cases += u"    %1:%2) words='%3' ;;\n"_s.arg(command.name, word, choices);
    return cases;
}

QString BashCase(const Command &command)
{
    QStringList words;
    for (const OptionRow &row : OptionsOf(command))
        words += Words(row);
    return u"        %1:-*) words='%2' ;;\n"_s.arg(command.name, words.join(u' '));
}

constexpr auto bash = R"(# Completion of vellumo for bash.
_vellumo()
{
    local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]}
    local command='' words='' word
    # bash takes what stands behind an equals sign for a word of its own, and so the sign.
    [ "$current" != = ] || current=
    [ "$previous" != = ] || previous=${COMP_WORDS[COMP_CWORD - 2]}
    COMPREPLY=()
    for word in "${COMP_WORDS[@]:1:COMP_CWORD-1}"; do
        case $word in
        %1)
            command=$word
            break
            ;;
        esac
    done
    case $command:$previous in
%2    *:%3) return ;;
    *:%4) ;;
    *)
        case $command:$current in
        :-*) words='--help --version %7' ;;
        :* | help:*) words='%5' ;;
%6        esac
        ;;
    esac
    if [ -n "$words" ]; then
        mapfile -t COMPREPLY < <(compgen -W "$words" -- "$current")
    else
        compopt -o filenames
        mapfile -t COMPREPLY < <(compgen -f -- "$current")
    fi
}
complete -F _vellumo vellumo
)"_L1;

/// In single quotes of zsh, where a colon ends the name.
QString ZshText(const QString &text)
{
    return QString(text)
        .replace(u"'"_s, u"'\\''"_s)
        .replace(u":"_s, u"\\:"_s)
        .replace(u'[', u"\\["_s)
        .replace(u']', u"\\]"_s);
}

QString ZshValue(const Command &command, const OptionRow &row)
{
    if (row.valueName.isEmpty())
        return {};
    QString values = TakesFile(row) ? u"_files"_s : u" "_s;
    if (const QString choices = Choices(command, row); !choices.isEmpty())
        values = u'(' + choices + u')';
    return u":%1:%2"_s.arg(QString(row.valueName).toLower(), values);
}

/// What a line of _arguments takes for an option; a value may stand behind an equals sign, too.
QString ZshOption(const Command &command, const OptionRow &row)
{
    QString lines;
    for (const QString &word : Words(row)) {
        const bool takesSign = !row.valueName.isEmpty() && word.startsWith("--"_L1);
        lines += u" \\\n                '%1%2[%3]%4'"_s.arg(
            word, takesSign ? u"="_s : QString(), ZshText(Brief(row.help)), ZshValue(command, row));
    }
    return lines;
}

QString ZshOptions(const Command &command)
{
    QString options;
    for (const OptionRow &row : OptionsOf(command))
        options += ZshOption(command, row);
    return options;
}

/// Of all commands, since options may stand before the command.
QString ZshOptions()
{
    QString options;
    for (const OptionRow &row : OptionRows())
        options += ZshOption({}, row);
    return options;
}

/// In single quotes of fish.
QString FishText(const QString &text)
{
    return QString(text).replace(u'\\', u"\\\\"_s).replace(u"'"_s, u"\\'"_s);
}

QString FishOption(const QString &condition, const Command &command, const OptionRow &row)
{
    QString line = u"complete -c vellumo -n '%1' -l %2"_s.arg(condition, row.name);
    if (!row.letter.isEmpty())
        line += " -s "_L1 + row.letter;
    if (const QString choices = Choices(command, row); !choices.isEmpty())
        line += u" -x -a '%1'"_s.arg(choices);
    else if (!row.valueName.isEmpty())
        line += TakesFile(row) ? " -r -F"_L1 : " -x"_L1;
    return line + u" -d '%1'\n"_s.arg(FishText(Brief(row.help)));
}

} // namespace

QByteArray BashCompletion()
{
    const QStringList names = CommandNames() + QStringList{u"help"_s};
    QString choices;
    QString cases;
    for (const Command &command : Commands()) {
        choices += BashChoices(command);
        cases += BashCase(command);
    }
    return QString(bash)
        .arg(names.join(" | "_L1), choices, WordsWithValues(false).join(" | *:"_L1),
             WordsWithValues(true).join(" | *:"_L1), names.join(u' '), cases, AllWords().join(u' '))
        .toUtf8();
}

QByteArray ZshCompletion()
{
    QString text = u"#compdef vellumo\n# Completion of vellumo for zsh.\n_vellumo()\n{\n"
                   "    local -a commands\n    commands=(\n"_s;
    for (const Command &command : Commands())
        text += u"        '%1:%2'\n"_s.arg(command.name, ZshText(Brief(command.help)));
    text +=
        u"        'help:Tells of a command'\n    )\n"
        "    _arguments -C -A '-*' '--help[tells all commands]' '--version[tells the version]'"_s +
        ZshOptions() +
        u" \\\n        '1:command:->command' '*::name:->names'\n"
        "    case $state in\n    command) _describe command commands ;;\n    names)\n"
        "        case $words[1] in\n        help) _describe command commands ;;\n"_s;
    for (const Command &command : Commands())
        text += u"        %1)\n            _arguments%2 \\\n                '*:name:_files'\n"
                "            ;;\n"_s.arg(command.name, ZshOptions(command));
    text += "        esac\n        ;;\n    esac\n}\n_vellumo \"$@\"\n"_L1;
    return text.toUtf8();
}

QByteArray FishCompletion()
{
    QString text =
        u"# Completion of vellumo for fish.\n"
        "complete -c vellumo -n __fish_use_subcommand -f -l help -d 'Tells all commands'\n"
        "complete -c vellumo -n __fish_use_subcommand -f -l version -d 'Tells the version'\n"
        "complete -c vellumo -n __fish_use_subcommand -f -a help -d 'Tells of a command'\n"
        "complete -c vellumo -n '__fish_seen_subcommand_from help' -f -a '%1'\n"_s.arg(
            CommandNames().join(u' '));
    for (const OptionRow &row : OptionRows())
        text += FishOption(u"__fish_use_subcommand"_s, {}, row);
    for (const Command &command : Commands()) {
        text += u"complete -c vellumo -n __fish_use_subcommand -f -a %1 -d '%2'\n"_s.arg(
            command.name, FishText(Brief(command.help)));
        for (const OptionRow &row : OptionsOf(command))
            text += FishOption("__fish_seen_subcommand_from "_L1 + command.name, command, row);
    }
    return text.toUtf8();
}

} // namespace vellumo
