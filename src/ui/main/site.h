#pragma once

#include <QString>

namespace vellumo {

/// The maker's web site, as the build was told by VELLUMO_SITE, and without a slash at its end.
QString SiteAddress();

} // namespace vellumo
