#include "exchange/csv.h"

#include "exchange/csv_text.h"

#include <csv.h>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

constexpr qsizetype mostCells = 1'000'000;
constexpr size_t bufferStep = 65536; // a cell may be as long as the whole table

/// Gathers the rows as the parser tells of cells and of ends.
class Reader
{
public:
    explicit Reader(char separator)
    {
        csv_init(&m_parser, CSV_STRICT | CSV_STRICT_FINI | CSV_REPALL_NL);
        csv_set_delim(&m_parser, static_cast<unsigned char>(separator));
        // Blanks at the ends of a cell belong to it.
        csv_set_space_func(&m_parser, [](unsigned char) { return 0; });
        csv_set_blk_size(&m_parser, bufferStep);
    }
    Reader(const Reader &) = delete;
    Reader &operator=(const Reader &) = delete;
    ~Reader() { csv_free(&m_parser); }

    Result<QList<CsvRow>> Read(const QByteArray &text)
    {
        const auto size = static_cast<size_t>(text.size());
        const size_t parsed = csv_parse(&m_parser, text.constData(), size, TakeCell, TakeEnd, this);
        if (parsed < size) {
            const auto line = text.first(static_cast<qsizetype>(parsed)).count('\n') + 1;
            return Error{u"A quotation mark stands where none can."_s, {}, static_cast<int>(line)};
        }
        if (csv_fini(&m_parser, TakeCell, TakeEnd, this) != 0)
            return Error{u"Row %1 has a quotation mark without its partner."_s.arg(m_number + 1)};
        if (m_cellCount > mostCells)
            return Error{u"The table has more than %1 cells."_s.arg(mostCells)};
        if (m_rows.size() > mostRows)
            return Error{u"The table has more than %1 rows."_s.arg(mostRows)};
        return std::move(m_rows);
    }

private:
    static void TakeCell(void *bytes, size_t size, void *reader)
    {
        auto *self = static_cast<Reader *>(reader);
        if (++self->m_cellCount <= mostCells)
            self->m_cells += FromUtf8(
                QByteArrayView(static_cast<const char *>(bytes), static_cast<qsizetype>(size)));
        self->m_afterReturn = false;
    }

    /// The parser tells of CR and LF one by one, and of the end of the table.
    static void TakeEnd(int character, void *reader)
    {
        auto *self = static_cast<Reader *>(reader);
        const bool isSecondHalf = std::exchange(self->m_afterReturn, character == '\r');
        if (isSecondHalf && character == '\n')
            return;
        ++self->m_number;
        const QStringList cells = std::exchange(self->m_cells, {});
        const bool isEmpty = std::ranges::all_of(cells, &QString::isEmpty);
        if (!isEmpty && self->m_rows.size() <= mostRows)
            self->m_rows.append({self->m_number, cells});
    }

    csv_parser m_parser = {};
    QList<CsvRow> m_rows;
    QStringList m_cells;
    qsizetype m_cellCount = 0;
    qsizetype m_number = 0; ///< of the rows that have ended
    bool m_afterReturn = false;
};

bool NeedsQuotes(QByteArrayView cell)
{
    const auto isSpecial = [](char c) { return QByteArrayView("\",;\t\r\n").contains(c); };
    return std::ranges::any_of(cell, isSpecial) || cell.startsWith(' ') || cell.endsWith(' ');
}

void AppendCell(QByteArray &text, const QByteArray &cell)
{
    if (!NeedsQuotes(cell)) {
        text += cell;
        return;
    }
    const auto size = static_cast<size_t>(cell.size());
    QByteArray quoted(static_cast<qsizetype>(csv_write(nullptr, 0, cell.constData(), size)),
                      Qt::Uninitialized);
    csv_write(quoted.data(), static_cast<size_t>(quoted.size()), cell.constData(), size);
    text += quoted;
}

} // namespace

Result<QList<CsvRow>> ReadCsv(const QByteArray &text, char separator)
{
    return Reader(separator).Read(text);
}

QByteArray WriteCsv(const QList<QStringList> &rows)
{
    QByteArray text;
    for (const QStringList &row : rows) {
        for (qsizetype i = 0; i < row.size(); ++i) {
            if (i > 0)
                text += ',';
            AppendCell(text, row[i].toUtf8());
        }
        text += "\r\n";
    }
    return text;
}

} // namespace vellumo
