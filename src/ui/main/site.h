#pragma once

#include <QString>

/// The maker's web site, as the build was told by VELLUMO_SITE; without a slash at its end.
QString SiteAddress();
