#pragma once

#include "model/limits.h"

class QWidget;

namespace vellumo {

/// Refuses characters while they are typed into a text box: such a key does not reach it,
/// and an exclamation box says the message. Pasted text passes. '\r' stands for Enter and '\n' for
/// Ctrl+Enter, with whatever other keys are held. The filter belongs to the box.
void RefuseKeys(QWidget *box, const RefusedCharacters &refused);

} // namespace vellumo
