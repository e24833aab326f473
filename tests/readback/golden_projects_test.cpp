// Every golden database that a project can be made into is held against that project.

#include "platform/code_page.h"
#include "readback/findings.h"

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

void ExpectSound(const Project &project)
{
    EXPECT_EQ(LinesOf(Golden(project.FormName), project), QStringList());
}

/// Items of a length, filled up with x.
QStringList Numbered(const QString &pattern, int count, int digits, int length)
{
    QStringList items;
    for (int i = 0; i < count; ++i)
        items += pattern.arg(i, digits, 10, QChar(u'0')).leftJustified(length, u'x');
    return items;
}

} // namespace

TEST(GoldenProjects, OneQuestionOfEachType)
{
    for (const Project &project : SmallProjects())
        ExpectSound(project);
}

TEST(GoldenProjects, ManyItems)
{
    const struct {
        QString name;
        QuestionRow question;
        QStringList items = {};
    } rows[] = {
        {u"pulldown100"_s,
         {0, u"Shelf"_s, u"Which shelf?"_s, u"Pulldown List"_s, u"SHELF"_s},
         Numbered(u"S%1"_s, 100, 2, 3)},
        {u"checkboxes32"_s,
         {0, u"Bits"_s, u"Which bits?"_s, u"Checkboxes"_s, u"BITS"_s},
         Numbered(u"Bit %1"_s, 32, 1, 5)},
        {u"longlist"_s,
         {0, u"Long"_s, u"A long script line"_s, u"Pulldown List"_s, u"LONG"_s},
         Numbered(u"Entry %1 "_s, 255, 1, 32)},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.name.toStdString());
        ExpectSound(OneQuestionProject(row.name, row.question, row.items));
    }
}

TEST(GoldenProjects, AllTypesTogether)
{
    ExpectSound(TenTypesProject());
}

TEST(GoldenProjects, AsManyQuestionsAsFit)
{
    const QStringList types = {
        u"Text"_s,  u"Numeric"_s,   u"Pulldown List"_s, u"Yes/No"_s,          u"Signature"_s,
        u"Notes"_s, u"Date/Time"_s, u"Currency"_s,      u"Scanned Barcode"_s, u"Checkboxes"_s};
    Project project = GoldenProject(u"q128"_s);
    project.FormVersion = u"1"_s;
    project.Description = u"The most questions"_s;
    project.FormPath = u"C:\\D"_s;
    for (int i = 0; i < 128; ++i) {
        const QString &type = types[i % types.size()];
        AddQuestion(project, {0, u"T%1"_s.arg(i), u"Q%1"_s.arg(i), type, u"C%1"_s.arg(i)},
                    i % 10 == 2 || i % 10 == 9 ? QStringList{u"a"_s, u"bb"_s} : QStringList());
    }
    ExpectSound(project);
}

TEST(GoldenProjects, EmptyTexts)
{
    Project project = GoldenProject(u"empties"_s);
    project.FormVersion = project.Description = u""_s;
    project.FormPath = u"C:"_s;
    AddQuestion(project, {0, u""_s, u"Q"_s, u"Text"_s, u"C"_s});
    AddQuestion(project, {0, u""_s, u"Q2"_s, u"Pulldown List"_s, u"D"_s},
                {u"a"_s, u""_s, u"b"_s, u""_s, u""_s});
    AddQuestion(project, {0, u""_s, u"Q3"_s, u"Checkboxes"_s, u"E"_s}, {u"x"_s, u""_s});
    ExpectSound(project);

    Project versionless =
        OneQuestionProject(u"noversion"_s, {0, u"A"_s, u"A?"_s, u"Text"_s, u"A"_s});
    versionless.FormVersion = u""_s;
    ExpectSound(versionless);

    Project unidentified = OneQuestionProject(u"noguid"_s, {0, u"A"_s, u"A?"_s, u"Text"_s, u"A"_s});
    unidentified.Description = u"No identifier"_s;
    unidentified.FormPath = uR"(D:\Forms\)"_s;
    ExpectSound(unidentified);
}

TEST(GoldenProjects, QuotesInTexts)
{
    Project project = OneQuestionProject(
        u"quotes"_s, {0, u"it's"_s, uR"(Is "this" \"quoted\" "?)"_s, u"Text"_s, u"A'B"_s});
    project.FormVersion = u"1"_s;
    project.Description = uR"(He said "go" and "went")"_s;
    ExpectSound(project);
}

TEST(GoldenProjects, EscapesInTexts)
{
    const struct {
        QString text, type;
        QString column = {}; ///< where it is not C, the number and the text
        QString title = {};  ///< where it is not the text
    } rows[] = {
        {uR"(\a\b\f\n\r\t\v\e\z)"_s, u"Text"_s},
        {uR"(tab\there)"_s, u"Numeric"_s},
        {uR"(\101\1012\7\377x)"_s, u"Pulldown List"_s},
        {uR"(\x41\x412\xe9\Xzz)"_s, u"Yes/No"_s},
        {uR"(a\_b\0c)"_s, u"Signature"_s},
        {uR"(cut\400lost)"_s, u"Notes"_s},
        {uR"(\\ and \')"_s, u"Date/Time"_s},
        {uR"(\q\%\8)"_s, u"Currency"_s},
        {uR"(dots... \x85)"_s, u"Scanned Barcode"_s},
        {u"/* no // comment */ #x"_s, u"Checkboxes"_s, {}, u"/* no // comment */ "_s},
        {uR"(; & $ ' , + \\)"_s, u"Text"_s},
    };
    Project project = GoldenProject(u"escapes"_s);
    project.FormVersion = uR"(v\x31.\060)"_s;
    project.Description = uR"(say "hi" C:\temp\new \x)"_s;
    project.FormPath = uR"(C:\a\101\n)"_s;
    int number = 0;
    for (const auto &row : rows) {
        const bool isList = row.type == u"Pulldown List" || row.type == u"Checkboxes";
        AddQuestion(project,
                    {0, row.title.isNull() ? row.text : row.title, row.text, row.type,
                     u"C%1%2"_s.arg(number++).arg(row.text)},
                    isList ? QStringList{row.text, u'x' + row.text} : QStringList());
    }
    ExpectSound(project);
}

TEST(GoldenProjects, LettersOfTheCodePage)
{
    const QString letters =
        u"\u20AC\u2026\u2018\u2019\u201C\u201D\u2013\u2014 \u00A1\u00BF\u00C4\u00D6\u00DC"
        "\u00DF\u00E4\u00F6\u00FC\u00E9\u00E8\u00F1\u00FF"_s;
    Project project = GoldenProject(u"latin1"_s);
    project.FormVersion = u"1.0\u00E9"_s;
    project.Description = u"Gr\u00FC\u00DFe "_s + letters;
    project.FormPath = u"C:\\Donn\u00E9es"_s;
    AddQuestion(project,
                {0, u"Pr\u00E9nom"_s, u"Quel est ton pr\u00E9nom?"_s, u"Text"_s, u"PR\u00C9NOM"_s});
    AddQuestion(project, {0, letters.first(6) + u"~~96"_s, letters, u"Checkboxes"_s, letters},
                {u"\u00C4pfel"_s, u"\u00D6l"_s, letters});
    AddQuestion(project,
                {0, u"Stra\u00DFe"_s, u"Welche Stra\u00DFe?"_s, u"Pulldown List"_s, u"STRASSE"_s},
                {u"K\u00F6nigsweg"_s, letters, u"M\u00FChlgasse"_s, u"WWWWmmmm....iiii"_s});
    ExpectSound(project);
}

TEST(GoldenProjects, ControlCharactersInTexts)
{
    Project project = GoldenProject(u"rawbytes"_s);
    project.FormVersion = u"1"_s;
    project.Description = u"\ttab \u0001\u001F \u007F"_s;
    AddQuestion(project, {0, u"\t"_s, u"\u001A\u001B?"_s, u"Text"_s, u"\v\f"_s});
    AddQuestion(
        project, {0, u"\u0018\u001C"_s, u"Y"_s, u"Checkboxes"_s, u"X"_s},
        {u"\u0002\u0005\u0010"_s, u"\u0014"_s, FromWindows1252("\x81\x8D\x8F\x90\x9D\xA0\xAD")});
    ExpectSound(project);
}

TEST(GoldenProjects, LongestTexts)
{
    Project project =
        OneQuestionProject(u"LongestNameOfAllForms-24"_s, {0, QString(20, u't'), QString(255, u'q'),
                                                           u"Yes/No"_s, QString(255, u'c')});
    project.FormVersion = QString(32, u'9');
    project.Description = u"Name of 24 characters"_s;
    ExpectSound(project);
}

TEST(GoldenProjects, AnotherProgramsDatabase)
{
    const Project project =
        OneQuestionProject(u"plainattr"_s, {0, u"A"_s, u"A?"_s, u"Signature"_s, u"A"_s});
    const QStringList expected = {
        u"database-name [database name] The database name is 'Form~1;$&'' instead of 'plainattr'."_s,
        u"database-type [database type] The database type is 'DATA' instead of 'kelp'."_s,
        u"database-creator [database creator] The database creator is 'Abcd' instead of 'Wmpt'."_s,
        u"database-attributes [database attributes] "
        "The database attributes: 0x0001 instead of 0x0101."_s};
    EXPECT_EQ(LinesOf(Golden(project.FormName), project), expected);
}
