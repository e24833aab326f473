#pragma once

#include "model/result.h"

#include <QByteArray>
#include <QList>

/// The text of a resource that holds one text and its zero byte. With padding a second zero byte
/// follows where the size would be odd. Fails as ReadForm does.
enum class Padding { None, ToEven };
Result<QByteArray> ReadTextResource(const QByteArray &resource, Padding padding = Padding::None);

/// Texts with a prefix that is common to them all.
struct StringTable {
    QByteArray prefix = {};
    QList<QByteArray> entries = {};
};

/// Decodes a string table ('tSTL') to its last byte. Fails as ReadForm does.
Result<StringTable> ReadStringTable(const QByteArray &resource);
