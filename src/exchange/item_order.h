#pragma once

#include "model/clsDataSource.h"
#include "platform/result.h"

#include <QStringList>

#include <optional>

namespace vellumo {

/// Some rows of a project's item table, in a sheet "3" (all that are left of the question with this
/// Id), "3*2" (the next two) or "3:text" (one that belongs to no question of a list type).
struct ItemOrderEntry {
    int id;
    std::optional<int> count = {};
    std::optional<QString> text = {};
};

/// The order of the item table, where it is not that of the questions; empty where it is and every
/// item has its question.
QStringList ItemOrderOf(const clsDataSource &source);

/// Fails where a text is none of the three.
Result<QList<ItemOrderEntry>> ReadItemOrder(const QStringList &texts);

/// Puts the items into this order, those that it lacks at the end. Fails where it has a text under
/// the Id of a question that has its own items.
Outcome ArrangeItems(clsDataSource &source, const QList<ItemOrderEntry> &order);

} // namespace vellumo
