#pragma once

#include "editing/item_list.h"
#include "exchange/refusal.h"
#include "model/question_types.h"
#include "platform/result.h"

#include <QByteArray>

namespace vellumo {

/// A text that is to become an item.
struct NewItem {
    qsizetype row; ///< of a table, or line of a text, from 1
    QString text;  ///< one line, without blanks and tabs at its ends; not empty
};

/// Those of a text in UTF-8, a line each. Fails, with the line, where it is none.
Result<QList<NewItem>> ItemsOfText(const QByteArray &bytes);

/// Those of a table, a cell each: in the column of this caption, or in the first column, which then
/// has none. Fails as a sheet does, and where there is no such caption in the first row.
Result<QList<NewItem>> ItemsOfTable(const QByteArray &bytes, const QString &caption);

/// Appends them one after the other by the rules of adding, up to the number that a question of the
/// type may have. Gives what is refused.
QList<Refusal> AddItems(ItemList &items, const ItemRules &rules, const QList<NewItem> &added);

} // namespace vellumo
