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

TEST(HeaderCheck, RemarksOnWhatAHandheldWritesAndFindsNothing)
{
    const QString time = u"backup-time [time of the last backup] "_s;
    const QString marked =
        u"backup-bit [database attributes] The database is marked to be backed up."_s;
    const QByteArray backedUp = WithNumber(TenTypes(), 44, 4, 0xB4000001);
    const struct {
        const char *what;
        QByteArray bytes;
        QStringList remarks;
    } rows[] = {
        {"as it was made", TenTypes(), {}},
        {"backed up", backedUp, {time + u"The database was backed up at 1999-09-11 12:48:01."_s}},
        {"long ago",
         WithNumber(TenTypes(), 44, 4, 1),
         {time + u"The database was backed up at 1904-01-01 00:00:01."_s}},
        {"to be backed up", WithNumber(TenTypes(), 32, 2, 0x0109), {marked}},
        {"changed",
         WithNumber(TenTypes(), 48, 4, 12),
         {u"modification-number [modification number] The handheld's count of changes is 12."_s}},
        {"numbered",
         WithNumber(TenTypes(), 68, 4, 0x00A00001),
         {u"unique-id-seed [unique id seed] The handheld's seed of record numbers is 10485761."_s}},
        {"both",
         WithNumber(backedUp, 32, 2, 0x0109),
         {time + u"The database was backed up at 1999-09-11 12:48:01."_s, marked}},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(Lines(RemarksOn(Read(row.bytes))), row.remarks);
        EXPECT_EQ(LinesOf(row.bytes, TenTypesProject()), QStringList());
    }
    ExpectFound({"marked, and shown to the user",
                 WithNumber(TenTypes(), 32, 2, 0x0009),
                 {u"database-attributes [database attributes] "
                  "The database attributes: 0x0001 instead of 0x0101."_s}},
                TenTypesProject());
}

TEST(HeaderCheck, FindsResourcesOutOfOrder)
{
    QList<PalmResource> resources = Read(TenTypes()).resources;
    resources.move(0, 1);
    ExpectFound(
        {"out of order",
         WithResources(TenTypes(), resources),
         {u"resource-order [resources] "
          "The resource 'desc' 1003 stands after 'flds' 1000, where it does not belong."_s}},
        TenTypesProject());
}
