#pragma once

#include <QList>
#include <QStringList>

namespace vellumo {

/// In what the places where a list of items is edited differ.
struct ItemListHost {
    QLatin1StringView firstPrompt; ///< asks for a new item
    /// Why no item can be asked for beside so many, ready to show; empty = one can.
    QLatin1StringView (*refusalToAdd)(QStringView type, qsizetype count);
};

/// By intention the two differ: the wizard lets a list grow to one entry more than a question of
/// its type may have, which finishing then refuses; the property dialog stops any list where the
/// longest would be full.
extern const ItemListHost wizardItemList;
extern const ItemListHost propertyItemList;

/// Asks for a new item again after its text was refused, whatever the host.
inline constexpr QLatin1StringView againPrompt{"Please add an item to the List."};

/// Why a text cannot be entered as an item, ready to show; empty when it can.
QString ObjectionToItem(QStringView text);

/// The items of a question while they are edited. It lives as long as the window that edits them.
///
/// What is refused is told as a message ready to show (empty = done) and changes nothing.
class ItemList
{
public:
    using Rows = QList<qsizetype>;

    /// What an operation on selected entries did.
    struct Change {
        QString refusal = {};
        Rows selection = {}; ///< the rows that are selected afterwards
    };

    const QStringList &Items() const { return m_items; }
    /// The direction of the next sort stays.
    void SetItems(const QStringList &items) { m_items = items; }

    /// Whether another item may be asked for.
    QString RefusalToAdd(const ItemListHost &host, QStringView type) const;
    /// Appends an item; an empty text adds nothing, an entry of the same text is refused.
    QString Add(const QString &text);
    /// Appends the names that the list lacks, blanks around a text aside. Refused if it could then
    /// hold more than 255, counting also the names that it has.
    QString AddNames(const QStringList &names);

    Change Remove(const Rows &selection);
    /// Moves the one selected entry by so many places, downwards where the number is positive; it
    /// stops at an end.
    Change Move(const Rows &selection, qsizetype distance);
    Change MoveUp(const Rows &selection) { return Move(selection, -1); }
    Change MoveDown(const Rows &selection) { return Move(selection, +1); }
    /// Moves the selected entries, in their order, before the one that is now at this place, 0 to
    /// their number.
    Change MoveTo(const Rows &selection, qsizetype place);
    void Clear() { m_items.clear(); }
    /// Sorts by character code, the first time upwards, then downwards, and so on in turn. An
    /// empty list takes no turn.
    void Sort();

private:
    QStringList m_items;
    bool m_sortDescending = false;
};

} // namespace vellumo
