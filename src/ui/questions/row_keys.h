#pragma once

#include <QShortcut>

namespace vellumo {

/// As far as a row can go.
inline constexpr int allRows = 1'000'000;

/// A key that moves a row by so many places, downwards where the number is positive.
struct MoveKey {
    QKeyCombination key;
    int distance;
};

/// Beside those by one, which are the keys of buttons.
inline constexpr MoveKey moveKeys[] = {{Qt::ALT | Qt::Key_Home, -allRows},
                                       {Qt::ALT | Qt::Key_End, allRows},
                                       {Qt::ALT | Qt::Key_PageUp, -10},
                                       {Qt::ALT | Qt::Key_PageDown, 10}};

/// Calls the action by a key of the owner: while it has the focus, or one of its children where the
/// context says so.
template <typename Action>
void CallByKeys(QWidget *owner, const QList<QKeySequence> &keys, Qt::ShortcutContext context,
                Action action)
{
    for (const QKeySequence &key : keys) {
        auto *shortcut = new QShortcut(key, owner);
        shortcut->setContext(context);
        QObject::connect(shortcut, &QShortcut::activated, owner, action);
    }
}

} // namespace vellumo
