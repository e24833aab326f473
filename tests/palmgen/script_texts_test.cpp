#include "scripts.h"

using namespace Qt::StringLiterals;
using namespace vellumo;

TEST(ScriptGenerator, WritesTheDataFolderWithOneBackslashAtItsEnd)
{
    const struct {
        const char *what;
        QString folder;
        QByteArray line;
    } rows[] = {
        {"one is added", uR"(D:\Forms)"_s, R"("D:\\Forms\\" 0x00)"},
        {"one is there", uR"(D:\Forms\)"_s, R"("D:\\Forms\\" 0x00)"},
        {"all are doubled", uR"(C:\a\\b)"_s, R"("C:\\a\\\\b\\" 0x00)"},
        {"nothing but the added one", u""_s, R"("\\" 0x00)"},
        {"blanks are not trimmed", uR"( C:\a )"_s, R"(" C:\\a \\" 0x00)"},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.what);
        Project project;
        project.FormPath = row.folder;
        EXPECT_TRUE(Lines(project).contains("HEX \"sdir\" id 1005\r\n" + row.line + "\r\n\r\n"));
    }
}

TEST(ScriptGenerator, WritesAnEmptyIdentifierWhenNoneCouldBeMade)
{
    EXPECT_TRUE(Lines(Project(), u""_s).contains("HEX \"guid\" id 1006\r\n\"\" 0x00\r\n\r\n"));
}

TEST(ScriptGenerator, EscapesDescriptionAndQuestionAlone)
{
    Project project = ProjectOf({.Title = u"a\"b"_s,
                                 .Question = u"say \"hi\""_s,
                                 .Type = u"Text"_s,
                                 .ColumnName = u"c\"d"_s,
                                 .Id = 1});
    project.FormName = u" n\"x "_s;
    project.FormVersion = u"1\"0"_s;
    const QByteArray script = Lines(project);
    EXPECT_EQ(LineOf(script, "title"), "title \"a\"b\"");
    EXPECT_EQ(LineOf(script, "label \"say"), "label \"say \\\"hi\\\"\" id 1 AT (10 34) FONT 1");
    EXPECT_EQ(LineOf(script, "STRINGTABLE"), "STRINGTABLE ID 1004 \"\" \"c\"d\"");
    EXPECT_EQ(LineOf(script, "applicationiconname"), "applicationiconname id 1000 \" n\"x \"")
        << "the name as typed";
    EXPECT_EQ(LineOf(script, "version"), "version id 1 \"1\"0\"");
}

TEST(ScriptGenerator, EscapesQuotes)
{
    const struct {
        const char *what;
        QString text, escaped;
    } rows[] = {
        {"nothing", u""_s, u""_s},
        {"a quote", uR"(Say "hi")"_s, uR"(Say \"hi\")"_s},
        {"one that is escaped already", uR"(Say \"hi\")"_s, uR"(Say \"hi\")"_s},
        {"more backslashes in front are folded too", uR"(\\\"a)"_s, uR"(\"a)"_s},
        {"quotes side by side", uR"("")"_s, uR"(\"\")"_s},
        {"other backslashes stay", uR"(C:\a\\b\)"_s, uR"(C:\a\\b\)"_s},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(EscapeScriptString(row.text), row.escaped);
    }
    EXPECT_EQ(EscapeScriptString(QString(1000000, u'\\') + u'"'), uR"(\")"_s);
}

TEST(ScriptGenerator, ReadsTheIdentifierFromItsRegistryForm)
{
    EXPECT_EQ(IdentifierDigits(u"{01234567-89AB-CDEF-0123-456789ABCDEF}"_s), identifier);
    EXPECT_EQ(IdentifierDigits(u""_s), u""_s);
}
