#pragma once

#include <QByteArray>

/// Whether the two objects that steer the decompression of a help file hold numbers that belong
/// together: the size of the decoder's window and how often it starts anew, and the size of the
/// blocks. Both empty is sound as well: nothing is compressed.
bool IsSoundCompression(const QByteArray &controlData, const QByteArray &resetTable);
