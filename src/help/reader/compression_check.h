#pragma once

#include <QByteArray>

#include <optional>

namespace vellumo {

/// How many bytes the compressed objects of a help file have together, before they were compressed,
/// as the two objects that steer the decompression tell: the size of the decoder's window and how
/// often it starts anew, and where each block begins. None where their numbers do not belong
/// together or a block is longer than a reader makes room for.
std::optional<quint64> SizeBeforeCompression(const QByteArray &control, const QByteArray &table);

} // namespace vellumo
