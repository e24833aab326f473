#include "settings_file.h"

using namespace Qt::StringLiterals;
using namespace vellumo;

TEST_F(BasRegistry, MakesAMissingFileByteForByte)
{
    EXPECT_FALSE(EnsureSettingsFile(Folder()));
    EXPECT_EQ(BytesOf(File()), QByteArray(asFirstCreated));
    EXPECT_EQ(NamesIn(Folder()), QStringList{u"settings.ini"_s});
    EXPECT_TRUE(EnsureSettingsFile(Folder())) << "now it is there";
}

TEST_F(BasRegistry, LeavesAnExistingFileAlone)
{
    for (const QByteArray bytes : {"", "anything", "<Vmdesigner/>"}) {
        Put(bytes);
        EXPECT_TRUE(EnsureSettingsFile(Folder()));
        ReadShowOpenForm(Folder());
        EXPECT_EQ(BytesOf(File()), bytes);
    }
}

TEST_F(BasRegistry, TheFirstStartShowsTheChooser)
{
    const ShowOpenForm first = ReadShowOpenForm(Folder());
    EXPECT_EQ(first.value, 1);
    EXPECT_EQ(first.message, u""_s);
    EXPECT_EQ(BytesOf(File()), QByteArray(asFirstCreated));
    EXPECT_EQ(ReadShowOpenForm(Folder()).value, 1) << "and so does the second, from the file";
}

TEST_F(BasRegistry, ComparesTheValueAsANumber)
{
    const struct {
        QByteArray value;
        int answer;
    } rows[] = {
        {"1", 1},        {"0", 0},         {" 1 ", 1},    {"\r\n\t0\r\n", 0}, {"01", 1},
        {"+1", 1},       {"1.0", 1},       {"-0", 0},     {"&#49;", 1},       {"<![CDATA[1]]>", 1},
        {"<b>1</b>", 1}, {"1<!--0-->", 1}, {"2", -1},     {"-1", -1},         {"0.5", -1},
        {"10", -1},      {"1 0", -1},      {"65537", -1}, {"", -1},           {"  ", -1},
        {"yes", -1},     {"1x", -1},       {"nan", -1},   {"1e999", -1},      {"0x1", -1},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.value.toStdString());
        PutValue(row.value);
        const ShowOpenForm read = ReadShowOpenForm(Folder());
        EXPECT_EQ(read.value, row.answer);
        EXPECT_EQ(read.message, row.answer < 0 ? u"There is a bug with setting file."_s : u""_s);
    }
}

TEST_F(BasRegistry, TakesTheElementFromItsPlaceAlone)
{
    const struct {
        const char *what;
        QByteArray document;
        int answer;
    } rows[] = {
        {"the first of two",
         "<Vmdesigner><ShowOpenForm>0</ShowOpenForm>"
         "<ShowOpenForm>1</ShowOpenForm></Vmdesigner>",
         0},
        {"after others",
         "<?xml version='1.0'?><!-- a --><Vmdesigner a='b'><X>0</X>"
         "<ShowOpenForm>1</ShowOpenForm></Vmdesigner>",
         1},
        {"too deep", "<Vmdesigner><X><ShowOpenForm>1</ShowOpenForm></X></Vmdesigner>", -1},
        {"another root", "<Settings><ShowOpenForm>1</ShowOpenForm></Settings>", -1},
        {"another case", "<vmdesigner><showopenform>1</showopenform></vmdesigner>", -1},
        {"no such element", "<Vmdesigner></Vmdesigner>", -1},
        {"the root itself", "<ShowOpenForm>1</ShowOpenForm>", -1},
        {"no end", "<Vmdesigner><ShowOpenForm>1</ShowOpenForm>", -1},
        {"something after the end", QByteArray(asFirstCreated) + "<", -1},
        {"not XML", "[Settings]\r\nShowOpenForm=1\r\n", -1},
        {"no bytes", "", -1},
        {"zero bytes", QByteArray(64, '\0'), -1},
        {"entities that grow without end",
         "<!DOCTYPE Vmdesigner [<!ENTITY a '1111111111'>"
         "<!ENTITY b '&a;&a;&a;&a;&a;&a;&a;&a;&a;&a;'><!ENTITY c '&b;&b;&b;&b;&b;&b;&b;&b;&b;&b;'>"
         "<!ENTITY d '&c;&c;&c;&c;&c;&c;&c;&c;&c;&c;'>]>"
         "<Vmdesigner><X>&d;&d;</X><ShowOpenForm>1</ShowOpenForm></Vmdesigner>",
         -1},
        {"very deep",
         QByteArray("<Vmdesigner><ShowOpenForm>1") + QByteArray("<a>").repeated(100000), -1},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.what);
        Put(row.document);
        EXPECT_EQ(ReadShowOpenForm(Folder()).value, row.answer);
        EXPECT_EQ(BytesOf(File()), row.document) << "reading changes nothing";
    }
}

TEST_F(BasRegistry, SwitchesTheChooserOffForGood)
{
    ReadShowOpenForm(Folder());
    const QByteArray off = "<Vmdesigner>\r\n<ShowOpenForm>0</ShowOpenForm>\r\n</Vmdesigner>\r\n";
    for (int time = 1; time <= 2; ++time) {
        HideOpenFormNextTime(Folder());
        EXPECT_EQ(BytesOf(File()), off) << "no line end is added the second time";
        EXPECT_EQ(ReadShowOpenForm(Folder()).value, 0);
    }
    ASSERT_TRUE(QFile::remove(File()));
    EXPECT_EQ(ReadShowOpenForm(Folder()).value, 1) << "only deleting the file brings it back";
}

TEST_F(BasRegistry, KeepsTheRestOfTheDocument)
{
    Put("<?xml version=\"1.0\" encoding=\"UTF-8\"?><Vmdesigner kept=\"&lt;&quot;\">\n"
        "\t<!-- by hand -->\r\n"
        "\t<Other> a &amp; b \xC3\xA9 </Other><?note x?>\r\n"
        "\t<ShowOpenForm since=\"2\"> <b>1</b> </ShowOpenForm>\r\n"
        "\t<ShowOpenForm>1</ShowOpenForm>\r\n"
        "\t<x:y xmlns:x=\"urn:z\"/>\r\n"
        "</Vmdesigner>\r\n\r\n");
    HideOpenFormNextTime(Folder());
    EXPECT_EQ(BytesOf(File()), QByteArray("<?xml version=\"1.0\" encoding=\"UTF-8\"?>"
                                          "<Vmdesigner kept=\"&lt;&quot;\">\r\n"
                                          "\t<!-- by hand -->\r\n"
                                          "\t<Other> a &amp; b \xC3\xA9 </Other><?note x?>\r\n"
                                          "\t<ShowOpenForm since=\"2\">0</ShowOpenForm>\r\n"
                                          "\t<ShowOpenForm>1</ShowOpenForm>\r\n"
                                          "\t<x:y xmlns:x=\"urn:z\"/>\r\n"
                                          "</Vmdesigner>\r\n"));
}

TEST_F(BasRegistry, SetsAnyValueToZero)
{
    for (const QByteArray value : {"2", "", "yes", "<b/>"}) {
        PutValue(value);
        HideOpenFormNextTime(Folder());
        EXPECT_EQ(BytesOf(File()), "<Vmdesigner><ShowOpenForm>0</ShowOpenForm></Vmdesigner>\r\n");
    }
}

TEST_F(BasRegistry, ReadsAndWritesTheExamplesOfItsPage)
{
    const QByteArray page = BytesOf(DataFile(u"../../docs/settings-file.md"_s));
    const auto asOnThePage = [](const QByteArray &bytes) {
        return "\n    " + bytes.trimmed().replace("\r\n", "\n    ") + '\n';
    };
    EXPECT_EQ(ReadShowOpenForm(Folder()).value, 1);
    EXPECT_TRUE(page.contains(asOnThePage(BytesOf(File()))));
    HideOpenFormNextTime(Folder());
    EXPECT_EQ(ReadShowOpenForm(Folder()).value, 0);
    EXPECT_TRUE(page.contains(asOnThePage(BytesOf(File()))));
}
