#include "validation/form_rules.h"

#include "support/print.h"

#include <gtest/gtest.h>

#include <span>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

using TextRule = void (*)(QString &text, bool &failed, QString &message);

/// What a rule makes of a text: the text that it leaves and its message, empty where it passes.
struct Row {
    const char *what;
    QString text, left, message;
};

void ExpectRows(TextRule validate, std::span<const Row> rows)
{
    for (const Row &row : rows) {
        SCOPED_TRACE(row.what);
        QString text = row.text, message;
        bool failed = false;
        validate(text, failed, message);
        EXPECT_EQ(text, row.left);
        EXPECT_EQ(message, row.message);
        EXPECT_EQ(failed, !row.message.isEmpty());
    }
}

/// A row whose text has no blanks at its ends.
Row Kept(const char *what, const QString &text, const QString &message = {})
{
    return {what, text, text, message};
}

const QString passes;

} // namespace

TEST(FormRules, Name)
{
    const QString missing = u"Please enter a name for your Vellsheet."_s;
    const QString tooLong = u"Please keep the Vellsheet name under 24 characters in length."_s;
    const QString characters = u"\"\\/:*?<>|are not allowed for file name"_s;
    const QString spaces = u"Spaces in the Vellsheet name are not allowed."_s;
    const QString longest(24, u'n');
    const Row rows[] = {
        {"blanks around it go", u"  Survey  "_s, u"Survey"_s, passes},
        {"blanks go from one that fails, too", u" My Survey "_s, u"My Survey"_s, spaces},
        Kept("empty", u""_s, missing),
        {"nothing but blanks", u"   "_s, u""_s, missing},
        Kept("one character", u"S"_s),
        Kept("a tab alone is not nothing", u"\t"_s),
        Kept("tabs at the ends stay", u"\tSurvey\t"_s),
        {"blanks before a tab go, those behind it stay", u" \t Survey"_s, u"\t Survey"_s, spaces},
        Kept("24 is inclusive", longest),
        {"the length is that without the blanks", u"  %1  "_s.arg(longest), longest, passes},
        Kept("one over", longest + u'n', tooLong),
        Kept("24 with an accent", QString(24, u'\u00E9')),
        Kept("a vertical bar", u"a|b"_s, characters),
        Kept("a greater-than", u"a>b"_s, characters),
        Kept("a less-than", u"a<b"_s, characters),
        Kept("a question mark", u"a?b"_s, characters),
        Kept("an asterisk", u"My*Survey"_s, characters),
        Kept("a colon", u"a:b"_s, characters),
        Kept("a slash", u"a/b"_s, characters),
        Kept("a backslash", u"a\\b"_s, characters),
        Kept("a double quote", u"a\"b"_s, characters),
        Kept("one at the start", u"*ab"_s, characters),
        Kept("one at the end", u"ab*"_s, characters),
        Kept("other odd characters are allowed", u"-a.b,c;'%&()[]{}$#@!"_s),
        Kept("a space inside", u"My Survey"_s, spaces),
        Kept("the length comes before the characters", QString(30, u'*'), tooLong),
        Kept("the length comes before the spaces", u"a "_s + longest, tooLong),
        Kept("the characters come before the spaces", u"My *Survey"_s, characters),
    };
    ExpectRows(ValidateAppName, rows);
}

TEST(FormRules, Version)
{
    const QString tooLong = u"Please keep your Vellsheet Version under 32 characters in length."_s;
    const QString spaces = u"Spaces in the Vellsheet Version are not allowed."_s;
    const QString quotes = u"Double Quotes in the Vellsheet Version are not allowed."_s;
    const QString longest(32, u'9');
    const Row rows[] = {
        Kept("empty is allowed", u""_s),
        {"nothing but blanks is empty", u"  "_s, u""_s, passes},
        {"blanks around it go", u" 1.0 "_s, u"1.0"_s, passes},
        {"blanks go from one that fails, too", u" 1.0 beta "_s, u"1.0 beta"_s, spaces},
        Kept("tabs stay", u"\t1.0\t"_s),
        Kept("32 is inclusive", longest),
        {"the length is that without the blanks", u" %1 "_s.arg(longest), longest, passes},
        Kept("one over", longest + u'9', tooLong),
        Kept("a space inside", u"1.0 beta"_s, spaces),
        Kept("a double quote", u"1.0\"b\""_s, quotes),
        Kept("file name characters are allowed", u"1/2:3*?<>|\\"_s),
        Kept("the length comes before the spaces", u"1 "_s + longest, tooLong),
        Kept("the length comes before the quotes", u"\""_s + longest, tooLong),
        Kept("the spaces come before the quotes", u"\"1 0\""_s, spaces),
    };
    ExpectRows(ValidateAppVersion, rows);
}

TEST(FormRules, Description)
{
    const QString tooLong =
        u"Please keep your Vellsheet description under 200 characters in length."_s;
    const QString returns = u"Carriage returns are not allowed in description."_s;
    const QString longest(200, u'd');
    const Row rows[] = {
        Kept("empty is allowed", u""_s),
        {"nothing but blanks is empty", u"  "_s, u""_s, passes},
        {"blanks around it go, those inside stay", u" Birds  seen "_s, u"Birds  seen"_s, passes},
        {"blanks go from one that fails, too", u" a\nb "_s, u"a\nb"_s, returns},
        Kept("tabs stay", u"\tBirds\t"_s),
        Kept("200 is inclusive", longest),
        {"the length is that without the blanks", u" %1 "_s.arg(longest), longest, passes},
        Kept("one over", longest + u'd', tooLong),
        Kept("a line feed", u"a\nb"_s, returns),
        Kept("a carriage return", u"a\rb"_s, returns),
        Kept("both, at the end", u"a\r\n"_s, returns),
        Kept("quotes and backslashes are allowed", u"Say \"hi\\\""_s),
        Kept("the length comes before the returns", u"\n"_s + longest, tooLong),
    };
    ExpectRows(ValidateAppDesc, rows);
}

const QString missingFolder = u"Please provide a default data directory path."_s;
const QString invalidFolder = u"This is not a valid directory name."_s;
const Row dataFolders[] = {
    Kept("empty", u""_s, missingFolder),
    {"nothing but blanks", u"  "_s, u""_s, missingFolder},
    Kept("a folder", u"C:\\Data"_s),
    {"blanks around it go, those inside stay", u" C:\\My Data "_s, u"C:\\My Data"_s, passes},
    {"blanks go from one that fails, too", u" Data "_s, u"Data"_s, invalidFolder},
    {"a tab at the end stays", u"C:\\Data\t "_s, u"C:\\Data\t"_s, passes},
    Kept("a tab at the start is no letter", u"\tC:\\Data"_s, invalidFolder),
    Kept("a bare root, in lower case", u"c:\\"_s),
    Kept("the first letter", u"A:\\"_s),
    Kept("the last letter", u"Z:\\"_s),
    Kept("the first small letter", u"a:\\"_s),
    Kept("the last small letter", u"z:\\"_s),
    Kept("what stands before the letters", u"@:\\"_s, invalidFolder),
    Kept("what stands behind the letters", u"[:\\"_s, invalidFolder),
    Kept("what stands before the small letters", u"`:\\"_s, invalidFolder),
    Kept("what stands behind the small letters", u"{:\\"_s, invalidFolder),
    Kept("a digit", u"1:\\x"_s, invalidFolder),
    Kept("a letter beyond ASCII", u"\u00C4:\\x"_s, invalidFolder),
    Kept("a letter alone", u"C"_s, invalidFolder),
    Kept("a drive without a root", u"C:"_s, invalidFolder),
    Kept("a drive and a relative path", u"C:Data"_s, invalidFolder),
    Kept("a drive letter without its colon", u"C\\Data"_s, invalidFolder),
    Kept("a root without a drive", u"\\Data"_s, invalidFolder),
    Kept("a server", u"\\\\server\\share"_s, invalidFolder),
    Kept("a backslash at the end", u"C:\\Data\\"_s),
    Kept("two backslashes in a row", u"C:\\\\Data\\\\x"_s),
    Kept("a second colon", u"C:\\Da:ta"_s, invalidFolder),
    Kept("a colon in the third place", u"C::\\"_s, invalidFolder),
    Kept("a double quote", u"C:\\Da\"ta"_s, invalidFolder),
    Kept("a double quote in the third place", u"C:\"Data"_s, invalidFolder),
    Kept("a double quote in the first place", u"\":\\Data"_s, invalidFolder),
    Kept("a double quote in the second place", u"C\"\\Data"_s, invalidFolder),
    Kept("a question mark", u"C:\\a?b"_s, invalidFolder),
    Kept("a greater-than", u"C:\\a>b"_s, invalidFolder),
    Kept("an asterisk", u"C:\\a*b"_s, invalidFolder),
    Kept("a slash", u"C:\\a/b"_s, invalidFolder),
    Kept("slashes for backslashes", u"C:/Data"_s, invalidFolder),
    Kept("a vertical bar", u"C:\\a|b"_s, invalidFolder),
    Kept("a less-than", u"C:\\a<b"_s, invalidFolder),
    Kept("other odd characters", u"C:\\[a]!#;,%\u00E9"_s),
    Kept("any length", u"C:\\"_s + QString(1000, u'x')),
};

TEST(FormRules, DataFolder)
{
    ExpectRows(ValidateAppDir, dataFolders);
}

TEST(FormRules, QuestionCount)
{
    const QString tooFew = u"Your Vellsheet requires a minimum of one question."_s;
    const QString tooMany = u"The maximum number of questions is 128."_s;
    const struct {
        int count;
        QString message;
    } rows[] = {
        {0, tooFew},
        {1, passes},
        {128, passes},
        {129, tooMany},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.count);
        QString message;
        bool failed = false;
        ValidateQuestionCount(row.count, failed, message);
        EXPECT_EQ(message, row.message);
        EXPECT_EQ(failed, !row.message.isEmpty());
    }
}

TEST(FormRules, LeaveFlagAndMessageAloneWherePassed)
{
    const struct {
        TextRule validate;
        QString text;
    } rows[] = {
        {ValidateAppName, u"Survey"_s},
        {ValidateAppVersion, u"1.0"_s},
        {ValidateAppDesc, u"Birds seen"_s},
        {ValidateAppDir, u"C:\\Data"_s},
    };
    for (const bool before : {false, true}) {
        bool failed = before;
        QString message = u"as it was"_s;
        for (const auto &row : rows) {
            QString text = row.text;
            row.validate(text, failed, message);
        }
        ValidateQuestionCount(1, failed, message);
        EXPECT_EQ(failed, before);
        EXPECT_EQ(message, u"as it was"_s);
    }
}

TEST(FormRules, OneFlagServesSeveralRules)
{
    QString name = u"My Survey"_s, version = u"1.0"_s;
    QString nameMessage, versionMessage;
    bool failed = false;
    ValidateAppName(name, failed, nameMessage);
    ValidateAppVersion(version, failed, versionMessage);
    EXPECT_TRUE(failed);
    EXPECT_EQ(nameMessage, u"Spaces in the Vellsheet name are not allowed."_s);
    EXPECT_EQ(versionMessage, u""_s);
}
