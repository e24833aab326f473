#include "cli/command_line.h"

#include "cli/near_miss.h"

#include <QCommandLineParser>
#include <QFileInfo>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

// Without descriptions: --help is made from the rows of the commands.
const QCommandLineOption output = {{u"o"_s, u"output"_s}, {}, u"NAME"_s};
const QCommandLineOption identifier = {u"guid"_s, {}, u"HEX32"_s};
const QCommandLineOption timeout = {u"timeout"_s, {}, u"SECONDS"_s};
const QCommandLineOption json(u"json"_s);

constexpr int longestTimeout = 24 * 60 * 60; // in milliseconds still an int

bool IsOption(const QString &word)
{
    return word.startsWith(u'-') && word.size() > 1;
}

/// Whether the next word belongs to this one.
bool TakesNext(const QString &word)
{
    for (const QCommandLineOption &option : {output, identifier, timeout})
        for (const QString &name : option.names())
            if (word == (name.size() == 1 ? u'-' + name : u"--"_s + name))
                return true;
    return false;
}

bool LooksLikeAName(const QString &word)
{
    return word.endsWith(".vmp"_L1, Qt::CaseInsensitive) ||
           word.endsWith(".prc"_L1, Qt::CaseInsensitive) || QFileInfo::exists(word);
}

/// What helps somebody whose words are not understood, to stand behind what is wrong with them.
QString HintFor(const QStringList &words, const QCommandLineParser &parser)
{
    for (const QString &word : words) {
        if (word == "--"_L1)
            break;
        if (IsOption(word) && LooksLikeAName(word))
            return u" If '%1' is a name, put '--' before it."_s.arg(word);
    }
    for (const QString &unknown : parser.unknownOptionNames())
        if (const QString meant = NearMiss(unknown, {u"json"_s, u"guid"_s, u"timeout"_s,
                                                     u"output"_s, u"help"_s, u"version"_s});
            !meant.isEmpty())
            return u" Did you mean '--%1'?"_s.arg(meant);
    return {};
}

Result<CommandLine> Checked(const CommandLine &line, const CommandShape &shape)
{
    if (line.inputs.isEmpty())
        return Error{shape.whichInput};
    if (line.inputs.size() > shape.mostInputs)
        return Error{u"'%1' is one name too many."_s.arg(line.inputs[shape.mostInputs])};
    if (line.inputs.contains(QString()))
        return Error{u"An input's name is empty."_s};
    if (line.inputs.count(u"-"_s) > 1)
        return Error{u"Standard input, '-', can be read once only."_s};
    return line;
}

} // namespace

qsizetype CommandAt(const QStringList &words)
{
    for (qsizetype i = 0; i < words.size() && words[i] != "--"_L1; ++i) {
        if (!IsOption(words[i]))
            return i;
        if (TakesNext(words[i]))
            ++i;
    }
    return -1;
}

Result<CommandLine> ParseCommandLine(const QStringList &words, const CommandShape &shape)
{
    QCommandLineParser parser;
    parser.addOption(json);
    if (shape.output)
        parser.addOption(output);
    if (shape.identifier)
        parser.addOption(identifier);
    if (shape.timeout)
        parser.addOption(timeout);
    // The parser takes the first word for the program's name.
    if (!parser.parse(QStringList{u"vellumo"_s} + words))
        return Error{parser.errorText() + HintFor(words, parser)};

    CommandLine line = {.inputs = parser.positionalArguments(), .json = parser.isSet(json)};
    if (shape.output && parser.isSet(output)) {
        line.output = parser.value(output);
        if (line.output.isEmpty())
            return Error{u"The name after -o is empty."_s};
    }
    if (shape.identifier && parser.isSet(identifier)) {
        static const QRegularExpression digits(uR"(\A[0-9A-F]{32}\z)"_s);
        line.identifier = parser.value(identifier).toUpper();
        if (!digits.match(line.identifier).hasMatch())
            return Error{u"The identifier of --guid must be 32 hexadecimal digits."_s};
    }
    if (shape.timeout && parser.isSet(timeout)) {
        line.timeoutSeconds = parser.value(timeout).toInt(); // 0 where it is no number
        if (line.timeoutSeconds < 1 || line.timeoutSeconds > longestTimeout)
            return Error{u"The time of --timeout must be 1 to %1 seconds."_s.arg(longestTimeout)};
    }
    return Checked(line, shape);
}

} // namespace vellumo
