#include "exchange/form_rows.h"

#include "editing/question_columns.h"
#include "exchange/list_cell.h"
#include "exchange/storable_text.h"
#include "model/form_fields.h"

#include <QSet>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

template <FormField field> QString WriteField(const Project &project)
{
    return project.*RowOf(field).text;
}

template <FormField field> Outcome TakeField(SheetForm &form, const QString &cell)
{
    if (const QString objection = ObjectionToStoring(cell); !objection.isEmpty())
        return Error{objection};
    form.project.*RowOf(field).text = WithLineFeeds(cell);
    return done;
}

QString WriteNextId(const Project &project)
{
    return QString::number(project.source.MaxId());
}

Outcome TakeNextId(SheetForm &form, const QString &cell)
{
    const Result<int> number = NumberIn(cell);
    if (!number)
        return number.error();
    form.project.source.SetMaxId(*number);
    form.hasNextId = true;
    return done;
}

/// A project's file has no titles where the first is empty.
QString WriteTitles(const Project &project)
{
    const QStringList &titles = project.TitleList;
    return titles.isEmpty() || titles.first().isEmpty() ? QString() : WriteList(titles);
}

Outcome TakeTitles(SheetForm &form, const QString &cell)
{
    Result<QStringList> titles = ReadList(cell);
    if (!titles)
        return titles.error();
    for (const QString &title : *titles)
        if (const QString objection = ObjectionToStoring(title); !objection.isEmpty())
            return Error{objection};
    if (!titles->isEmpty())
        form.project.TitleList = std::move(*titles);
    return done;
}

QString WriteItemOrder(const Project &project)
{
    return WriteList(ItemOrderOf(project.source));
}

Outcome TakeItemOrder(SheetForm &form, const QString &cell)
{
    const Result<QStringList> texts = ReadList(cell);
    if (!texts)
        return texts.error();
    const Result<QList<ItemOrderEntry>> order = ReadItemOrder(*texts);
    if (!order)
        return order.error();
    form.itemOrder = *order;
    return done;
}

struct FormRow {
    QLatin1StringView name;
    QString (*write)(const Project &project);
    Outcome (*take)(SheetForm &form, const QString &cell);
    bool always; ///< written where it is empty, too
};

constexpr FormRow formRows[] = {
    {"Form name"_L1, WriteField<FormField::Name>, TakeField<FormField::Name>, true},
    {"Form version"_L1, WriteField<FormField::Version>, TakeField<FormField::Version>, true},
    {"Description"_L1, WriteField<FormField::Description>, TakeField<FormField::Description>, true},
    {"Data folder"_L1, WriteField<FormField::DataFolder>, TakeField<FormField::DataFolder>, true},
    {"Next Id"_L1, WriteNextId, TakeNextId, true},
    {"Remembered titles"_L1, WriteTitles, TakeTitles, false},
    {itemOrderName, WriteItemOrder, TakeItemOrder, false},
};

/// Why a row cannot be taken.
Outcome TakeRow(SheetForm &form, const CsvRow &row, QSet<const FormRow *> &met)
{
    const FormRow *known = std::ranges::find_if(
        formRows, [&](const FormRow &each) { return HasName(row.cells.first(), each.name); });
    if (known == std::end(formRows))
        return Error{u"No row above the heading has this name."_s};
    if (met.contains(known))
        return Error{u"There are two rows of this name."_s};
    met += known;
    const auto others = row.cells.sliced(std::min<qsizetype>(row.cells.size(), 2));
    if (std::ranges::any_of(others, [](const QString &cell) { return !cell.isEmpty(); }))
        return Error{u"There is more than one text beside the name."_s};
    if (known->name == itemOrderName)
        form.itemOrderRow = row.number;
    return known->take(form, row.cells.value(1));
}

} // namespace

QList<QStringList> FormRows(const Project &project)
{
    QList<QStringList> rows;
    for (const FormRow &row : formRows)
        if (const QString text = row.write(project); row.always || !text.isEmpty())
            rows.append({row.name, text});
    return rows;
}

SheetForm ReadFormRows(const QList<CsvRow> &rows)
{
    SheetForm form;
    QSet<const FormRow *> met;
    for (const CsvRow &row : rows)
        if (const Outcome taken = TakeRow(form, row, met); !taken)
            form.refusals.append({row.number, row.cells.first().left(40), taken.error().text});
    return form;
}

Result<int> NumberIn(const QString &cell)
{
    bool isNumber = false;
    const int number = cell.trimmed().toInt(&isNumber);
    if (!isNumber)
        return Error{u"This is no whole number of 32 bits."_s};
    return number;
}

} // namespace vellumo
