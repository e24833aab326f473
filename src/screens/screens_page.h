#pragma once

#include "screens/database_screens.h"

namespace vellumo {

/// A page of HTML, in UTF-8, that stands for itself: it needs no script, no network and no other
/// file. Each database has a part of its own, in which its forms are drawn as the handheld shows
/// them; on paper there are six to a page. It is well-formed XML, too.
QByteArray ScreensPage(const QList<DatabaseScreens> &databases);

} // namespace vellumo
