#include "readback/database_content.h"

#include "readback/databases.h"
#include "readback/findings.h"

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

DatabaseContent ContentOf(const QList<PalmResource> &resources)
{
    return DecodeDatabase({.resources = resources});
}

template <typename T> QString FaultOf(const Decoded<T> &part)
{
    if (!part)
        return u"missing"_s;
    return *part ? u"read"_s : (*part).error().text;
}

QStringList DamagesOf(const DatabaseContent &content)
{
    QStringList lines;
    for (const auto &[type, number, damage] : content.damages)
        lines += u"%1: %2"_s.arg(Describe(ResourceKey{type, number}), damage);
    return lines;
}

} // namespace

TEST(DatabaseContent, HasEveryPartOfADatabase)
{
    const DatabaseContent content = DecodeDatabase(Read(TenTypes()));
    EXPECT_EQ(**content.questionCount, 10u);
    EXPECT_EQ(**content.typeCodes, QByteArray("\x09\x04\x07\x05\x03\x02\x06\x08\x01\x00", 10));
    EXPECT_EQ(**content.valueCodes, QByteArray("\x04\x00\x00\x02\x03\x00\x02\x05\x01\x00", 10));
    EXPECT_EQ(**content.description, "Every kind of question once");
    EXPECT_EQ((*content.columnNames)->entries.value(9), "REMARKS");
    EXPECT_EQ(**content.folder, "C:\\Data\\Ten\\");
    EXPECT_EQ(**content.identifier, "0123456789ABCDEF0123456789ABCDEF");
    EXPECT_EQ(**content.formName, "tentypes");
    EXPECT_EQ(**content.version, "2.1");
    ASSERT_EQ(content.forms.size(), 10u);
    ASSERT_EQ(content.navigations.size(), 10u);
    EXPECT_EQ(content.forms.at(4)->number, 4u);
    EXPECT_EQ(content.navigations.at(6)->items.size(), 5);
    EXPECT_EQ(DamagesOf(content), QStringList());
}

TEST(DatabaseContent, TellsWhatIsMissing)
{
    const DatabaseContent content = ContentOf({});
    EXPECT_EQ(FaultOf(content.questionCount), u"missing"_s);
    EXPECT_EQ(FaultOf(content.columnNames), u"missing"_s);
    EXPECT_TRUE(content.forms.empty() && content.navigations.empty());
}

TEST(DatabaseContent, TellsWhatIsDamaged)
{
    const DatabaseContent content = ContentOf({{"desc", 1003, "x"},
                                               {"flds", 1000, "x"},
                                               {"fnav", 2, "x"},
                                               {"tAIN", 1000, QByteArray("ab\0", 3)},
                                               {"tFRM", 2, "x"},
                                               {"tver", 1, QByteArray("1\0", 2)}});
    EXPECT_EQ(FaultOf(content.description), u"the text at byte 0 has no end"_s);
    EXPECT_EQ(FaultOf(content.questionCount), u"it has 1 bytes instead of 2"_s);
    EXPECT_EQ(FaultOf(content.formName), u"it ends too early, at byte 3"_s);
    EXPECT_EQ(FaultOf(content.version), u"read"_s);
    EXPECT_FALSE(content.forms.at(2));
    EXPECT_EQ(DamagesOf(content), (QStringList{u"'desc' 1003: the text at byte 0 has no end"_s,
                                               u"'flds' 1000: it has 1 bytes instead of 2"_s,
                                               u"'fnav' 2: it ends too early, at byte 1"_s,
                                               u"'tAIN' 1000: it ends too early, at byte 3"_s,
                                               u"'tFRM' 2: it ends too early, at byte 1"_s}));
}

TEST(DatabaseContent, LeavesOutWhatIsUnderAnotherNumber)
{
    const DatabaseContent content =
        ContentOf({{"abcd", 1, "x"}, {"desc", 5, QByteArray("a\0", 2)}, {"tver", 2, "x"}});
    EXPECT_EQ(FaultOf(content.description), u"missing"_s);
    EXPECT_EQ(FaultOf(content.version), u"missing"_s);
    EXPECT_EQ(DamagesOf(content), QStringList{u"'tver' 2: the text at byte 0 has no end"_s})
        << "damage is told all the same";
}

TEST(DatabaseContent, KnowsTheResourcesOfADatabase)
{
    const struct {
        ResourceKey key;
        bool belongs;
    } rows[] = {
        {questionCountKey, true}, {versionKey, true},        {{"tver", 2}, false},
        {{"desc", 1000}, false},  {{"code", 1}, false},      {FormKey(0), false},
        {FormKey(1), true},       {FormKey(3), true},        {FormKey(4), false},
        {NavigationKey(3), true}, {NavigationKey(4), false},
    };
    for (const auto &[key, belongs] : rows)
        EXPECT_EQ(IsResourceOf(key, 3), belongs) << Describe(key).toStdString();
    for (const PalmResource &resource : Read(TenTypes()).resources)
        EXPECT_TRUE(IsResourceOf(resource.Key(), 10)) << Describe(resource.Key()).toStdString();
}
