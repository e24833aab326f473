#pragma once

#include <QString>

class QWidget;

namespace vellumo {

/// Refuses single characters while they are typed into a text box: such a key does not reach it,
/// and an exclamation box says the message. Pasted text passes. '\r' stands for Enter and '\n' for
/// Ctrl+Enter, with whatever other keys are held. The filter belongs to the box.
void RefuseKeys(QWidget *box, const QString &characters, const QString &message);

} // namespace vellumo
