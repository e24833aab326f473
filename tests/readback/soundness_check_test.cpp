#include "readback/soundness_check.h"

#include "readback/findings.h"

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

QStringList SoundnessOf(const QByteArray &bytes)
{
    return Lines(CheckSoundness(Read(bytes)));
}

/// The ten-types database with other data in one resource.
QByteArray WithData(const QByteArray &type, quint32 number, const QByteArray &data)
{
    QList<PalmResource> resources = Read(TenTypes()).resources;
    for (PalmResource &resource : resources) {
        if (resource.type == type && resource.number == number)
            resource.data = data;
    }
    return WithResources(TenTypes(), resources);
}

} // namespace

TEST(SoundnessCheck, FindsNothingInAnyGoldenDatabaseOfOurKind)
{
    for (const QString &name : GoldenNames()) {
        if (name != "plainattr"_L1) {
            EXPECT_EQ(SoundnessOf(Golden(name)), QStringList()) << name.toStdString();
        }
    }
}

TEST(SoundnessCheck, FindsADatabaseOfAnotherKind)
{
    EXPECT_EQ(SoundnessOf(TenTypes().replace(60, 8, "applmemo")),
              (QStringList{
                  u"database-type [database type] The database type is 'appl' instead of 'kelp'."_s,
                  u"database-creator [database creator] "
                  "The database creator is 'memo' instead of 'Wmpt'."_s}));
}

TEST(SoundnessCheck, FindsCountsThatDisagree)
{
    const QString beginning = u"question-count [question count] The question count"_s;
    EXPECT_EQ(SoundnessOf(WithData("flds", 1000, QByteArray("\0\x09", 2))).size(), 5);
    EXPECT_EQ(SoundnessOf(WithData("flds", 1000, "\x01")),
              QStringList{beginning + u", resource 'flds' 1000, is missing or no count."_s});
    EXPECT_EQ(SoundnessOf(WithData("ques", 1002, QByteArray(9, '\0'))),
              QStringList{beginning + u" is 10, and there are 9 question codes."_s});
    EXPECT_EQ(SoundnessOf(WithData("fldt", 1001, {})),
              QStringList{beginning + u" is 10, and there are 0 data codes."_s});
    QList<PalmResource> resources = Read(TenTypes()).resources;
    resources.removeIf([](const PalmResource &resource) {
        return resource.type == "fnav" && resource.number == 4;
    });
    EXPECT_EQ(SoundnessOf(WithResources(TenTypes(), resources)),
              QStringList{beginning + u" is 10, and there are 9 navigations."_s});
}

TEST(SoundnessCheck, FindsEachResourceThatCannotBeDecoded)
{
    const struct {
        QByteArray type;
        quint32 number;
    } rows[] = {{"tFRM", 3},    {"fnav", 10},   {"tver", 1},   {"desc", 1003},
                {"sdir", 1005}, {"guid", 1006}, {"tAIN", 1000}};
    for (const auto &[type, number] : rows) {
        const QStringList found = SoundnessOf(WithData(type, number, "x"));
        ASSERT_EQ(found.size(), 1) << type.toStdString();
        EXPECT_TRUE(found[0].startsWith(u"resource-damaged [resources] The resource '%1' %2 is "
                                        "damaged: "_s.arg(QString::fromLatin1(type))
                                            .arg(number)))
            << found[0].toStdString();
    }
}
