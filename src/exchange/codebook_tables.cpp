#include "exchange/codebook_tables.h"

#include "exchange/csv.h"
#include "exchange/list_cell.h"
#include "model/form_fields.h"

#include <algorithm>
#include <iterator>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

constexpr QLatin1StringView columns[] = {"Number"_L1, "Column Name"_L1, "Type"_L1,
                                         "Value"_L1,  "Title"_L1,       "Question"_L1};
constexpr auto itemsColumn = "Items"_L1;

QStringList Columns()
{
    return {std::begin(columns), std::end(columns)};
}

/// All but the items.
QStringList CellsOf(const CodebookRow &row)
{
    return {
        QString::number(row.number), row.columnName, row.type, row.value, row.title, row.question};
}

/// How wide each column but the last is; a cell beyond the most moves only its own row.
QList<qsizetype> WidthsOf(const QList<QStringList> &table)
{
    constexpr qsizetype most = 24;
    QList<qsizetype> widths;
    for (qsizetype column = 0; column + 1 < table.first().size(); ++column) {
        qsizetype width = 0;
        for (const QStringList &cells : table)
            width = std::max(width, cells[column].size());
        widths += std::min(width, most);
    }
    return widths;
}

QString TerminalLine(const QStringList &cells, const QList<qsizetype> &widths)
{
    QString line;
    for (qsizetype column = 0; column < widths.size(); ++column)
        line += cells[column].leftJustified(widths[column]) + "  "_L1;
    return line + cells.last();
}

QString MarkdownLine(const QStringList &cells)
{
    return "| "_L1 + cells.join(" | "_L1) + " |\n"_L1;
}

QString CsvLine(const QStringList &cells)
{
    return QString::fromUtf8(WriteCsv({cells}));
}

} // namespace

QStringList TerminalTable(const std::vector<CodebookRow> &rows)
{
    QList<QStringList> table = {Columns()};
    for (const CodebookRow &row : rows)
        table += CellsOf(row);
    const QList<qsizetype> widths = WidthsOf(table);
    QStringList lines = {TerminalLine(table.first(), widths)};
    for (const CodebookRow &row : rows) {
        lines += TerminalLine(table[row.number], widths);
        if (!row.items.isEmpty())
            lines += QString(widths.first() + 2, u' ') + row.items.join(" | "_L1);
    }
    return lines;
}

QString MarkdownForm(const Project &project)
{
    QString text;
    for (const FormFieldRow &row : formFields)
        text += u"- %1: %2\n"_s.arg(row.name, MarkdownText(project.*row.text));
    return text + u'\n';
}

QString MarkdownTable(const std::vector<CodebookRow> &rows)
{
    const QStringList heading = Columns() << itemsColumn;
    QString text = MarkdownLine(heading) + MarkdownLine(QStringList(heading.size(), u"---"_s));
    for (const CodebookRow &row : rows) {
        QStringList cells = CellsOf(row) << row.items.join(u'\n');
        std::ranges::transform(cells, cells.begin(), MarkdownText);
        text += MarkdownLine(cells);
    }
    return text;
}

QString MarkdownText(const QString &text)
{
    constexpr auto markup = "\\`*_{}[]<>|~#&$"_L1;
    QString escaped;
    for (const QChar character : text) {
        if (markup.contains(character))
            escaped += u'\\';
        if (character == u'\n')
            escaped += "<br>"_L1;
        else
            escaped += character.category() == QChar::Other_Control ? QChar(u' ') : character;
    }
    return escaped;
}

QString CsvHeading(bool namesProject)
{
    const QStringList heading = Columns() << itemsColumn;
    return QChar(QChar::ByteOrderMark) +
           CsvLine(namesProject ? QStringList(u"Project"_s) + heading : heading);
}

QString CsvRows(const std::vector<CodebookRow> &rows, const QString &project)
{
    QString text;
    for (const CodebookRow &row : rows) {
        const QStringList cells = CellsOf(row) << WriteList(row.items);
        text += CsvLine(project.isEmpty() ? cells : QStringList(project) + cells);
    }
    return text;
}

} // namespace vellumo
