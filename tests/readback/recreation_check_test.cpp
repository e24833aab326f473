#include "readback/recreation_check.h"

#include "readback/findings.h"

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

QStringList FoundIn(const QByteArray &recreated, const QByteArray &database)
{
    return Lines(CheckRecreation(Read(recreated), Read(database)));
}

QStringList ResourceLine(const QString &resource, const QString &fate)
{
    return {
        u"recreated-resource [resources] Created again, the resource %1 %2."_s.arg(resource, fate)};
}

} // namespace

TEST(RecreationCheck, LeavesTimesBackupsAndIdentifierOpen)
{
    QByteArray other = TenTypes().replace(36, 12, "aaaabbbbcccc");
    other[33] = static_cast<char>(other[33] | 0x08);
    EXPECT_EQ(FoundIn(TenTypes(), other), QStringList());
    const QByteArray without =
        WithData(other, "guid", 1006, [](const QByteArray &) { return QByteArray(1, '\0'); });
    EXPECT_EQ(FoundIn(TenTypes(), without), QStringList()) << "whatever its length";
}

TEST(RecreationCheck, FindsEveryOtherHeader)
{
    const QStringList expected = {u"recreated-header [database header] "
                                  "Created again, the header of the database is another one."_s};
    for (const qsizetype offset : {0, 32, 33, 34, 35, 60, 63, 64, 67}) {
        QByteArray other = TenTypes();
        other[offset] = static_cast<char>(other[offset] ^ 0x40);
        EXPECT_EQ(FoundIn(TenTypes(), other), expected) << offset;
    }
}

TEST(RecreationCheck, FindsEveryOtherResource)
{
    for (const PalmResource &resource : Read(TenTypes()).resources) {
        if (resource.type == "guid")
            continue;
        const QString name = Describe(resource.Key());
        EXPECT_EQ(FoundIn(TenTypes(), WithByteAfter(resource.type, resource.number)),
                  ResourceLine(name, u"is another one"_s));
        EXPECT_EQ(FoundIn(TenTypes(), Without(resource.type, resource.number)),
                  ResourceLine(name, u"is added"_s));
        EXPECT_EQ(FoundIn(Without(resource.type, resource.number), TenTypes()),
                  ResourceLine(name, u"is missing"_s));
    }
}
