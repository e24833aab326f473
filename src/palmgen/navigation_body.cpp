#include "palmgen/navigation_body.h"

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

bool HasSecondControl(QStringView type)
{
    return type == "Scanned Barcode"_L1 || type == "Yes/No"_L1 || type == "Date/Time"_L1;
}

} // namespace

QString NavigationBody(QStringView type)
{
    const QLatin1StringView answer = HasSecondControl(type) ? "ID 2 BELOW 3\r\n"
                                                              "ID 3 BELOW 99 ABOVE 2\r\n"
                                                              "ID 99 BELOW 101 ABOVE 3\r\n"_L1
                                                            : "ID 2 BELOW 100\r\n"
                                                              "ID 99 BELOW 101 ABOVE 2\r\n"_L1;
    return "INITIALSTATE 0x00000001\r\n"
           "INITIALOBJECTID 2\r\n"
           "Begin\r\n"_L1 +
           answer +
           "ID 101 BELOW 100 ABOVE 99\r\n"
           "ID 100 BELOW 2 ABOVE 101\r\n"
           "END\r\n"_L1;
}

} // namespace vellumo
