#include "ui/main/site.h"

QString SiteAddress()
{
    QString address = QStringLiteral(VELLUMO_SITE);
    while (address.endsWith(u'/'))
        address.chop(1);
    return address;
}
