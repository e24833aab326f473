#include "small_project.h"

using namespace Qt::StringLiterals;
using namespace vellumo;

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

TEST(ProjectReader, RefusesEveryTruncation)
{
    for (qsizetype length = 0; length < smallProject.size() - 1; ++length)
        ASSERT_NE(RefusalOf(smallProject.first(length)), u"read"_s) << length;
    EXPECT_EQ(RefusalOf(smallProject.chopped(1)), u"read"_s) << "only the last line end is missing";
}
