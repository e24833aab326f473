#include "cli/command_line.h"

#include "cli/near_miss.h"

#include <QCommandLineParser>
#include <QFileInfo>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

bool IsOption(const QString &word)
{
    return word.startsWith(u'-') && word.size() > 1;
}

const OptionRow *RowOfLetter(QChar letter)
{
    const auto found = std::ranges::find_if(OptionRows(), [letter](const OptionRow &row) {
        return !row.letter.isEmpty() && letter == row.letter.front();
    });
    return found == OptionRows().end() ? nullptr : &*found;
}

/// The letters of a word such as "-qo"; what follows one that takes a value is that.
QStringView LettersOf(QStringView word)
{
    if (!IsOption(word.toString()) || word.startsWith("--"_L1))
        return {};
    const QStringView letters = word.sliced(1);
    for (qsizetype i = 0; i < letters.size(); ++i)
        if (const OptionRow *row = RowOfLetter(letters[i]); !row || !row->valueName.isEmpty())
            return letters.first(row ? i + 1 : i);
    return letters;
}

bool Asks(const QString &word, const OptionRow &row)
{
    return word == "--"_L1 + row.name ||
           (!row.letter.isEmpty() && LettersOf(word).contains(row.letter));
}

/// Whether the next word belongs to this one.
bool TakesNext(const QString &word)
{
    return std::ranges::any_of(OptionRows(), [&](const OptionRow &row) {
        return !row.valueName.isEmpty() && Asks(word, row) &&
               (word.startsWith("--"_L1) || word.endsWith(row.letter));
    });
}

bool LooksLikeAName(const QString &word)
{
    return word.endsWith(".vmp"_L1, Qt::CaseInsensitive) ||
           word.endsWith(".prc"_L1, Qt::CaseInsensitive) || QFileInfo::exists(word);
}

/// Without a description: --help is made from the rows.
QCommandLineOption ParserOption(const OptionRow &row)
{
    QStringList names = {row.name};
    if (!row.letter.isEmpty())
        names.prepend(row.letter);
    return {names, {}, row.valueName};
}

// What helps somebody whose words are not understood, to stand behind what is wrong with them.

QString HintOfNames(const QStringList &words)
{
    for (const QString &word : words) {
        if (word == "--"_L1)
            break;
        if (IsOption(word) && LooksLikeAName(word))
            return u" If '%1' is a name, put '--' before it."_s.arg(word);
    }
    return {};
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
        if (const QString meant = NearMiss(unknown, names); !meant.isEmpty())
            return u" Did you mean '--%1'?"_s.arg(meant);
    return {};
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

bool AsksFor(const QStringList &words, Option option)
{
    const auto row = std::ranges::find(OptionRows(), option, &OptionRow::option);
    for (qsizetype i = 0; i < words.size() && words[i] != "--"_L1; ++i) {
        if (Asks(words[i], *row))
            return true;
        if (TakesNext(words[i]))
            ++i;
    }
    return false;
}

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

    CommandLine line = {.inputs = parser.positionalArguments()};
    for (const OptionRow &row : OptionRows()) {
        if (!taken.testFlag(row.option) || !parser.isSet(row.name))
            continue;
        const QString value = parser.value(row.name);
        const Result<QString> checked = row.check ? row.check(value) : value;
        if (!checked)
            return checked.error();
        line.options.insert(row.option, *checked);
    }
    return Checked(line, shape, words);
}

} // namespace vellumo
