#include "ui/main/site.h"

namespace vellumo {

QString SiteAddress()
{
    QString address = QStringLiteral(VELLUMO_SITE);
    while (address.endsWith(u'/'))
        address.chop(1);
    return address;
}

} // namespace vellumo
