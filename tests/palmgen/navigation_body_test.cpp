#include "palmgen/navigation_body.h"

#include "support/print.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

const QString head = u"INITIALSTATE 0x00000001\r\nINITIALOBJECTID 2\r\nBegin\r\n"_s;
const QString tail = u"ID 101 BELOW 100 ABOVE 99\r\nID 100 BELOW 2 ABOVE 101\r\nEND\r\n"_s;

} // namespace

TEST(NavigationBody, PassesThroughASecondControl)
{
    for (const QString &type : {u"Scanned Barcode"_s, u"Yes/No"_s, u"Date/Time"_s}) {
        SCOPED_TRACE(type.toStdString());
        EXPECT_EQ(NavigationBody(type), head +
                                            u"ID 2 BELOW 3\r\n"
                                            "ID 3 BELOW 99 ABOVE 2\r\n"
                                            "ID 99 BELOW 101 ABOVE 3\r\n"_s +
                                            tail);
    }
}

TEST(NavigationBody, GoesStraightOnOtherwise)
{
    for (const QString &type :
         {u"Text"_s, u"Numeric"_s, u"Currency"_s, u"Notes"_s, u"Signature"_s, u"Pulldown List"_s,
          u"Checkboxes"_s, u"yes/no"_s, u"Yes/No "_s, u"Wrong Type"_s, u""_s}) {
        SCOPED_TRACE(type.toStdString());
        EXPECT_EQ(NavigationBody(type),
                  head + u"ID 2 BELOW 100\r\nID 99 BELOW 101 ABOVE 2\r\n"_s + tail);
    }
}
