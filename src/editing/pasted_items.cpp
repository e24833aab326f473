#include "editing/pasted_items.h"

#include "editing/built_in_names.h"
#include "model/limits.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

/// Names of countries are longer than an item may be that somebody types.
QString ObjectionToPasted(const QString &text)
{
    return CountryNames().contains(text) ? QString() : ObjectionToItem(text);
}

QString ShortenedLine(const QString &text)
{
    constexpr qsizetype most = 40;
    return text.size() <= most ? text : text.first(most) + QChar(0x2026);
}

} // namespace

void Refusals::Add(const QString &refusal)
{
    constexpr qsizetype most = 10;
    if (++m_count <= most)
        m_told += refusal;
}

QString Refusals::Text() const
{
    if (m_count == 0)
        return {};
    const qsizetype others = m_count - m_told.size();
    return u"Not added:\n"_s + m_told.join(u'\n') +
           (others > 0 ? u"\nand %1 more."_s.arg(others) : QString());
}

QString PutItem(ItemList &items, const QString &line)
{
    const QString objection = ObjectionToPasted(line);
    return objection.isEmpty() ? items.Add(line) : objection;
}

QString PasteItems(ItemList &items, const ItemListHost &host, QStringView type,
                   const QStringList &lines)
{
    Refusals refusals;
    for (const QString &line : lines) {
        QString refusal = items.RefusalToAdd(host, type);
        if (refusal.isEmpty())
            refusal = PutItem(items, line);
        if (!refusal.isEmpty())
            refusals.Add(u'"' + ShortenedLine(line) + u"\": "_s + refusal);
    }
    return refusals.Text();
}

QString PutItems(QStringList &items, const QStringList &lines)
{
    ItemList list;
    list.SetItems(items);
    QString refusal;
    // One more than a list can have is enough for its rule.
    for (const QString &line : lines.first(std::min(lines.size(), pulldownLimit.most + 1)))
        if (refusal = PutItem(list, line); !refusal.isEmpty())
            break;
    items = list.Items();
    return refusal;
}

} // namespace vellumo
