#pragma once

#include "readback/database_content.h"
#include "readback/delivered_texts.h"

namespace vellumo {

/// Appends what is wrong with the question count, and with the codes that a database has for each
/// question in two lists.
void CheckCodes(const DatabaseContent &content, const DeliveredTexts &texts,
                QList<Finding> &findings);

} // namespace vellumo
