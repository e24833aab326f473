#pragma once

#include "editing/item_list.h"

namespace vellumo {

/// What was refused of many things, as a text for one box: ten at most, then the number of the
/// others. Empty where nothing was.
class Refusals
{
public:
    void Add(const QString &refusal);
    QString Text() const;

private:
    QStringList m_told;
    qsizetype m_count = 0;
};

/// Appends one item by the rules of adding; a built-in name may be longer than others. Gives why it
/// is refused; empty = it was not. An empty one adds nothing.
QString PutItem(ItemList &items, const QString &line);

/// Appends the lines to the list as items, one after the other by the rules of adding. Gives
/// what is refused, ready to show; empty = nothing was.
QString PasteItems(ItemList &items, const ItemListHost &host, QStringView type,
                   const QStringList &lines);

/// The same for a list that may grow beyond every limit; the first refusal ends it and is given.
QString PutItems(QStringList &items, const QStringList &lines);

} // namespace vellumo
