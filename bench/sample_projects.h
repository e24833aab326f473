#pragma once

#include "model/project.h"

namespace vellumo {

/// A project of so many questions, all ten types in turn, with all texts of the largest length: 255
/// items in each pulldown list, 32 in each checkbox list. 128 questions are the largest project of
/// mixed types.
Project MixedProject(int questions);

/// 128 pulldown lists of 255 items each, all texts of the largest length: the largest project that
/// can be designed.
Project LargestProject();

/// A project of pulldown lists of 250 items each that has so many items in all.
Project ProjectOfItems(int items);

/// The same, but that each item is too wide for the handheld's screen.
Project WideProjectOfItems(int items);

} // namespace vellumo
