#include "exchange/item_order.h"

#include "model/question_types.h"

#include <QRegularExpression>
#include <QSet>

#include <algorithm>
#include <limits>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

QSet<int> IdsOfLists(const clsDataSource &source)
{
    QSet<int> ids;
    for (const QuestionRow &row : source.Questions().Rows())
        if (HasItems(row.Type))
            ids += row.Id;
    return ids;
}

/// The items as the rows of a sheet have them, question after question.
QList<ItemRow> ItemsInRows(const clsDataSource &source)
{
    QHash<int, QStringList> itemsById = source.ItemsById();
    QList<ItemRow> rows;
    for (const QuestionRow &question : source.Questions().Rows())
        if (HasItems(question.Type))
            for (const QString &item : itemsById.take(question.Id))
                rows.append({question.Id, item});
    return rows;
}

Result<ItemOrderEntry> EntryOf(const QString &text)
{
    static const QRegularExpression form(uR"(\A(-?\d+)(?:\*(\d+)|:(.*))?\z)"_s,
                                         QRegularExpression::DotMatchesEverythingOption);
    const QRegularExpressionMatch match = form.match(text);
    bool isId = false;
    ItemOrderEntry entry = {.id = match.captured(1).toInt(&isId)};
    bool isCount = true;
    if (match.hasCaptured(2))
        entry.count = match.captured(2).toInt(&isCount);
    if (match.hasCaptured(3))
        entry.text = match.captured(3);
    if (!isId || !isCount)
        return Error{u"'%1' tells of no items."_s.arg(text.left(40))};
    return entry;
}

} // namespace

QStringList ItemOrderOf(const clsDataSource &source)
{
    const QList<ItemRow> &rows = source.Items().Rows();
    if (rows == ItemsInRows(source))
        return {};
    const QSet<int> lists = IdsOfLists(source);
    QSet<int> met; // behind the rows that are looked at
    QStringList order;
    for (qsizetype end = rows.size(); end > 0;) {
        const int id = rows[end - 1].Id;
        if (!lists.contains(id)) {
            order.prepend(u"%1:"_s.arg(id) + rows[--end].Item);
            continue;
        }
        qsizetype begin = end - 1;
        while (begin > 0 && rows[begin - 1].Id == id)
            --begin;
        order.prepend(met.contains(id) ? u"%1*%2"_s.arg(id).arg(end - begin) : QString::number(id));
        met += id;
        end = begin;
    }
    return order;
}

Result<QList<ItemOrderEntry>> ReadItemOrder(const QStringList &texts)
{
    QList<ItemOrderEntry> order;
    for (const QString &text : texts) {
        const Result<ItemOrderEntry> entry = EntryOf(text);
        if (!entry)
            return entry.error();
        order += *entry;
    }
    return order;
}

Outcome ArrangeItems(clsDataSource &source, const QList<ItemOrderEntry> &order)
{
    const QSet<int> lists = IdsOfLists(source);
    QHash<int, QStringList> itemsById = source.ItemsById();
    QList<ItemRow> rows;
    const auto take = [&](int id, qsizetype count) {
        QStringList &items = itemsById[id];
        for (const QString &item : items.first(std::min(count, items.size())))
            rows.append({id, item});
        items.remove(0, std::min(count, items.size()));
    };
    for (const ItemOrderEntry &entry : order) {
        if (!entry.text)
            take(entry.id, entry.count.value_or(std::numeric_limits<int>::max()));
        else if (lists.contains(entry.id))
            return Error{
                u"The question with the Id %1 has its items in its own row."_s.arg(entry.id)};
        else
            rows.append({entry.id, *entry.text});
    }
    for (const ItemRow &left : source.Items().Rows())
        take(left.Id, 1);
    source.Items().SetRows(rows);
    return done;
}

} // namespace vellumo
