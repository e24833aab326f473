#pragma once

#include <QtGlobal>

/// The flag words of forms and their objects (docs/palm-formats.md, "Forms").
namespace vellumo::FormFlag {

inline constexpr quint32 usable = 0x8000;  ///< of a form and every object but a scroll bar
inline constexpr quint32 enabled = 0x4000; ///< controls, lists and gadgets always have it

inline constexpr quint32 fieldEditable = 0x2000;
inline constexpr quint32 fieldSingleLine = 0x1000;
inline constexpr quint32 fieldAlways = 0x0200; ///< every field has it
inline constexpr quint32 fieldUnderlined = 0x0040;
inline constexpr quint32 fieldNumeric = 0x0002;

inline constexpr quint32 controlLeftAnchor = 0x0800; ///< the left edge stays where it is
inline constexpr quint32 controlFrame = 0x0100;

inline constexpr quint32 tableEditable = 0x4000;
inline constexpr quint32 scrollBarUsable = 0x80;

} // namespace vellumo::FormFlag
