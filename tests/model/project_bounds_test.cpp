#include "small_project.h"

using namespace Qt::StringLiterals;
using namespace vellumo;

TEST(ProjectReader, TakesWholeNumbersOf32Bits)
{
    EXPECT_EQ(Read(Changed("<MaxId>8", "<MaxId>2147483647")).source.MaxId(), 2147483647);
    EXPECT_EQ(Read(Changed("<MaxId>8", "<MaxId>-2147483648")).source.MaxId(), -2147483648);
    EXPECT_EQ(Read(Changed("<MaxId>8", "<MaxId>007")).source.MaxId(), 7);
    for (const char *number :
         {"", "x", "1x", "0x10", "1.0", "1e3", "2147483648", "-2147483649", "99999999999999999999",
          "1 2", "\xB9", " 1", "1 ", "\t1", "+1", "-", "--1"}) {
        SCOPED_TRACE(number);
        EXPECT_TRUE(RefusalOf(Changed("<MaxId>8", QByteArray("<MaxId>") + number))
                        .contains(u"which is no whole number of 32 bits"));
        EXPECT_NE(RefusalOf(Changed("<Order>1", QByteArray("<Order>") + number)), u"read"_s);
        EXPECT_NE(
            RefusalOf(Changed("<Id>7</Id><Item>", "<Id>" + QByteArray(number) + "</Id><Item>")),
            u"read"_s);
    }
}

TEST(ProjectReader, StandsDepth)
{
    const QByteArray deep = QByteArray("<a>").repeated(100000);
    EXPECT_NE(RefusalOf(deep), u"read"_s);
    const QByteArray within = deep + "x" + QByteArray("</a>").repeated(100000);
    EXPECT_EQ(Read(Changed("Words", within)).Description, u"x"_s);
    EXPECT_EQ(Read(Changed("<MaxId>", within + "<MaxId>")).FormName, u"Survey"_s);
}

TEST(ProjectReader, BoundsWhatNoProjectHas)
{
    const auto attributes = [](int count) {
        QByteArray tag = "<a";
        for (int i = 0; i < count; ++i)
            tag += " a" + QByteArray::number(i) + "=''";
        return tag + "/>";
    };
    const QString tooMany = u": there are too many attributes and unknown elements"_s;
    const auto refusal = [](const QByteArray &foreign) {
        return RefusalOf(Changed("<MaxId>", foreign + "\n<MaxId>"));
    };
    EXPECT_EQ(refusal(attributes(160'000)), u"read"_s) << "all on one tag";
    EXPECT_EQ(refusal(QByteArray("<a/>").repeated(200'000)), u"read"_s);
    EXPECT_EQ(refusal(QByteArray("<a/>").repeated(200'001)), u'8' + tooMany);
    EXPECT_EQ(refusal(QByteArray("<a b=''/>").repeated(100'001)), u'8' + tooMany);
    EXPECT_EQ(refusal(attributes(200'001)), u'8' + tooMany) << "before the tag ends";
    EXPECT_EQ(refusal("<!--" + QByteArray("=").repeated(200'001) + "-->"), u"read"_s);

    const QByteArray items = QByteArray("<record><Id>7</Id><Item/></record>").repeated(70'000);
    EXPECT_EQ(Read(Changed("</rcChilds>", items + "</rcChilds>")).source.Items().Count(), 70'001)
        << "what a project has may be many";
    const QByteArray titles = QByteArray("<Item/>").repeated(200'001);
    EXPECT_EQ(Read(Changed("</TitleList>", titles + "</TitleList>")).TitleList.size(), 200'002);
}
