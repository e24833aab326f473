#include "exchange/codebook.h"

#include "model/question_types.h"

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

struct ValueRow {
    TypeId type;
    QLatin1StringView value;
};

constexpr std::array<ValueRow, typeCount> values = {{
    {TypeId::Text, "text"_L1},
    {TypeId::Numeric, "number"_L1},
    {TypeId::PulldownList, "one of the items"_L1},
    {TypeId::YesNo, "yes or no"_L1},
    {TypeId::Signature, "image"_L1},
    {TypeId::Notes, "image"_L1},
    {TypeId::DateTime, "date and time"_L1},
    {TypeId::Currency, "amount of money"_L1},
    {TypeId::ScannedBarcode, "text"_L1},
    {TypeId::Checkboxes, "several of the items"_L1},
}};
static_assert(HasRowPerType(values));

} // namespace

std::vector<CodebookRow> CodebookOf(const Project &project)
{
    const QHash<int, QStringList> items = project.source.ItemsById();
    std::vector<CodebookRow> rows;
    int number = 0;
    for (const QuestionRow &row : project.source.Questions().Rows())
        rows.push_back({.number = ++number,
                        .columnName = row.ColumnName,
                        .type = row.Type,
                        .value = ValueOf(row.Type),
                        .title = row.Title,
                        .question = row.Question,
                        .items = HasItems(row.Type) ? items.value(row.Id) : QStringList()});
    return rows;
}

QLatin1StringView ValueOf(QStringView type)
{
    const QuestionType *known = TypeNamed(type);
    return known ? RowOf(values, known->id).value : "unknown"_L1;
}

} // namespace vellumo
