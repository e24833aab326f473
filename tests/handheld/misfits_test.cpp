#include "handheld/misfits.h"

#include "handheld/letters.h"
#include "model/question_types.h"
#include "support/print.h"

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

/// Each misfit as "code question field".
QStringList Codes(const Project &project)
{
    QStringList codes;
    for (const DeliveryWarning &misfit : FindMisfits(project))
        codes << u"%1 %2 %3"_s.arg(misfit.code, QString::number(misfit.place.question),
                                   misfit.place.field);
    return codes;
}

QStringList OfQuestion(const QString &type, const QString &text)
{
    return Codes(ProjectOf({{.Question = text, .Type = type}}));
}

QStringList OfItem(const QString &type, const QString &item)
{
    return Codes(ProjectOf({{.Type = type, .Id = 7}}, {{7, item}}));
}

QString Wide(int width, int font = 1)
{
    return QString::fromLatin1(OfWidth(width, font));
}

const QString text = u"Text"_s;
const QString pulldown = u"Pulldown List"_s;
const QString checkboxes = u"Checkboxes"_s;
const QStringList none;
const QStringList question = {u"question-too-wide 1 question text"_s};
const QStringList title = {u"title-too-wide 1 title"_s};
const QStringList item = {u"item-too-wide 1 item"_s};
const QStringList caption = {u"caption-too-wide 1 item"_s};

} // namespace

TEST(Misfits, MeasureTheLettersOfTheseTestsByThePixel)
{
    for (const int font : {0, 1}) {
        for (const int width : {6, 74, 75, 120, 121, 140, 141, 146, 147, 150, 151, 152}) {
            int sum = 0;
            for (const char c : OfWidth(width, font))
                sum += WidthInCsv(font, static_cast<uchar>(c));
            EXPECT_EQ(sum, width) << font;
        }
    }
}

TEST(Misfits, OfTheQuestionsOfEveryType)
{
    const struct {
        QString type;
        int freeLines;
    } rows[] = {
        {u"Text"_s, 2},       {u"Numeric"_s, 2},         {u"Pulldown List"_s, 3},
        {u"Yes/No"_s, 2},     {u"Signature"_s, 3},       {u"Notes"_s, 1},
        {u"Date/Time"_s, 2},  {u"Currency"_s, 2},        {u"Scanned Barcode"_s, 2},
        {u"Checkboxes"_s, 1}, {u"none of the ten"_s, 1},
    };
    ASSERT_EQ(std::size(rows), typeCount + 1);
    for (const auto &row : rows) {
        SCOPED_TRACE(row.type.toStdString());
        EXPECT_EQ(OfQuestion(row.type, Wide(140)), none);
        EXPECT_EQ(OfQuestion(row.type, Wide(141)), question);
        QString lines = Wide(140);
        for (int line = 2; line <= row.freeLines; ++line) {
            lines += u"\\n"_s + Wide(140);
            EXPECT_EQ(OfQuestion(row.type, lines), none) << line;
        }
        EXPECT_EQ(OfQuestion(row.type, lines + u"\\nx"_s), question);
        EXPECT_EQ(OfQuestion(row.type, lines + u'i'), question);
    }
}

TEST(Misfits, OfTitles)
{
    for (const QuestionType &type : questionTypes) {
        const auto of = [&type](const QString &typed) {
            return Codes(ProjectOf({{.Title = typed, .Type = type.name}}));
        };
        EXPECT_EQ(of(Wide(146)), none) << type.name.latin1();
        EXPECT_EQ(of(Wide(147)), title) << type.name.latin1();
        EXPECT_EQ(FindMisfits(ProjectOf({{.Title = Wide(147), .Type = type.name}}))[0].reason,
                  u"it is 1 pixel too wide and stops after \"...iiiiiiiiiiiiiiii\"; "
                  "a button covers the rest"_s);
    }
    EXPECT_EQ(Codes(ProjectOf({{.Title = Wide(147), .Type = u"none of the ten"_s}})), title);
}

TEST(Misfits, OfItems)
{
    EXPECT_EQ(OfItem(pulldown, Wide(140, 0)), none);
    EXPECT_EQ(OfItem(pulldown, Wide(141, 0)), item);
    EXPECT_EQ(OfItem(checkboxes, Wide(120, 0)), none);
    EXPECT_EQ(OfItem(checkboxes, Wide(121, 0)), caption);
    EXPECT_EQ(OfItem(text, Wide(999, 0)), none) << "left over from another type";
    EXPECT_EQ(Codes(ProjectOf({{.Type = text, .Id = 7}}, {{8, Wide(999, 0)}})), none);
    EXPECT_EQ(Codes(ProjectOf({{.Type = pulldown, .Id = 7}, {.Type = checkboxes, .Id = 7}},
                              {{7, Wide(130, 0)}})),
              none)
        << "an item is the first question's";
}

TEST(Misfits, SayWhatBecomesOfAnItem)
{
    const auto reasons = [](const QString &type) {
        return FindMisfits(ProjectOf({{.Type = type, .Id = 7}}, {{7, Wide(150, 0)}}))[0].reason;
    };
    EXPECT_EQ(reasons(pulldown),
              u"it is 10 pixels too wide and stops after \"...iiiiiiiiiiiiiiii\"; "
              "the opened list leaves the screen"_s);
    EXPECT_EQ(reasons(checkboxes),
              u"it is 30 pixels too wide and stops after \"...iiiiiiiiiiiiiiii\"; "
              "the rest is cut off"_s);
}

TEST(Misfits, CountTheEuroSignAsTheScreenDrawsIt)
{
    EXPECT_EQ(OfQuestion(text, u"€"_s + Wide(131)), none);
    EXPECT_EQ(OfQuestion(text, u"€"_s + Wide(132)), question);
    EXPECT_EQ(OfItem(pulldown, u"€"_s + Wide(132, 0)), none);
    EXPECT_EQ(OfItem(pulldown, u"€"_s + Wide(133, 0)), item);
    EXPECT_EQ(OfItem(checkboxes, u"€"_s + Wide(112, 0)), none);
    EXPECT_EQ(OfItem(checkboxes, u"€"_s + Wide(113, 0)), caption);
}

TEST(Misfits, MeasureWhatArrivesAndNotWhatIsTyped)
{
    // Each stands for one byte: a backslash (5 or 6 pixels), a quote, an A, and B (5 or 7).
    const struct {
        QString typed;
        char arrives;
    } rows[] = {{u"\\\\"_s, '\\'}, {u"\\\""_s, '"'}, {u"\\101"_s, 'A'},   {u"\\x41"_s, 'A'},
                {u"\\B"_s, 'B'},   {u"\\t"_s, '\t'}, {u"\\200"_s, '\x80'}};
    for (const auto &row : rows) {
        SCOPED_TRACE(row.typed.toStdString());
        const int code = static_cast<uchar>(row.arrives), more = code == 0x80 ? 3 : 0;
        const int bold = WidthInCsv(1, code) + more, standard = WidthInCsv(0, code) + more;
        const auto titleOf = [&](int width) {
            return Codes(ProjectOf({{.Title = row.typed + Wide(width), .Type = text}}));
        };
        EXPECT_EQ(OfQuestion(text, row.typed + u'.' + Wide(137 - bold)), none);
        EXPECT_EQ(OfQuestion(text, row.typed + u'.' + Wide(138 - bold)), question);
        EXPECT_EQ(titleOf(146 - bold), none);
        EXPECT_EQ(titleOf(147 - bold), title);
        EXPECT_EQ(OfItem(pulldown, Wide(140 - standard, 0) + row.typed), none);
        EXPECT_EQ(OfItem(pulldown, Wide(141 - standard, 0) + row.typed), item);
    }
}

TEST(Misfits, EscapeTheQuotesOfAQuestionAsTheScriptDoes)
{
    const int quote = WidthInCsv(1, '"');
    EXPECT_EQ(OfQuestion(text, u"\"\""_s + Wide(140 - 2 * quote)), none);
    EXPECT_EQ(OfQuestion(text, u"\"\""_s + Wide(141 - 2 * quote)), question);
    EXPECT_EQ(OfQuestion(text, u"\\\\\""_s + Wide(140 - quote)), none) << "one quote arrives";
    EXPECT_EQ(OfQuestion(text, u"\\\\\""_s + Wide(141 - quote)), question);
}

TEST(Misfits, CutAnItemAtItsCommas)
{
    EXPECT_EQ(OfItem(pulldown, Wide(140, 0) + u','), none);
    EXPECT_EQ(OfItem(pulldown, Wide(140, 0) + u","_s + Wide(140, 0)), none);
    EXPECT_EQ(OfItem(pulldown, Wide(140, 0) + u","_s + Wide(141, 0)), item);
    EXPECT_EQ(OfItem(pulldown, Wide(141, 0) + u","_s + Wide(141, 0)), item) << "told once";
    EXPECT_EQ(OfItem(checkboxes, u"é,"_s + Wide(120, 0)), none);
    EXPECT_EQ(OfItem(checkboxes, u"é,"_s + Wide(121, 0)), caption);
    EXPECT_EQ(OfQuestion(text, u","_s + Wide(138)), question) << "elsewhere a comma is a comma";
}

TEST(Misfits, TellOfEqualItemsOfAQuestionOnce)
{
    const QString wide = Wide(141, 0), other = Wide(142, 0);
    EXPECT_EQ(Codes(ProjectOf({{.Type = pulldown, .Id = 7}},
                              {{7, wide}, {7, u"ž"_s}, {7, wide}, {7, other}, {7, u"ž"_s}})),
              item + QStringList{u"not-on-handheld 1 item"_s} + item);
    EXPECT_EQ(Codes(ProjectOf({{.Type = pulldown, .Id = 7}, {.Type = pulldown, .Id = 8}},
                              {{7, wide}, {8, wide}})),
              item + QStringList{u"item-too-wide 2 item"_s});
}

TEST(Misfits, OfLettersThatTheHandheldLacks)
{
    const QString there = u"not-on-handheld 1 "_s;
    for (const QString &letter : {u"Ž"_s, u"ž"_s}) {
        Project project = ProjectOf({{.Title = letter + letter,
                                      .Question = letter,
                                      .Type = pulldown,
                                      .ColumnName = letter,
                                      .Id = 7}},
                                    {{7, u"a,"_s + letter}, {7, letter}, {7, u"s"_s}});
        project.Description = letter;
        EXPECT_EQ(Codes(project),
                  (QStringList{u"not-on-handheld 0 description"_s, there + u"title"_s,
                               there + u"question text"_s, there + u"item"_s, there + u"item"_s}));
    }
    EXPECT_EQ(OfQuestion(text, u"\\216"_s), QStringList{there + u"question text"_s});
    EXPECT_EQ(OfQuestion(text, u"\\x9E"_s), QStringList{there + u"question text"_s});
    EXPECT_EQ(OfItem(pulldown, u"\\x9E"_s), QStringList{there + u"item"_s});
    EXPECT_EQ(OfQuestion(text, u"ŠšŸ€œ"_s), none) << "their neighbours are there";
    EXPECT_EQ(OfQuestion(text, Wide(140) + u'Ž'),
              question + QStringList{there + u"question text"_s});
}

TEST(Misfits, PassOverWhatNeverArrives)
{
    const QString foreign = u"Ω"_s + Wide(999) + u'Ž';
    Project project = ProjectOf(
        {{.Title = foreign, .Question = foreign, .Type = pulldown, .Id = 7}}, {{7, foreign}});
    project.Description = foreign;
    EXPECT_EQ(Codes(project), none);
}

TEST(Misfits, StandInTheOrderOfTheProject)
{
    Project project =
        ProjectOf({{.Title = Wide(150), .Question = Wide(150), .Type = checkboxes, .Id = 5},
                   {.Title = Wide(150), .Question = Wide(150), .Type = pulldown, .Id = 4}},
                  {{4, Wide(141, 0)}, {5, Wide(141, 0)}, {4, Wide(142, 0)}});
    project.Description = u"ž"_s;
    EXPECT_EQ(Codes(project), (QStringList{
                                  u"not-on-handheld 0 description"_s,
                                  u"title-too-wide 1 title"_s,
                                  u"question-too-wide 1 question text"_s,
                                  u"caption-too-wide 1 item"_s,
                                  u"title-too-wide 2 title"_s,
                                  u"question-too-wide 2 question text"_s,
                                  u"item-too-wide 2 item"_s,
                                  u"item-too-wide 2 item"_s,
                              }));
    const DeliveryWarning last = FindMisfits(project).back();
    EXPECT_EQ(last.text, Wide(142, 0)) << "the text is that of the project";
    EXPECT_EQ(Describe(last), u"question 2, item: \"%1\": %2"_s.arg(Wide(142, 0), last.reason));
}

TEST(Misfits, OfTheLargestProject)
{
    constexpr int questions = 128, items = 255;
    Project project;
    for (int id = 1; id <= questions; ++id) {
        project.source.Questions().Append({.Type = pulldown, .Id = id});
        for (int i = 0; i < items; ++i)
            project.source.Items().Append(
                {id, i % 2 == 0 ? Wide(140, 0) : QString::number(i) + Wide(141, 0)});
    }
    EXPECT_EQ(FindMisfits(project).size(), size_t{questions} * (items / 2));
}
