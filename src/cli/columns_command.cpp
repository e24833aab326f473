#include "cli/columns_command.h"

#include "cli/inputs.h"
#include "exchange/codebook_tables.h"

#include <QJsonArray>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

void TellProgram(const std::vector<CodebookRow> &rows, const QString &inputName,
                 const Console &console)
{
    for (const CodebookRow &row : rows)
        console.Tell({.kind = "column"_L1,
                      .code = "column"_L1,
                      .text = u"%1: %2"_s.arg(row.columnName, row.value),
                      .file = inputName,
                      .question = row.number,
                      .more = {{u"columnName"_s, row.columnName},
                               {u"type"_s, row.type},
                               {u"value"_s, row.value},
                               {u"title"_s, row.title},
                               {u"text"_s, row.question},
                               {u"items"_s, QJsonArray::fromStringList(row.items)}}});
}

void TellPerson(const std::vector<CodebookRow> &rows, const QString &name, const Console &console)
{
    QStringList lines = TerminalTable(rows);
    if (!name.isEmpty())
        lines.prepend("file: "_L1 + name);
    for (const QString &line : lines)
        console.Write(Visible(line).toLocal8Bit() + '\n');
}

/// Puts tables on standard output, as the options want them.
class Tables
{
public:
    Tables(const CommandLine &line, const Console &console)
        : m_line(line), m_console(console), m_several(line.inputs.size() > 1)
    {}

    void Write(const Project &project, const QString &inputName)
    {
        const std::vector<CodebookRow> rows = CodebookOf(project);
        const QString name = m_several ? inputName : QString();
        if (m_console.json)
            TellProgram(rows, inputName, m_console);
        else if (m_line.Has(Option::Csv))
            m_console.Write(
                ((m_first ? CsvHeading(m_several) : QString()) + CsvRows(rows, name)).toUtf8());
        else if (m_line.Has(Option::Markdown))
            m_console.Write(
                (MarkdownHeading(name) + MarkdownForm(project) + MarkdownTable(rows)).toUtf8());
        else
            TellPerson(rows, name, m_console);
        m_first = false;
    }

private:
    /// A table needs an empty line before it, where another one or a heading is.
    QString MarkdownHeading(const QString &name) const
    {
        if (name.isEmpty())
            return {};
        return (m_first ? "## "_L1 : "\n## "_L1) + MarkdownText(name) + "\n\n"_L1;
    }

    const CommandLine &m_line;
    const Console &m_console;
    const bool m_several;
    bool m_first = true;
};

} // namespace

Exit TellColumns(const CommandLine &line, const Console &console)
{
    if (line.Has(Option::Csv) + line.Has(Option::Markdown) + line.Has(Option::Json) > 1)
        return RefuseUse(console, u"Only one of --csv, --markdown and --json can be had."_s);
    Tables tables(line, console);
    return ForEachInput(line, console, [&](const QString &input) -> Ending {
        const Result<Project> project = ReadProjectInput(input, console);
        if (!project)
            return Refuse(console, Exit::Unreadable, project.error());
        tables.Write(*project, InputName(input));
        return {Exit::Fine, "columns"_L1, u"Its columns were told."_s};
    });
}

} // namespace vellumo
