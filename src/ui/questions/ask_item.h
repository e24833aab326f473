#pragma once

#include "editing/item_list.h"

#include <functional>

class QWidget;

namespace vellumo {

/// A text that can be an item, or empty when the user gave up. Only a first answer is trimmed. F1
/// calls the function.
QString AskItem(QWidget *parent, const ItemListHost &host, const std::function<void()> &showHelp);

} // namespace vellumo
