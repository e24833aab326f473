#pragma once

#include "platform/result.h"

#include <QByteArray>
#include <QList>

namespace vellumo {

/// Where the focus goes from an object of a form; each is the number of an object, 0 = nowhere.
struct NavigationItem {
    quint32 number = 0;
    quint32 above = 0;
    quint32 below = 0;

    bool operator==(const NavigationItem &) const = default;
};

/// The order in which the handheld's navigation keys move the focus on a form.
struct Navigation {
    quint32 initialState = 0;
    quint32 initialObject = 0;
    QList<NavigationItem> items = {};

    bool operator==(const Navigation &) const = default;
};

/// Decodes the navigation of a form ('fnav'; docs/palm-formats.md, "Navigations") to its last byte.
/// Fails as ReadForm does.
Result<Navigation> ReadNavigation(const QByteArray &resource);

} // namespace vellumo
