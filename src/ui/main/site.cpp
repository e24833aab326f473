#include "ui/main/site.h"

namespace vellumo {

QString SiteAddress()
{
    return QStringLiteral(VELLUMO_SITE);
}

} // namespace vellumo
