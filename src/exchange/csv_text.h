#pragma once

#include "platform/files.h"

#include <QByteArrayView>

namespace vellumo {

/// Of files of questions or items that somebody wrote or saved from a spreadsheet.
inline constexpr FileLimit sheetLimit = {16LL * 1024 * 1024, QLatin1StringView("sheet")};

/// What marks a text as UTF-8 at its beginning.
inline constexpr QByteArrayView byteOrderMark{"\xEF\xBB\xBF"};

/// The bytes without a byte order mark. Fails, with the line, where they are no UTF-8 or have a
/// zero, which no text has.
Result<QByteArray> Utf8Text(const QByteArray &bytes);

/// The text of such bytes with every character of them; QString::fromUtf8 takes U+FEFF at the
/// beginning for a mark.
QString FromUtf8(QByteArrayView bytes);

} // namespace vellumo
