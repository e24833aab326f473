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
