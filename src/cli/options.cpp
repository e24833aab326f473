#include "cli/options.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

constexpr int longestTimeout = 24 * 60 * 60; // in milliseconds still an int

Result<QString> CheckedOutput(const QString &name)
{
    if (name.isEmpty())
        return Error{u"The name after -o is empty."_s};
    return name;
}

Result<QString> CheckedName(const QString &name)
{
    if (name.isEmpty())
        return Error{u"The name after an option is empty."_s};
    return name;
}

Result<QString> CheckedIdentifier(const QString &identifier)
{
    static const QRegularExpression digits(uR"(\A[0-9A-F]{32}\z)"_s);
    if (!digits.match(identifier.toUpper()).hasMatch())
        return Error{u"The identifier of --guid must be 32 hexadecimal digits."_s};
    return identifier.toUpper();
}

Result<QString> CheckedTimeout(const QString &seconds)
{
    const int number = seconds.toInt(); // 0 where it is no number
    if (number < 1 || number > longestTimeout)
        return Error{u"The time of --timeout must be 1 to %1 seconds."_s.arg(longestTimeout)};
    return seconds;
}

constexpr OptionRow rows[] = {
    {.option = Option::Output,
     .name = "output"_L1,
     .letter = "o"_L1,
     .valueName = "NAME"_L1,
     .help = "the file or folder to write"_L1,
     .check = CheckedOutput},
    {.option = Option::Identifier,
     .name = "guid"_L1,
     .valueName = "HEX32"_L1,
     .help = "the identifier to build in, 32 hexadecimal digits; a new one\n"
             "is made unless given. With it, or with SOURCE_DATE_EPOCH in\n"
             "the environment, the same project gives the same database"_L1,
     .check = CheckedIdentifier},
    {.option = Option::Compiler,
     .name = "pilrc"_L1,
     .valueName = "PATH"_L1,
     .help = "the program to compile with, along PATH where it has no\n"
             "folder; vellumo does it itself otherwise"_L1,
     .check = CheckedName},
    {.option = Option::Builder,
     .name = "build-prc"_L1,
     .valueName = "PATH"_L1,
     .help = "the program to build databases with, likewise"_L1,
     .check = CheckedName},
    {.option = Option::Timeout,
     .name = "timeout"_L1,
     .valueName = "SECONDS"_L1,
     .help = "how long such a program may take, 60 unless given"_L1,
     .check = CheckedTimeout},
    {.option = Option::Csv,
     .name = "csv"_L1,
     .help = "as a table for spreadsheets (docs/csv.md)"_L1},
    {.option = Option::FormSheet,
     .name = "xlsform"_L1,
     .help = "as a workbook for the form tools of phones (docs/xlsform.md)"_L1},
    {.option = Option::Lossy,
     .name = "lossy"_L1,
     .help = "write it also where a text or a name becomes another one"_L1},
    {.option = Option::Into,
     .name = "into"_L1,
     .valueName = "PROJECT"_L1,
     .help = "the project to append the questions to"_L1,
     .check = CheckedName},
    {.option = Option::Question,
     .name = "question"_L1,
     .valueName = "N"_L1,
     .help = "the question, by its place from 1 or its column name"_L1,
     .check = CheckedName},
    {.option = Option::From,
     .name = "from"_L1,
     .valueName = "NAME"_L1,
     .help = "the items, a text of lines or a table, NAME.csv, or for\n"
             "a new project the example to start from"_L1,
     .check = CheckedName},
    {.option = Option::Column,
     .name = "column"_L1,
     .valueName = "NAME"_L1,
     .help = "the column of the table that has the items"_L1,
     .check = CheckedName},
    {.option = Option::Append, .name = "append"_L1, .help = "keep the items that are there"_L1},
    {.option = Option::Sort, .name = "sort"_L1, .help = "sort the items"_L1},
    {.option = Option::Skip,
     .name = "skip"_L1,
     .help = "leave out what is refused and write the rest"_L1},
    {.option = Option::Markdown, .name = "markdown"_L1, .help = "a table of Markdown, in UTF-8"_L1},
    {.option = Option::Git,
     .name = "git"_L1,
     .help = "the names are those that git gives to an external diff"_L1},
    {.option = Option::Strict, .name = "strict"_L1, .help = "warnings count as findings"_L1},
    {.option = Option::Quiet,
     .name = "quiet"_L1,
     .letter = "q"_L1,
     .help = "errors and what makes the exit status alone, no results,\n"
             "other warnings or remarks"_L1},
    {.option = Option::Json,
     .name = "json"_L1,
     .help = "one JSON object a line for each finding, result or error"_L1},
};

/// As the help has it, such as "-o, --output NAME".
QString WithValue(const OptionRow &row)
{
    QString typed = "--"_L1 + row.name;
    if (!row.letter.isEmpty())
        typed.prepend(u"-%1, "_s.arg(row.letter));
    if (!row.valueName.isEmpty())
        typed += u' ' + row.valueName;
    return typed;
}

void AppendHelp(QString &help, QString typed, const QString &text)
{
    constexpr int widest = 17;
    for (const QString &line : text.split(u'\n')) {
        help += u"  %1  %2\n"_s.arg(typed, -widest).arg(line);
        typed.clear();
    }
}

} // namespace

std::span<const OptionRow> OptionRows()
{
    return rows;
}

QString OptionsHelp(Options options)
{
    QString help;
    for (const OptionRow &row : rows)
        if (options.testFlag(row.option))
            AppendHelp(help, WithValue(row), row.help);
    AppendHelp(help, u"--"_s, u"what follows are names, whatever they begin with"_s);
    AppendHelp(help, u"-"_s, u"in place of a file: standard input or output"_s);
    return help;
}

} // namespace vellumo
