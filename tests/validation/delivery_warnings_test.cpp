#include "validation/delivery_warnings.h"

#include "model/project_file.h"
#include "support/files.h"
#include "support/print.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

Project ProjectOf(const std::vector<QuestionRow> &questions, const std::vector<ItemRow> &items = {})
{
    Project project;
    for (const QuestionRow &question : questions)
        project.source.Questions().Append(question);
    for (const ItemRow &item : items)
        project.source.Items().Append(item);
    return project;
}

QStringList Sentences(const Project &project)
{
    QStringList sentences;
    for (const DeliveryWarning &warning : FindDeliveryWarnings(project))
        sentences << Describe(warning);
    return sentences;
}

/// Each warning as "code question field text".
QStringList Summaries(const Project &project)
{
    QStringList summaries;
    for (const DeliveryWarning &warning : FindDeliveryWarnings(project))
        summaries << u"%1 %2 %3 %4"_s.arg(warning.code, QString::number(warning.place.question),
                                          warning.place.field, warning.text);
    return summaries;
}

const QString text = u"Text"_s;
const QString pulldown = u"Pulldown List"_s;
const QString checkboxes = u"Checkboxes"_s;

const QString severalItems =
    u"item: \"a,b\": a comma ends an item, so this one will arrive as several"_s;
const QString noItems =
    u"question 1, item list: a list question without items stops the creation of the script"_s;
const QString sharedId =
    u"question 2, Id: \"9\": question 1 has the same Id, and items go by the Id"_s;

} // namespace

TEST(DeliveryWarnings, OfBackslashesAndDoubleQuotes)
{
    const struct {
        const char *what;
        QString typed;
        QStringList raw, escaped; ///< codes where the script escapes no quote, and where it does
    } rows[] = {
        {"nothing odd", u"It's 100% (of 5) a/b"_s, {}, {}},
        {"nothing", u""_s, {}, {}},
        {"a backslash inside", u"a\\b"_s, {u"backslash"_s}, {u"backslash"_s}},
        {"one at the end", u"a\\"_s, {u"backslash"_s}, {u"backslash"_s}},
        {"one is enough to warn once", u"a\\b\\c\\"_s, {u"backslash"_s}, {u"backslash"_s}},
        {"a quote", u"a\"b"_s, {u"double-quote"_s}, {}},
        {"a line feed", u"a\nb"_s, {u"line-break"_s}, {u"line-break"_s}},
        {"a carriage return", u"a\r"_s, {u"line-break"_s}, {u"line-break"_s}},
        {"both", u"a\\\"b"_s, {u"backslash"_s, u"double-quote"_s}, {u"backslash"_s}},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.what);
        const auto expected = [&row](const QStringList &codes, const QString &place) {
            QStringList summaries;
            for (const QString &code : codes)
                summaries << u"%1 %2 %3"_s.arg(code, place, row.typed);
            return summaries;
        };
        Project project;
        project.FormVersion = row.typed;
        EXPECT_EQ(Summaries(project), expected(row.raw, u"0 form version"_s));
        project = Project();
        project.Description = row.typed;
        EXPECT_EQ(Summaries(project), expected(row.escaped, u"0 description"_s));
        EXPECT_EQ(Summaries(ProjectOf({{.Title = row.typed, .Type = text}})),
                  expected(row.raw, u"1 title"_s));
        EXPECT_EQ(Summaries(ProjectOf({{.Type = text, .ColumnName = row.typed}})),
                  expected(row.raw, u"1 column name"_s));
        EXPECT_EQ(Summaries(ProjectOf({{.Question = row.typed, .Type = text}})),
                  expected(row.escaped, u"1 question text"_s));
        EXPECT_EQ(Summaries(ProjectOf({{.Type = pulldown}}, {{0, u"a"_s}, {0, row.typed}})),
                  expected(row.raw, u"1 item"_s));
    }
}

TEST(DeliveryWarnings, LetALineBreakBeTypedIntoAQuestion)
{
    const QStringList none, backslash = {u"backslash"_s};
    const struct {
        QString typed;
        QStringList codes; ///< of a question with this text
    } rows[] = {
        {u"a\\nb"_s, none},          {u"\\n"_s, none},           {u"a\\nb\\n\\nc"_s, none},
        {u"a\\\\nb"_s, backslash},   {u"a\\nb\\"_s, backslash},  {u"a\\Nb"_s, backslash},
        {u"a\\nb\\tc"_s, backslash}, {u"\\tb\\nc"_s, backslash}, {u"\\n\\tc"_s, backslash},
    };
    const auto codesOf = [](const Project &project) {
        QStringList found;
        for (const DeliveryWarning &warning : FindDeliveryWarnings(project))
            found << warning.code;
        return found;
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.typed.toStdString());
        EXPECT_EQ(codesOf(ProjectOf({{.Question = row.typed, .Type = text}})), row.codes);
        EXPECT_EQ(codesOf(ProjectOf({{.Title = row.typed, .Type = text}})), backslash);
        EXPECT_EQ(codesOf(ProjectOf({{.Type = pulldown}}, {{0, row.typed}, {0, u"b"_s}})),
                  backslash);
        Project project;
        project.Description = row.typed;
        EXPECT_EQ(codesOf(project), backslash);
    }
}

TEST(DeliveryWarnings, OfALineBreakInTheFormName)
{
    Project project;
    project.FormName = u"a\nb"_s;
    EXPECT_EQ(Summaries(project), QStringList{u"line-break 0 form name a\nb"_s});
    project.FormName = u"a\\\"b"_s;
    EXPECT_EQ(Summaries(project), QStringList()) << "these the review refuses";
}

TEST(DeliveryWarnings, TellABackslashThatBreaksTheBuild)
{
    const QString misread = u"title: \"%1\": a backslash starts an escape in the script, "
                            "so it will not arrive as typed"_s;
    const QString breaks = u"title: \"%1\": a backslash at the end takes the closing quote "
                           "in the script with it and breaks the build"_s;
    const struct {
        QString title, sentence;
    } rows[] = {
        {u"a\\b"_s, misread},   {u"a\\"_s, breaks},        {u"a\\\\"_s, misread},
        {u"a\\\\\\"_s, breaks}, {u"\\"_s, breaks},         {u"\\\\"_s, misread},
        {u"\\a\\"_s, breaks},   {u"100%1 \\x"_s, misread},
    };
    for (const auto &row : rows) {
        EXPECT_EQ(
            Sentences(ProjectOf({{.Title = row.title, .Type = text}})),
            QStringList{u"question 1, "_s + QString(row.sentence).replace(u"%1"_s, row.title)});
    }
}

TEST(DeliveryWarnings, OfItems)
{
    const QString listless = u"no list question has its Id, 7, so it will not arrive"_s;
    const struct {
        const char *what;
        Project project;
        QStringList sentences;
    } rows[] = {
        {"a list with items", ProjectOf({{.Type = pulldown, .Id = 7}}, {{7, u"a"_s}}), {}},
        {"a comma in an item",
         ProjectOf({{.Type = checkboxes, .Id = 7}}, {{7, u"a,b"_s}}),
         {u"question 1, "_s + severalItems}},
        {"commas elsewhere are only commas",
         ProjectOf(
             {{.Title = u"a,b"_s, .Question = u"a,b"_s, .Type = text, .ColumnName = u"a,b"_s}}),
         {}},
        {"a pulldown list without items", ProjectOf({{.Type = pulldown, .Id = 7}}), {noItems}},
        {"checkboxes without items", ProjectOf({{.Type = checkboxes, .Id = 7}}), {noItems}},
        {"other types need none", ProjectOf({{.Type = text, .Id = 7}}), {}},
        {"an empty item alone",
         ProjectOf({{.Type = pulldown, .Id = 7}}, {{7, u""_s}}),
         {u"question 1, item: an empty item that is the only one will not arrive"_s}},
        {"empty items in company",
         ProjectOf({{.Type = pulldown, .Id = 7}}, {{7, u""_s}, {7, u""_s}}),
         {}},
        {"items of no question",
         ProjectOf({{.Type = text, .Id = 1}}, {{7, u"a"_s}, {7, u"b,c"_s}}),
         {u"item: \"a\": "_s + listless, u"item: \"b,c\": "_s + listless}},
        {"an item of a question that has no list",
         ProjectOf({{.Type = text, .Id = 7}}, {{7, u"a"_s}}),
         {u"item: \"a\": "_s + listless}},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(Sentences(row.project), row.sentences);
    }
}

TEST(DeliveryWarnings, OfTypes)
{
    const struct {
        QString type;
        bool known;
    } rows[] = {
        {u"Text"_s, true},   {u"Scanned Barcode"_s, true}, {u"text"_s, false},
        {u"Text "_s, false}, {u"Checkbox"_s, false},       {u""_s, false},
    };
    for (const auto &row : rows) {
        const QString quoted = row.type.isEmpty() ? QString() : u" \"%1\":"_s.arg(row.type);
        EXPECT_EQ(Sentences(ProjectOf({{.Type = row.type}})),
                  row.known ? QStringList()
                            : QStringList{u"question 1, type:%1 this is none of the question "
                                          "types, which breaks the build"_s.arg(quoted)});
    }
}

TEST(DeliveryWarnings, OfWhatTwoQuestionsShare)
{
    const struct {
        const char *what;
        Project project;
        QStringList sentences;
    } rows[] = {
        {"nothing",
         ProjectOf({{.Type = text, .ColumnName = u"a"_s, .Id = 1},
                    {.Type = text, .ColumnName = u"A"_s, .Id = 2}}),
         {}},
        {"a column name, three times",
         ProjectOf({{.Type = text, .ColumnName = u"b"_s, .Id = 1},
                    {.Type = text, .ColumnName = u"a"_s, .Id = 2},
                    {.Type = text, .ColumnName = u"a"_s, .Id = 3},
                    {.Type = text, .ColumnName = u"a"_s, .Id = 4}}),
         {u"question 3, column name: \"a\": question 2 has the same column name"_s,
          u"question 4, column name: \"a\": question 2 has the same column name"_s}},
        {"an Id",
         ProjectOf({{.Type = text, .ColumnName = u"a"_s, .Id = 9},
                    {.Type = text, .ColumnName = u"b"_s, .Id = 9}}),
         {sharedId}},
        {"an Id of which only the second has a list",
         ProjectOf({{.Type = text, .ColumnName = u"a"_s, .Id = 9},
                    {.Type = pulldown, .ColumnName = u"b"_s, .Id = 9}},
                   {{9, u"a,b"_s}}),
         {sharedId, u"question 2, "_s + severalItems}},
        {"an Id of two lists: the items are told once",
         ProjectOf({{.Type = pulldown, .ColumnName = u"a"_s, .Id = 9},
                    {.Type = checkboxes, .ColumnName = u"b"_s, .Id = 9}},
                   {{9, u"a,b"_s}}),
         {u"question 1, "_s + severalItems, sharedId}},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(Sentences(row.project), row.sentences);
    }
}

TEST(DeliveryWarnings, StandInTheOrderOfTheProject)
{
    Project project = ProjectOf({{.Title = u"t\\1"_s,
                                  .Question = u"q\\1"_s,
                                  .Type = checkboxes,
                                  .ColumnName = u"c"_s,
                                  .Id = 5},
                                 {.Title = u"t\"2"_s,
                                  .Question = u"q\\2"_s,
                                  .Type = u"List"_s,
                                  .ColumnName = u"c"_s,
                                  .Id = 5},
                                 {.Type = pulldown, .ColumnName = u"d\\"_s, .Id = 6}},
                                {{8, u"s,"_s}, {5, u"i,\"\\"_s}, {5, u"j"_s}, {5, u"k,"_s}});
    project.FormVersion = u"1\\\""_s;
    project.Description = u"d\\\""_s;
    EXPECT_EQ(Summaries(project), (QStringList{
                                      u"backslash 0 form version 1\\\""_s,
                                      u"double-quote 0 form version 1\\\""_s,
                                      u"backslash 0 description d\\\""_s,
                                      u"backslash 1 title t\\1"_s,
                                      u"backslash 1 question text q\\1"_s,
                                      u"backslash 1 item i,\"\\"_s,
                                      u"double-quote 1 item i,\"\\"_s,
                                      u"comma-in-item 1 item i,\"\\"_s,
                                      u"comma-in-item 1 item k,"_s,
                                      u"double-quote 2 title t\"2"_s,
                                      u"duplicate-column-name 2 column name c"_s,
                                      u"backslash 2 question text q\\2"_s,
                                      u"unknown-type 2 type List"_s,
                                      u"duplicate-id 2 Id 5"_s,
                                      u"backslash 3 column name d\\"_s,
                                      u"no-items 3 item list "_s,
                                      u"stray-item 0 item s,"_s,
                                  }));
}

TEST(DeliveryWarnings, OfTextsThatTheProjectsFileCannotHold)
{
    Project project = ProjectOf({{.Title = u"t]]>"_s, .Type = text, .Id = 5}}, {{8, u"]]>,"_s}});
    project.FormPath = u"C:\\]]>"_s;
    project.TitleList = {u"t]]>"_s};
    EXPECT_EQ(Summaries(project),
              (QStringList{u"stray-item 0 item ]]>,"_s, u"unreadable 0 data folder C:\\]]>"_s,
                           u"unreadable 1 title t]]>"_s, u"unreadable 0 item ]]>,"_s,
                           u"unreadable 0 title history t]]>"_s}));
    EXPECT_EQ(
        Sentences(project).last(),
        u"title history: \"t]]>\": \"]]>\" ends a text in a project file, so the file cannot be "
        "opened again once it is saved"_s);
}

TEST(DeliveryWarnings, OfProjectFiles)
{
    const struct {
        QString file;
        QStringList summaries;
    } rows[] = {
        {u"SiteVisit.vmp"_s, {}},
        {u"edge-quotes.vmp"_s,
         {u"backslash 0 description Say \"hi\" and \\\"again\\\" \\\\\"deep\\\\\" end\\"_s,
          u"backslash 1 question text He said \"yes\" \\\" \\\\\" \\\\\\\" x"_s,
          u"double-quote 2 title A \"b\" c"_s, u"double-quote 3 column name C\"D"_s}},
        {u"edge-noitems.vmp"_s, {u"no-items 3 item list "_s}},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.file.toStdString());
        const Result<Project> project = LoadProject(DataFile(u"projects/"_s + row.file));
        ASSERT_TRUE(project);
        EXPECT_EQ(Summaries(*project), row.summaries);
    }
}

TEST(DeliveryWarnings, OfTheLargestProject)
{
    constexpr int questions = 128, items = 255;
    Project project;
    for (int question = 1; question <= questions; ++question) {
        project.source.Questions().Append(
            {.Type = pulldown, .ColumnName = QString::number(question), .Id = question});
    }
    for (int item = 0; item < items; ++item) {
        for (int question = 1; question <= questions; ++question)
            project.source.Items().Append({question, u"%1,"_s.arg(item)});
    }

    const std::vector<DeliveryWarning> warnings = FindDeliveryWarnings(project);
    ASSERT_EQ(warnings.size(), size_t{questions} * items);
    EXPECT_EQ(warnings.front().place.question, 1);
    EXPECT_EQ(warnings[items].place.question, 2);
    EXPECT_EQ(warnings[items].text, u"0,"_s);
    EXPECT_EQ(warnings.back().place.question, questions);
    EXPECT_EQ(warnings.back().text, u"254,"_s);
}
