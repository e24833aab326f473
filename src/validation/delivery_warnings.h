#pragma once

#include "handheld/delivery_warning.h"
#include "model/project.h"

#include <vector>

namespace vellumo {

/// What will not arrive as typed: first the form information, then question by question its
/// texts, its links and its items, then the items that no list question owns; items that share an
/// Id are held against the first list question with that Id. Last what makes the file unreadable.
///
/// Takes time in proportion to questions and items.
std::vector<DeliveryWarning> FindDeliveryWarnings(const Project &project);

} // namespace vellumo
