#pragma once

#include "editing/item_list.h"

class QWidget;

namespace vellumo {

/// A text that can be an item, or empty when the user gave up. Only a first answer is trimmed.
QString AskItem(QWidget *parent, const ItemListHost &host);

} // namespace vellumo
