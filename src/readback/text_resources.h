#pragma once

#include "platform/result.h"

#include <QByteArray>
#include <QList>

namespace vellumo {

// docs/palm-formats.md, "The resources of a project".

/// What follows the zero byte of a text: nothing, or a second one where the size would be odd.
enum class Padding { None, ToEven };

/// The text of a resource that holds one text and nothing else. Fails as ReadForm does.
Result<QByteArray> ReadTextResource(const QByteArray &resource, Padding padding = Padding::None);

/// Texts with a prefix that is common to them all.
struct StringTable {
    QByteArray prefix = {};
    QList<QByteArray> entries = {};
};

/// Decodes a string table ('tSTL') to its last byte. Fails as ReadForm does.
Result<StringTable> ReadStringTable(const QByteArray &resource);

} // namespace vellumo
