#include "readback/header_check.h"

#include "readback/findings.h"

using namespace Qt::StringLiterals;
using namespace vellumo;

TEST(HeaderCheck, FindsAnotherHeader)
{
    const Damage rows[] = {
        {"another name",
         TenTypes().replace(0, 8, "tentypeS"),
         {u"database-name [database name] "
          "The database name is 'tentypeS' instead of 'tentypes'."_s}},
        {"another type",
         TenTypes().replace(60, 4, "appl"),
         {u"database-type [database type] The database type is 'appl' instead of 'kelp'."_s}},
        {"another creator",
         TenTypes().replace(64, 4, QByteArray("Wm\0\x1B", 4)),
         {u"database-creator [database creator] "
          "The database creator is 'Wm\\x00\\x1b' instead of 'Wmpt'."_s}},
        {"shown to the user",
         WithNumber(TenTypes(), 32, 2, 0x0001),
         {u"database-attributes [database attributes] "
          "The database attributes: 0x0001 instead of 0x0101."_s}},
        {"another version",
         WithNumber(TenTypes(), 34, 2, 2),
         {u"database-version [database version] "
          "The database version: 0x0002 instead of 0x0001."_s}},
    };
    for (const Damage &row : rows)
        ExpectFound(row, TenTypesProject());
}
