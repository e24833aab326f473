#pragma once

#include <QByteArrayView>

namespace vellumo {

/// The pixels that a text in windows-1252 is wide in a font of the handheld: 0, 1 or 3. In another,
/// which the handheld does not have, it is 0 wide.
quint32 TextWidth(QByteArrayView text, quint32 font);

} // namespace vellumo
