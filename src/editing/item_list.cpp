#include "editing/item_list.h"

#include "model/limits.h"
#include "model/question_types.h"
#include "model/texts.h"

#include <QSet>

#include <algorithm>
#include <numeric>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

QLatin1StringView RefusalInWizard(QStringView type, qsizetype count)
{
    const QuestionType *known = TypeNamed(type);
    return known && known->items ? known->items->count.Objection(count) : QLatin1StringView();
}

QLatin1StringView RefusalInPropertyDialog(QStringView, qsizetype count)
{
    return pulldownLimit.Objection(count + 1);
}

using Before = bool (*)(const QString &, const QString &);

/// Quicksort around the middle entry. The smaller part is left to a further call, the larger to the
/// next round: no order of the entries makes the calls nest deeply.
void SortBetween(QStringList &items, qsizetype low, qsizetype high, Before before)
{
    while (low < high) {
        const QString pivot = items[low + (high - low) / 2];
        qsizetype i = low;
        qsizetype j = high;
        while (i <= j) {
            while (before(items[i], pivot) && i < high)
                ++i;
            while (before(pivot, items[j]) && j > low)
                --j;
            if (i <= j)
                items.swapItemsAt(i++, j--);
        }
        if (j - low < high - i) {
            SortBetween(items, low, j, before);
            low = i;
        } else {
            SortBetween(items, i, high, before);
            high = j;
        }
    }
}

} // namespace

constinit const ItemListHost wizardItemList = {againPrompt, RefusalInWizard};
constinit const ItemListHost propertyItemList = {"Please add the item to the List."_L1,
                                                 RefusalInPropertyDialog};

QString ObjectionToItem(QStringView text)
{
    if (text.size() > itemLimit.most)
        return itemLimit.message;
    return text.contains(u'"') ? QString(doubleQuotes.message) : QString();
}

QString ItemList::RefusalToAdd(const ItemListHost &host, QStringView type) const
{
    return host.refusalToAdd(type, m_items.size());
}

QString ItemList::Add(const QString &text)
{
    if (m_items.contains(text))
        return u"The item already exists. Please enter a different name."_s;
    if (!text.isEmpty())
        m_items += text;
    return {};
}

QString ItemList::AddNames(const QStringList &names)
{
    if (m_items.size() + names.size() > pulldownLimit.most)
        return pulldownLimit.message;
    QSet<QStringView> present;
    for (const QString &item : std::as_const(m_items))
        present += TrimBlanks(item);
    for (const QString &name : names) {
        const QStringView trimmed = TrimBlanks(name);
        if (!present.contains(trimmed))
            m_items += name;
        present += trimmed;
    }
    return {};
}

ItemList::Change ItemList::Remove(const Rows &selection)
{
    if (selection.isEmpty())
        return {.refusal = u"Please select an item to delete."_s};
    const QSet<qsizetype> leaving(selection.begin(), selection.end());
    QStringList kept;
    for (qsizetype row = 0; row < m_items.size(); ++row)
        if (!leaving.contains(row))
            kept += m_items[row];
    m_items = kept;
    return {};
}

ItemList::Change ItemList::Move(const Rows &selection, qsizetype distance)
{
    if (selection.isEmpty())
        return {.refusal = u"Please select a question."_s, .selection = selection};
    if (selection.size() > 1)
        return {.refusal = u"Please select only one item."_s, .selection = selection};
    const qsizetype row = selection.first();
    const qsizetype place = std::clamp<qsizetype>(row + distance, 0, m_items.size() - 1);
    m_items.move(row, place);
    return {.selection = {place}};
}

ItemList::Change ItemList::MoveTo(const Rows &selection, qsizetype place)
{
    const QSet<qsizetype> leaving(selection.begin(), selection.end());
    QStringList before;
    QStringList moved;
    QStringList after;
    for (qsizetype row = 0; row < m_items.size(); ++row)
        (leaving.contains(row) ? moved : row < place ? before : after) += m_items[row];
    m_items = before + moved + after;
    Rows rows(moved.size());
    std::iota(rows.begin(), rows.end(), before.size());
    return {.selection = rows};
}

void ItemList::Sort()
{
    if (m_items.isEmpty())
        return;
    const Before ascending = [](const QString &a, const QString &b) { return a < b; };
    const Before descending = [](const QString &a, const QString &b) { return a > b; };
    SortBetween(m_items, 0, m_items.size() - 1, m_sortDescending ? descending : ascending);
    m_sortDescending = !m_sortDescending;
}

} // namespace vellumo
