#pragma once

#include "screens/database_screens.h"

#include <QXmlStreamWriter>

namespace vellumo {

/// Writes a screen as one of so many: its number and title, its drawings, and beside them its texts
/// and what is wrong with it. The identifier begins those of its drawings.
void WriteArticle(QXmlStreamWriter &page, const Screen &screen, int count,
                  const QString &identifier);

} // namespace vellumo
