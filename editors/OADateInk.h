#pragma once

#include <QColor>

/// The colours of the date field and its calendar that are not the desktop's.
namespace OADateInk {

/// What can be pressed, and where one is: the calendar sign, arrows, the month, today.
inline constexpr QColor blue(0x2B, 0x51, 0x76);
/// The same, at rest.
inline constexpr QColor quiet(0x5F, 0x7E, 0x9D);
inline constexpr QColor disabled(0xBB, 0xC3, 0xCB);

inline constexpr QColor border(0xBB, 0xBB, 0xBB);
inline constexpr QColor paper(0xFF, 0xFF, 0xFF);
inline constexpr QColor day(0x33, 0x33, 0x33);
inline constexpr QColor otherDay(0xA9, 0xA9, 0xA9);
inline constexpr QColor weekday(0x85, 0x85, 0x85);
inline constexpr QColor hover(0xE9, 0xF0, 0xF7);
inline constexpr QColor pressed(0xD5, 0xE2, 0xEF);

inline constexpr QColor selectedTop(0x56, 0x9A, 0xD4);
inline constexpr QColor selectedBottom(0x3B, 0x7C, 0xBC);
inline constexpr QColor selectedBorder(0x2D, 0x68, 0xA2);
inline constexpr QColor selectedDay(0xFF, 0xFF, 0xFF);

} // namespace OADateInk
