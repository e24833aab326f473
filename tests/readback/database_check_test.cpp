#include "readback/database_check.h"

#include "readback/findings.h"

using namespace Qt::StringLiterals;
using namespace vellumo;

TEST(DatabaseCheck, FindsNothingInASoundDatabase)
{
    EXPECT_EQ(LinesOf(TenTypes(), TenTypesProject()), QStringList());
    EXPECT_EQ(LinesOf(WithResources(TenTypes(), Read(TenTypes()).resources), TenTypesProject()),
              QStringList());
}

TEST(DatabaseCheck, FindsAnotherHeader)
{
    const Damage rows[] = {
        {"another name",
         TenTypes().replace(0, 8, "tentypeS"),
         {u"database-name [database name] "
          "The database name is 'tentypeS' instead of 'tentypes'."_s}},
        {"another type",
         TenTypes().replace(60, 4, "appl"),
         {u"database-type [database type] The database type is 'appl' instead of 'kelp'."_s}},
        {"another creator",
         TenTypes().replace(64, 4, QByteArray("Wm\0\x1B", 4)),
         {u"database-creator [database creator] "
          "The database creator is 'Wm\\x00\\x1b' instead of 'Wmpt'."_s}},
        {"shown to the user",
         WithNumber(TenTypes(), 32, 2, 0x0001),
         {u"database-attributes [database attributes] "
          "The database attributes: 0x0001 instead of 0x0101."_s}},
        {"another version",
         WithNumber(TenTypes(), 34, 2, 2),
         {u"database-version [database version] "
          "The database version: 0x0002 instead of 0x0001."_s}},
    };
    for (const Damage &row : rows)
        ExpectFound(row, TenTypesProject());
}

TEST(DatabaseCheck, FindsMissingAndExtraResources)
{
    QList<PalmResource> more = Read(TenTypes()).resources;
    more.prepend({"abcd", 5});
    more.append({"tver", 2, QByteArray("1\0", 2)});
    const Damage rows[] = {
        {"a form",
         Without("tFRM", 10),
         {u"resource-missing [form 10] "
          "The form of question 10 is missing: there is no resource 'tFRM' 10."_s}},
        {"a navigation",
         Without("fnav", 1),
         {u"resource-missing [navigation 1] "
          "The navigation of question 1 is missing: there is no resource 'fnav' 1."_s}},
        {"the version",
         Without("tver", 1),
         {u"resource-missing [form version] "
          "The form version is missing: there is no resource 'tver' 1."_s}},
        {"two more",
         WithResources(TenTypes(), more),
         {u"resource-extra [resources] The resource 'abcd' 5 does not belong here."_s,
          u"resource-extra [resources] The resource 'tver' 2 does not belong here."_s}},
    };
    for (const Damage &row : rows)
        ExpectFound(row, TenTypesProject());

    QStringList fields;
    for (const QString &line : LinesOf(WithResources(TenTypes(), {}), TenTypesProject()))
        fields += line.section(u' ', 0, 0);
    EXPECT_EQ(fields, QStringList(9 + 2 * 10, u"resource-missing"_s));
}

TEST(DatabaseCheck, FindsOtherTexts)
{
    const Damage rows[] = {
        {"title",
         Replaced("tFRM", 2, "Wind", "Wand"),
         {u"title [title 2] The title of question 2 is 'Wand' instead of 'Wind'."_s}},
        {"question",
         Replaced("tFRM", 6, "rain?", "rain!"),
         {u"question-text [question text 6] "
          "The question text of question 6 is 'Did it rain!' instead of 'Did it rain?'."_s}},
        {"item",
         Replaced("tFRM", 1, "Robin", "Rabin"),
         {u"item [item list 1] "
          "The item list of question 1 has as item 2 'Rabin' instead of 'Robin'."_s}},
        {"button",
         Replaced("tFRM", 1, "Next", "Skip"),
         {u"form-object [form 1] "
          "The form of question 1: the text of button 100 is 'Skip' instead of 'Next'."_s}},
        {"column",
         Replaced("tSTL", 1004, "FARE", "Fare"),
         {u"column-name [column name 8] "
          "The column name of question 8 is 'Fare' instead of 'FARE'."_s}},
        {"prefix",
         Replaced("tSTL", 1004, QByteArray(1, '\0'), QByteArray("x\0", 2)),
         {u"column-prefix [prefix of all column names] "
          "The prefix of all column names is 'x' instead of ''."_s}},
        {"description",
         Replaced("desc", 1003, "Every", "every"),
         {u"description [description] The description is 'every kind of question once' "
          "instead of 'Every kind of question once'."_s}},
        {"folder",
         Replaced("sdir", 1005, "Ten\\", "Ten"),
         {u"data-folder [data folder] "
          "The data folder is 'C:\\Data\\Ten' instead of 'C:\\Data\\Ten\\'."_s}},
        {"name",
         Replaced("tAIN", 1000, "tentypes", "TenTypes"),
         {u"form-name [form name] The form name is 'TenTypes' instead of 'tentypes'."_s}},
        {"version",
         Replaced("tver", 1, "2.1", "2.10"),
         {u"form-version [form version] The form version is '2.10' instead of '2.1'."_s}},
        {"identifier in small letters",
         Replaced("guid", 1006, "ABCDEF", "abcdef"),
         {u"identifier [identifier] The identifier is '0123456789abcdef0123456789ABCDEF' "
          "instead of 32 hexadecimal digits."_s}},
        {"short identifier",
         Replaced("guid", 1006, "F01", "F1"),
         {u"identifier [identifier] The identifier is '0123456789ABCDEF123456789ABCDEF' "
          "instead of 32 hexadecimal digits."_s}},
    };
    for (const Damage &row : rows)
        ExpectFound(row, TenTypesProject());
}

TEST(DatabaseCheck, FindsOtherCountsAndCodes)
{
    const Damage rows[] = {
        {"count",
         Replaced("flds", 1000, QByteArray("\0\x0A", 2), "\x01\x0B"),
         {u"question-count [question count] The question count is 267 instead of 10."_s}},
        {"codes of two types swapped",
         Replaced("ques", 1002, "\x09\x04", "\x04\x09"),
         {u"type-code [type 1] The type of question 1 is 0x04 instead of 0x09."_s,
          u"type-code [type 2] The type of question 2 is 0x09 instead of 0x04."_s}},
        {"the code of a value",
         Replaced("fldt", 1001, "\x05", "\x03"),
         {u"value-code [value kind 8] The value kind of question 8 is 0x03 instead of 0x05."_s}},
        {"a code less",
         Replaced("ques", 1002, "\x09\x04", "\x09"),
         {u"code-count [list of types] The list of types has 9 entries instead of 10."_s}},
        {"a column less",
         Replaced("tSTL", 1004,
                  QByteArray("\x0A"
                             "BIRDS\0",
                             7),
                  "\x09"),
         {u"column-count [list of column names] The list of column names has 9 entries instead of 10."_s}},
    };
    for (const Damage &row : rows)
        ExpectFound(row, TenTypesProject());
}

TEST(DatabaseCheck, FindsOtherObjects)
{
    const auto changedForm = [](quint32 number, qsizetype offset, quint32 value) {
        return WithData(TenTypes(), "tFRM", number,
                        [&](const QByteArray &data) { return WithNumber(data, offset, 2, value); });
    };
    const QByteArray text = Read(TenTypes()).Find("tFRM", 10)->data;
    const qsizetype field = text.indexOf(QByteArray("\0\x02\0\x0A\0\x38", 6));
    const QByteArray checks = Read(TenTypes()).Find("tFRM", 1)->data;
    const qsizetype list = checks.indexOf(QByteArray("\0\x04\0\x0D\0\x35", 6));
    const qsizetype table = checks.indexOf(QByteArray("\0\x02\0\x0D\0\x36", 6));
    ASSERT_TRUE(field > 0 && list > 0 && table > 0);
    const Damage rows[] = {
        {"a wider form",
         changedForm(3, 14, 161),
         {u"form-header [form 3] The form of question 3: the width of the form is 161 instead of 160."_s}},
        {"a form not shown",
         changedForm(3, 42, 0),
         {u"form-header [form 3] The form of question 3: the flag word of the form is 0x0000 instead of 0x8000."_s}},
        {"a field elsewhere",
         changedForm(10, field + 2, 11),
         {u"form-object [form 10] "
          "The form of question 10: the left edge of field 2 is 11 instead of 10."_s}},
        {"a field for fewer letters",
         changedForm(10, field + 28, 254),
         {u"form-object [form 10] "
          "The form of question 10: the longest content of field 2 is 254 instead of 255."_s}},
        {"a field for numbers",
         changedForm(10, field + 10, 0xA242),
         {u"form-object [form 10] "
          "The form of question 10: the flag word of field 2 is 0xa242 instead of 0xa240."_s}},
        {"another number of a field",
         changedForm(10, field, 3),
         {u"form-objects [form 10] "
          "The form of question 10: object 3 is field 3 instead of field 2."_s}},
        {"columns of another width",
         changedForm(1, table + 74, 13),
         {u"form-object [form 1] The form of question 1: the columns of table 2 differ."_s}},
        {"a list too narrow",
         changedForm(1, list + 6, 5),
         {u"form-object [form 1] The form of question 1: the width of list 4 is 5 instead of 6."_s}},
        {"a list just wide enough", changedForm(1, list + 6, 6), {}},
    };
    for (const Damage &row : rows)
        ExpectFound(row, TenTypesProject());
}

TEST(DatabaseCheck, FindsAnotherFormOrNavigation)
{
    const PalmDatabase tenTypes = Read(TenTypes());
    const auto formOf = [&tenTypes](quint32 number) {
        return [data = tenTypes.Find("tFRM", number)->data, number](const QByteArray &) {
            return WithNumber(data, 40, 2, number);
        };
    };
    const Damage rows[] = {
        {"the form of another question",
         WithData(TenTypes(), "tFRM", 4, formOf(7)),
         {u"form-header [form 4] The form of question 4: the number of the form is 7 instead of 4."_s,
          u"title [title 4] The title of question 4 is 'Map' instead of 'Sign'."_s,
          u"question-text [question text 4] The question text of question 4 is "
          "'Sketch the round' instead of 'Sign for the round'."_s,
          u"form-object [form 4] The form of question 4: the top edge of gadget 2 is 50 instead of 75."_s,
          u"form-object [form 4] The form of question 4: the height of gadget 2 is 88 instead of 61."_s}},
        {"another navigation",
         Replaced("fnav", 6, QByteArray("\0\x03\0\0\0\x02", 6), QByteArray("\0\x03\0\0\0\x63", 6)),
         {u"navigation [navigation 6] The navigation of question 6 is not that of its type."_s}},
    };
    for (const Damage &row : rows)
        ExpectFound(row, TenTypesProject());
}

TEST(DatabaseCheck, FindsATypeThatIsUnknown)
{
    Project project = TenTypesProject();
    AddQuestion(project, {.Type = u"Txet"_s});
    EXPECT_TRUE(CodesOf(LinesOf(TenTypes(), project)).contains(u"unknown-type [type 11]"_s));
}

TEST(DatabaseCheck, FindsDamagedResources)
{
    const Damage rows[] = {
        {"a form",
         WithByteAfter("tFRM", 4),
         {u"resource-damaged [form 4] The form of question 4 is damaged: "
          "it should end at byte 356, but has 357 bytes."_s}},
        {"a navigation",
         WithByteAfter("fnav", 4),
         {u"resource-damaged [navigation 4] The navigation of question 4 is damaged: "
          "it should end at byte 52, but has 53 bytes."_s}},
        {"the count",
         WithByteAfter("flds", 1000),
         {u"resource-damaged [question count] The question count is damaged: "
          "it has 3 bytes instead of 2."_s}},
        {"the columns",
         WithByteAfter("tSTL", 1004),
         {u"resource-damaged [list of column names] The list of column names is damaged: "
          "it should end at byte 61, but has 62 bytes."_s}},
        {"the description",
         WithByteAfter("desc", 1003),
         {u"resource-damaged [description] The description is damaged: "
          "it should end at byte 28, but has 29 bytes."_s}},
        {"the identifier",
         WithByteAfter("guid", 1006),
         {u"resource-damaged [identifier] The identifier is damaged: "
          "it should end at byte 33, but has 34 bytes."_s}},
        {"a byte more at the end of the file",
         TenTypes() + '\0',
         {u"resource-damaged [form version] The form version is damaged: "
          "it should end at byte 4, but has 5 bytes."_s}},
        {"a byte less",
         TenTypes().chopped(1),
         {u"resource-damaged [form version] The form version is damaged: "
          "the text at byte 0 has no end."_s}},
        {"a foreign file",
         "PK\x03\x04",
         {u"unreadable This is no sound Palm database: it ends too early, at byte 4."_s}},
    };
    for (const Damage &row : rows)
        ExpectFound(row, TenTypesProject());
}

TEST(DatabaseCheck, FindsThatTheProjectHasGoneOn)
{
    Project project = TextProject();
    AddQuestion(project, {0, u"Place"_s, u"Where?"_s, u"Text"_s, u"PLACE"_s});
    const QStringList oneMore = {
        u"question-count [question count]"_s, u"code-count [list of value kinds]"_s,
        u"code-count [list of types]"_s,      u"column-count [list of column names]"_s,
        u"resource-missing [form 2]"_s,       u"resource-missing [navigation 2]"_s};
    EXPECT_EQ(CodesOf(LinesOf(Golden(u"text"_s), project)), oneMore);

    Project less = TenTypesProject();
    less.source.MoveLast();
    less.source.DeleteQuestion();
    const QStringList oneLess = {
        u"question-count [question count]"_s, u"code-count [list of value kinds]"_s,
        u"code-count [list of types]"_s,      u"column-count [list of column names]"_s,
        u"resource-extra [resources]"_s,      u"resource-extra [resources]"_s};
    EXPECT_EQ(CodesOf(LinesOf(TenTypes(), less)), oneLess);

    Project items = TenTypesProject();
    items.source.Items().Append({items.source.Questions().Current().Id - 8, u"Gale"_s});
    EXPECT_EQ(LinesOf(TenTypes(), items),
              QStringList{u"item-count [item list 2] "
                          "The item list of question 2 has 4 items instead of 5."_s});

    Project retyped = TextProject();
    retyped.source.Questions().Current().Type = u"Notes"_s;
    const QStringList another = {
        u"value-code [value kind 1] The value kind of question 1 is 0x00 instead of 0x02."_s,
        u"type-code [type 1] The type of question 1 is 0x00 instead of 0x06."_s,
        u"form-objects [form 1] "
        "The form of question 1: object 3 is field 2 instead of gadget 2."_s};
    EXPECT_EQ(LinesOf(Golden(u"text"_s), retyped), another);
}
