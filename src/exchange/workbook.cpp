#include "exchange/workbook.h"

#include <QFile>
#include <QFileInfo>

#include <xlsxwriter.h>

#include <utility>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

constexpr double columnWidth = 24; // in letters

/// Workbook and sheet of the library are freed by what closes it.
class Workbook
{
public:
    explicit Workbook(const QString &path)
        : m_folder(QFile::encodeName(QFileInfo(path).path())),
          m_workbook(Open(path)),
          m_heading(workbook_add_format(m_workbook))
    {
        format_set_bold(m_heading);
        lxw_doc_properties properties = {};
        properties.created = 946684800; // the first second of 2000: the same bytes every time
        workbook_set_properties(m_workbook, &properties);
    }
    Workbook(const Workbook &) = delete;
    Workbook &operator=(const Workbook &) = delete;
    ~Workbook()
    {
        if (m_workbook)
            lxw_workbook_free(m_workbook);
    }

    lxw_error Add(const SheetTable &table)
    {
        lxw_worksheet *sheet = workbook_add_worksheet(m_workbook, table.name.toUtf8().constData());
        worksheet_set_column(sheet, 0, lxw_col_t(table.headings.size() - 1), columnWidth, nullptr);
        worksheet_freeze_panes(sheet, 1, 0);
        lxw_error error = AddRow(sheet, 0, table.headings, m_heading);
        for (qsizetype row = 0; row < table.rows.size() && error == LXW_NO_ERROR; ++row)
            error = AddRow(sheet, lxw_row_t(row + 1), table.rows[row], nullptr);
        return error;
    }

    lxw_error Close() { return workbook_close(std::exchange(m_workbook, nullptr)); }

private:
    /// What the library needs in between lies beside the file.
    lxw_workbook *Open(const QString &path)
    {
        lxw_workbook_options options = {};
        options.tmpdir = m_folder.data();
        return workbook_new_opt(QFile::encodeName(path).constData(), &options);
    }

    static lxw_error AddRow(lxw_worksheet *sheet, lxw_row_t row, const QStringList &cells,
                            lxw_format *format)
    {
        for (qsizetype column = 0; column < cells.size(); ++column) {
            if (cells[column].isEmpty())
                continue;
            const lxw_error error = worksheet_write_string(
                sheet, row, lxw_col_t(column), cells[column].toUtf8().constData(), format);
            if (error != LXW_NO_ERROR)
                return error;
        }
        return LXW_NO_ERROR;
    }

    QByteArray m_folder;
    lxw_workbook *m_workbook;
    lxw_format *m_heading;
};

Outcome OutcomeOf(lxw_error error, const QString &path)
{
    if (error == LXW_NO_ERROR)
        return done;
    if (error == LXW_ERROR_MAX_STRING_LENGTH_EXCEEDED)
        return Error{u"a text is longer than the 32767 characters of a cell"_s};
    return Error{QString::fromUtf8(lxw_strerror(error)), path};
}

} // namespace

Outcome WriteWorkbook(const QList<SheetTable> &tables, const QString &path)
{
    Workbook workbook(path);
    for (const SheetTable &table : tables)
        if (const lxw_error error = workbook.Add(table); error != LXW_NO_ERROR)
            return OutcomeOf(error, path);
    return OutcomeOf(workbook.Close(), path);
}

} // namespace vellumo
