#pragma once

#include <QByteArray>
#include <QList>

namespace vellumo {

/// What a text stands for that is written between the quotes of a resource script, where a
/// backslash starts an escape. The result has no zero byte unless the text has one. A quote without
/// a backslash and a backslash at the end stand in no sound script; here the one stands for itself
/// and the other for nothing.
QByteArray InterpretScriptText(QByteArrayView written);

/// A text as those with free wording are written into a script: a backslash before every quote, in
/// place of those that stand before it already. Other backslashes stay single.
QByteArray WithEscapedQuotes(QByteArrayView text);

/// What the items of a question stand for, which a script has joined with commas: they are split at
/// all of them, those within an item too. An empty whole is no item.
QList<QByteArray> InterpretItems(const QByteArray &joined);

} // namespace vellumo
