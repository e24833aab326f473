#pragma once

#include <QByteArray>
#include <QString>

namespace vellumo {

/// The text of windows-1252 bytes. The five bytes that the code page leaves unassigned stand for
/// the control characters of the same number (0x81 for U+0081), so every byte has its character.
QString FromWindows1252(QByteArrayView bytes);

/// Appends the windows-1252 bytes of a text. Stops at the first character that the code page lacks
/// and returns its index in the text; -1 when the whole text was appended.
qsizetype AppendWindows1252(QByteArray &bytes, QStringView text);

/// A character for a message, such as 'Ω' (U+03A9); the code alone where it cannot be shown.
/// The index may point at the first half of a surrogate pair.
QString DescribeCharacter(QStringView text, qsizetype index);

} // namespace vellumo
