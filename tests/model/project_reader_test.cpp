#include "model/project_reader.h"

#include "model/project_writer.h"
#include "support/files.h"
#include "support/print.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

const QByteArray smallProject = "<?xml version=\"1.0\" encoding=\"windows-1252\"?>\n"
                                "<root>\n"
                                "<Company>Brindlecot Data Collect</Company>\n"
                                "<FormName>Survey</FormName>\n"
                                "<FormVersion>1.0</FormVersion>\n"
                                "<Description>Words</Description>\n"
                                "<FormPath>C:\\Data</FormPath>\n"
                                "<MaxId>8</MaxId>\n"
                                "<rcMain><record><Order>1</Order><Type>Text</Type>"
                                "<Title>Age</Title><ColumnName>AGE</ColumnName>"
                                "<Question>How old?</Question><Id>7</Id></record></rcMain>\n"
                                "<rcChilds><record><Id>7</Id><Item>Red</Item></record></rcChilds>\n"
                                "<TitleList><Item>Age</Item></TitleList>\n"
                                "</root>\n";

QByteArray Changed(const QByteArray &from, const QByteArray &to)
{
    EXPECT_TRUE(smallProject.contains(from)) << from.toStdString();
    return QByteArray(smallProject).replace(from, to);
}

Project Read(const QByteArray &bytes)
{
    Result<Project> project = ReadProject(bytes);
    if (project)
        return std::move(*project);
    ADD_FAILURE() << Describe(project.error()).toStdString();
    return {};
}

/// The error as "line: text", or "read".
QString RefusalOf(const QByteArray &bytes)
{
    const Result<Project> project = ReadProject(bytes);
    if (project)
        return u"read"_s;
    return u"%1: %2"_s.arg(project.error().line).arg(project.error().text);
}

} // namespace

TEST(ProjectReader, ReadsEveryValue)
{
    const Project project = Read(smallProject);
    EXPECT_EQ(project.FormName, u"Survey"_s);
    EXPECT_EQ(project.FormVersion, u"1.0"_s);
    EXPECT_EQ(project.Description, u"Words"_s);
    EXPECT_EQ(project.FormPath, uR"(C:\Data)"_s);
    EXPECT_EQ(project.source.MaxId(), 8);
    EXPECT_EQ(project.TitleList, QStringList{u"Age"_s});

    ASSERT_EQ(project.source.QuestionCount(), 1);
    const QuestionRow &question = project.source.Questions().Current();
    EXPECT_EQ(question.Order, 1);
    EXPECT_EQ(question.Type, u"Text"_s);
    EXPECT_EQ(question.Title, u"Age"_s);
    EXPECT_EQ(question.ColumnName, u"AGE"_s);
    EXPECT_EQ(question.Question, u"How old?"_s);
    EXPECT_EQ(question.Id, 7);
    ASSERT_EQ(project.source.Items().Count(), 1);
    EXPECT_EQ(project.source.Items().Current().Id, 7);
    EXPECT_EQ(project.source.Items().Current().Item, u"Red"_s);
}

TEST(ProjectReader, TakesElementsInAnyOrder)
{
    const QByteArray company = "<Company>Brindlecot Data Collect</Company>\n";
    QByteArray moved = Changed(company, "");
    moved.replace("</root>", company + "</root>");
    EXPECT_EQ(Read(moved).FormName, u"Survey"_s);

    const QByteArray record =
        Changed("<Id>7</Id><Item>Red</Item>", "<Item>Red</Item>  <!-- colour -->\n<Id>7</Id>");
    EXPECT_EQ(Read(record).source.Items().Current().Id, 7);
}

TEST(ProjectReader, OfElementsThatStandTwiceTheFirstCounts)
{
    EXPECT_EQ(Read(Changed("</FormName>", "</FormName><FormName>Late</FormName>")).FormName,
              u"Survey"_s);
    EXPECT_EQ(Read(Changed("<FormName>Survey", "<FormName></FormName><FormName>Survey")).FormName,
              u""_s)
        << "also where it is empty";
    const Project twoTables = Read(Changed("</rcMain>", "</rcMain><rcMain><x/></rcMain>"));
    EXPECT_EQ(twoTables.source.QuestionCount(), 1);
    EXPECT_EQ(
        Read(Changed("<Id>7</Id></record></rcMain>", "<Id>7</Id><Id>9</Id></record></rcMain>"))
            .source.Questions()
            .Current()
            .Id,
        7);
    EXPECT_EQ(Read(Changed("</Company>", "</Company><Company>Another</Company>")).FormName,
              u"Survey"_s);
}

TEST(ProjectReader, PassesOverWhatItDoesNotKnow)
{
    EXPECT_EQ(Read(Changed("<MaxId>", "<Colour><FormName>x</FormName></Colour><MaxId>")).FormName,
              u"Survey"_s);
    const Project renamed = Read(Changed("<record><Order>", "<question><Order>")
                                     .replace("</record></rcMain>", "</question></rcMain>"));
    EXPECT_EQ(renamed.source.QuestionCount(), 1) << "a record may have any name";
    EXPECT_EQ(
        Read(Changed("<root>", "<x:root a='b' x:c='d'>").replace("</root>", "</x:root>")).FormName,
        u"Survey"_s)
        << "attributes, and prefixes that nobody declared";
    EXPECT_EQ(Read(Changed("Survey", "Sur<b>v</b>ey<!-- -->!")).FormName, u"Survey!"_s)
        << "the text of an element is all the text in it";
}

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

TEST(ProjectReader, TakesBothCompanyTags)
{
    EXPECT_EQ(RefusalOf(Changed("Brindlecot Data", "Harlo Data")), u"read"_s);
    const Result<QByteArray> again = WriteProject(Read(Changed("Brindlecot Data", "Harlo Data")));
    ASSERT_TRUE(again);
    EXPECT_TRUE(again->contains("<Company>Brindlecot Data Collect</Company>"));
}

TEST(ProjectReader, TheTitleListIsThatOfTheFile)
{
    EXPECT_EQ(Read(Changed("<Item>Age</Item>", "<Item></Item><x>B</x>")).TitleList,
              (QStringList{u""_s, u"B"_s}));
    EXPECT_EQ(Read(Changed("<Item>Age</Item>", "")).TitleList, QStringList{u""_s})
        << "without a title it is that of a new project";
}

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

TEST(ProjectReader, RefusesAnElementThatIsMissing)
{
    for (const QByteArray name : {"Company", "FormName", "FormVersion", "Description", "FormPath",
                                  "MaxId", "rcMain", "rcChilds", "TitleList"}) {
        SCOPED_TRACE(name.toStdString());
        QByteArray renamed = smallProject;
        renamed.replace("<" + name + ">", "<Other>").replace("</" + name + ">", "</Other>");
        EXPECT_EQ(RefusalOf(renamed), u"12: the element %1 is missing"_s.arg(QString(name)));
    }
    for (const QByteArray name : {"Order", "Type", "Title", "ColumnName", "Question"}) {
        SCOPED_TRACE(name.toStdString());
        EXPECT_EQ(
            RefusalOf(Changed("<" + name + ">", "<Other>").replace("</" + name + ">", "</Other>")),
            u"9: the element %1 is missing"_s.arg(QString(name)));
    }
    EXPECT_EQ(RefusalOf(Changed("<Id>7</Id></record></rcMain>", "</record></rcMain>")),
              u"9: the element Id is missing"_s);
    EXPECT_EQ(RefusalOf(Changed("<Item>Red</Item>", "")), u"10: the element Item is missing"_s);
}

TEST(ProjectReader, RefusesAnotherCompany)
{
    const auto refusal = [](const QByteArray &company) {
        return RefusalOf(Changed("Brindlecot Data Collect", company));
    };
    EXPECT_EQ(refusal("Another"), u"12: the company 'Another' is not known"_s);
    EXPECT_EQ(refusal("brindlecot data collect"),
              u"12: the company 'brindlecot data collect' is not known"_s);
    EXPECT_EQ(refusal(" Harlo Data Collect"),
              u"12: the company ' Harlo Data Collect' is not known"_s);
    EXPECT_NE(refusal(""), u"read"_s);
}

TEST(ProjectReader, RefusesWhatIsNoXml)
{
    const struct {
        const char *what;
        QByteArray bytes;
    } rows[] = {
        {"nothing", ""},
        {"words", "Hello"},
        {"an end tag that is missing", Changed("</root>\n", "")},
        {"an attribute that stands twice", Changed("<root>", "<root a='1' a='2'>")},
        {"an attribute without quotes", Changed("<root>", "<root a=1>")},
        {"a less-than sign in an attribute", Changed("<root>", "<root a='<'>")},
        {"two dashes in a comment", Changed("Words", "<!-- a -- b -->")},
        {"a declaration that does not come first", '\n' + smallProject},
        {"another version of XML", Changed("version=\"1.0\"", "version=\"1.1\"")},
        {"another one in an encoding that the toolkit reads",
         Changed("\"1.0\" encoding=\"windows-1252\"", "\"1.1\" encoding=\"koi8-r\"")},
        {"half a surrogate pair", Changed("Words", "&#xD800;")},
        {"a character that XML lacks", Changed("Words", "&#1;")},
        {"bytes of two encodings", Changed("windows-1252", "UTF-16")},
        {"tags that cross", Changed("</FormName>", "</FormVersion>")},
        {"a second document element", smallProject + "<root/>"},
        {"words after the end", smallProject + "x"},
        {"a bare ampersand", Changed("Words", "a & b")},
        {"an entity that nobody declared", Changed("Words", "&eacute;")},
        {"the end of a CDATA section outside of one", Changed("Words", "<![CDATA[a]]>b]]>")},
        {"a control character", Changed("Words", "a\x0B")},
        {"a zero byte", Changed("Words", QByteArray("a\0b", 3))},
        {"an encoding that nobody knows", Changed("windows-1252", "klingon")},
        {"bytes that are not of the encoding named",
         Changed("windows-1252", "UTF-8").replace("Words", "caf\xE9")},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_NE(RefusalOf(row.bytes), u"read"_s);
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

TEST(ProjectReader, StandsDepth)
{
    const QByteArray deep = QByteArray("<a>").repeated(100000);
    EXPECT_NE(RefusalOf(deep), u"read"_s);
    const QByteArray within = deep + "x" + QByteArray("</a>").repeated(100000);
    EXPECT_EQ(Read(Changed("Words", within)).Description, u"x"_s);
    EXPECT_EQ(Read(Changed("<MaxId>", within + "<MaxId>")).FormName, u"Survey"_s);
}

TEST(ProjectReader, RefusesADocumentTypeWhole)
{
    const struct {
        const char *what;
        QByteArray type;
    } rows[] = {
        {"a name alone", "<!DOCTYPE root>"},
        {"one from elsewhere", "<!DOCTYPE root SYSTEM \"file:///etc/hostname\">"},
        {"a public one", "<!DOCTYPE root PUBLIC \"-//A//B\" \"root.dtd\">"},
        {"one that declares an entity", "<!DOCTYPE root [<!ENTITY a \"b\">]>"},
        {"one that is broken further on", "<!DOCTYPE root [<!ENTITY a"},
        {"one of half a million bytes", "<!DOCTYPE root [<!ATTLIST root" +
                                            QByteArray(" a CDATA #IMPLIED").repeated(30000) +
                                            ">]>"},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(RefusalOf(Changed("<root>", row.type + "<root>")),
                  u"2: a project has no document type"_s);
    }
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

TEST(ProjectReader, RefusesEveryTruncation)
{
    for (qsizetype length = 0; length < smallProject.size() - 1; ++length)
        ASSERT_NE(RefusalOf(smallProject.first(length)), u"read"_s) << length;
    EXPECT_EQ(RefusalOf(smallProject.chopped(1)), u"read"_s) << "only the last line end is missing";
}

TEST(ProjectReader, WhatWasWrittenComesBackTheSame)
{
    for (const QString &name :
         {u"SiteVisit"_s, u"Nestbox"_s, u"edge-blank"_s, u"edge-disorder"_s, u"edge-latin"_s,
          u"edge-noitems"_s, u"edge-quotes"_s, u"random-12"_s}) {
        SCOPED_TRACE(name.toStdString());
        const QByteArray bytes = BytesOf(DataFile(u"projects/%1.vmp"_s.arg(name)));
        ASSERT_FALSE(bytes.isEmpty());
        const Result<QByteArray> again = WriteProject(Read(bytes));
        ASSERT_TRUE(again);
        EXPECT_EQ(*again, bytes);
    }
}
