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
    const QStringList ofNine = SoundnessOf(WithData("flds", 1000, QByteArray("\0\x09", 2)));
    EXPECT_EQ(ofNine.filter(beginning).size(), 5);
    EXPECT_EQ(ofNine.size(), 7) << "a form and its navigation are too many, besides";
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

TEST(SoundnessCheck, FindsEachTextThatIsMissing)
{
    const std::pair<ResourceKey, QString> texts[] = {
        {{"desc", 1003}, u"description] The description is missing: there is no resource "_s},
        {{"sdir", 1005}, u"data folder] The data folder is missing: there is no resource "_s},
        {{"guid", 1006}, u"identifier] The identifier is missing: there is no resource "_s},
        {{"tAIN", 1000}, u"form name] The form name is missing: there is no resource "_s},
        {{"tver", 1}, u"form version] The form version is missing: there is no resource "_s},
    };
    for (const auto &[key, missing] : texts) {
        const QString line = u"resource-missing ["_s + missing + Describe(key) + u'.';
        EXPECT_EQ(SoundnessOf(Without(key.type, key.number)), QStringList{line});
    }
}

TEST(SoundnessCheck, FindsEachResourceThatNoDatabaseHas)
{
    const QString line = u"resource-extra [resources] The resource '%1' does not belong here."_s;
    QList<PalmResource> resources = Read(TenTypes()).resources;
    resources.append({.type = "tver", .number = 2, .data = QByteArray("1\0", 2)});
    resources.append({.type = "zzzz", .number = 1, .data = "x"});
    EXPECT_EQ(SoundnessOf(WithResources(TenTypes(), resources)),
              (QStringList{QString(line).replace(u"'%1'"_s, u"'tver' 2"_s),
                           QString(line).replace(u"'%1'"_s, u"'zzzz' 1"_s)}));
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
