#pragma once

#include "support/files.h"

namespace vellumo {

/// An example.
inline const QString siteVisit = DataFile(QStringLiteral("../../examples/SiteVisit.vmp"));

// Projects whose scripts and databases are compared byte for byte.
inline const QString goldenSiteVisit = DataFile(QStringLiteral("projects/SiteVisit.vmp"));
inline const QString goldenNestbox = DataFile(QStringLiteral("projects/Nestbox.vmp"));

} // namespace vellumo
