#include "small_project.h"

using namespace Qt::StringLiterals;
using namespace vellumo;

TEST(ProjectReader, KeepsTextsAsTheyStand)
{
    const struct {
        const char *what;
        QByteArray inFile;
        QString read;
    } rows[] = {
        {"empty", "", u""_s},
        {"markup in a CDATA section", "<![CDATA[a & <b> \"c\"]]>", u"a & <b> \"c\""_s},
        {"markup as entities", "a &amp; &lt;b&gt; &#65;", u"a & <b> A"_s},
        {"blanks at the ends", "  a  ", u"  a  "_s},
        {"the code page's own characters", "5 \x80 caf\xE9", u"5 \u20AC caf\u00E9"_s},
        {"an unassigned byte", "\x81", u"\u0081"_s},
        {"references to characters", "&#x41;&#xE9;&#8364;&#x80;&#x1F600;",
         u"A\u00E9\u20AC\u0080\U0001F600"_s},
        {"a mark that is a text", "&#xFEFF;a", u"\uFEFFa"_s},
        {"brackets", "<![CDATA[a]] ]>]]>]", u"a]] ]>]"_s},
        {"several sections", "<![CDATA[a]]]]><![CDATA[>b]]> c", u"a]]>b c"_s},
        {"what is no text", "a<!-- b --><?c d?>e", u"ae"_s},
        {"line ends as XML has them", "a\r\nb\rc\nd", u"a\nb\nc\nd"_s},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(Read(Changed("Words", row.inFile)).Description, row.read);
    }
}

TEST(ProjectReader, HonoursAnotherEncoding)
{
    const QByteArray utf8 = Changed("windows-1252", "UTF-8").replace("Words", "5 \xE2\x82\xAC");
    EXPECT_EQ(Read(utf8).Description, u"5 \u20AC"_s);
    EXPECT_EQ(
        Read(Changed(" encoding=\"windows-1252\"", "").replace("Words", "\xC3\xA9")).Description,
        u"\u00E9"_s)
        << "without a name it is UTF-8";
    EXPECT_EQ(
        Read(Changed("\"windows-1252\"", "'WINDOWS-1252'").replace("Words", "\x80")).Description,
        u"\u20AC"_s);

    const QString text = QString::fromLatin1(Changed("windows-1252", "UTF-16"));
    QByteArray utf16 = "\xFF\xFE";
    for (const QChar character : text)
        utf16.append(char(character.cell())).append(char(character.row()));
    EXPECT_EQ(Read(utf16).FormName, u"Survey"_s);
}

TEST(ProjectReader, AByteOrderMarkTellsMoreThanTheDeclaration)
{
    const QByteArray mark = "\xEF\xBB\xBF", text = "5 \xE2\x82\xAC";
    for (const QByteArray name : {"UTF-8", "windows-1252", "ISO-8859-1", "koi8-r"})
        EXPECT_EQ(Read(mark + Changed("windows-1252", name).replace("Words", text)).Description,
                  u"5 \u20AC"_s)
            << name.toStdString();
    EXPECT_EQ(
        Read(mark + Changed("<?xml version=\"1.0\" encoding=\"windows-1252\"?>\n", "")).FormName,
        u"Survey"_s);
}

TEST(ProjectReader, HonoursEncodingsThatTheToolkitKnows)
{
    EXPECT_EQ(Read(Changed("windows-1252", "utf8").replace("Words", "\xE2\x82\xAC")).Description,
              u"\u20AC"_s)
        << "a name that is not quite UTF-8's";
    EXPECT_EQ(Read(Changed("windows-1252", "latin1").replace("Words", "\xE9")).Description,
              u"\u00E9"_s);
    EXPECT_EQ(RefusalOf(Changed("windows-1252", "utf8").replace("Words", "caf\xE9")),
              u"1: unknown encoding"_s)
        << "bytes that are none of its texts";
}
