#pragma once

#include "readback/database_content.h"
#include "readback/delivered_texts.h"

namespace vellumo {

/// Appends what is wrong with the texts that a database has outside of its forms: form information,
/// column names, and the shape of the identifier, which is another in every build.
void CheckTexts(const DatabaseContent &content, const DeliveredTexts &texts,
                QList<Finding> &findings);

/// Appends which of the texts are missing that every database has by itself, whatever they are.
void CheckForMissingTexts(const DatabaseContent &content, QList<Finding> &findings);

} // namespace vellumo
