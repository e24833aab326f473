#pragma once

#include "handheld/delivery_warning.h"
#include "model/project.h"

#include <vector>

namespace vellumo {

/// What the handheld's screen does not show as typed, although it arrives
/// (docs/handheld-screen.md): question-too-wide, title-too-wide, item-too-wide, caption-too-wide
/// and not-on-handheld. First of the description, then question by question of its title, its text
/// and its items; of one text each code at most once, and of equal items of a question the first.
/// Items that share an Id are held against the first list question with it. A text that
/// windows-1252 lacks characters of is passed over: it never arrives.
///
/// Takes time in proportion to the texts.
std::vector<DeliveryWarning> FindMisfits(const Project &project);

} // namespace vellumo
