#include "cli/command_line.h"

#include "cli/option_words.h"
#include "cli/word_hints.h"

#include <QCommandLineParser>
#include <QFileInfo>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

/// Without a description: --help is made from the rows.
QCommandLineOption ParserOption(const OptionRow &row)
{
    QStringList names = {row.name};
    if (!row.letter.isEmpty())
        names.prepend(row.letter);
    return {names, {}, row.valueName};
}

QString HintFor(const QStringList &words, const QCommandLineParser &parser, Options taken)
{
    if (QString hint = HintOfNames(words); !hint.isEmpty())
        return hint;
    QStringList names = {u"help"_s, u"version"_s};
    for (const OptionRow &row : OptionRows())
        if (taken.testFlag(row.option))
            names += row.name;
    for (const QString &unknown : parser.unknownOptionNames())
        if (QString hint = HintOfOption(unknown, names); !hint.isEmpty())
            return hint;
    return {};
}

/// The word of options and a value that is the name of a file, too; empty = there is none.
QString AmbiguousWord(const QStringList &words)
{
    for (const qsizetype place : PlacesOfWords(words)) {
        const QString &word = words[place];
        const qsizetype letters = LettersOf(word).size();
        if (letters > 0 && word.size() > 1 + letters && QFileInfo::exists(word))
            return word;
    }
    return {};
}

/// An option as it is most shortly typed.
QString Typed(const OptionRow &row)
{
    return row.letter.isEmpty() ? "--"_L1 + row.name : "-"_L1 + row.letter;
}

/// The value of an option that is given, as commands use it.
Result<QString> ValueOf(const OptionRow &row, const QCommandLineParser &parser)
{
    const QStringList values = parser.values(row.name);
    if (values.size() > 1)
        return Error{u"%1 is given more than once."_s.arg(Typed(row))};
    const QString value = values.value(0);
    return row.check ? row.check(value) : value;
}

Result<CommandLine> Checked(const CommandLine &line, const CommandShape &shape,
                            const QStringList &words)
{
    // "-order.vmp" was read as an output of the name "rder.vmp".
    if (line.inputs.size() < shape.fewestInputs)
        return Error{shape.whichInput + HintOfNames(words)};
    if (line.inputs.size() > shape.mostInputs)
        return Error{u"'%1' is one name too many."_s.arg(line.inputs[shape.mostInputs])};
    if (line.inputs.contains(QString()))
        return Error{u"An input's name is empty."_s};
    if (line.inputs.count(u"-"_s) > 1)
        return Error{u"Standard input, '-', can be read once only."_s};
    return line;
}

} // namespace

Result<CommandLine> ParseCommandLine(const QStringList &words, const CommandShape &shape)
{
    const Options taken = shape.options | everywhere;
    QCommandLineParser parser;
    for (const OptionRow &row : OptionRows())
        if (taken.testFlag(row.option))
            parser.addOption(ParserOption(row));
    // The parser takes the first word for the program's name.
    if (!parser.parse(QStringList{u"vellumo"_s} + words))
        return Error{parser.errorText() + HintFor(words, parser, taken)};

    // "-order.vmp" would be an output of the name "rder.vmp".
    if (const QString word = AmbiguousWord(words); !word.isEmpty())
        return Error{u"'%1' is a file, and would be taken for options."_s.arg(word) +
                     HintOfNames({word})};

    CommandLine line = {.inputs = parser.positionalArguments()};
    for (const OptionRow &row : OptionRows()) {
        if (!taken.testFlag(row.option) || !parser.isSet(row.name))
            continue;
        const Result<QString> value = ValueOf(row, parser);
        if (!value)
            return value.error();
        line.options.insert(row.option, *value);
    }
    return Checked(line, shape, words);
}

} // namespace vellumo
