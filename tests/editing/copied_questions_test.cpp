#include "editing/copied_questions.h"

#include "editing/question_sources.h"

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

TEST(CopiedQuestions, LoseNothing)
{
    const QList<Question> questions = {{u" a\tb\n\"\u0001 "_s,
                                        u"Which\r\nof|them?\u20ac"_s,
                                        u"Checkboxes"_s,
                                        u" c "_s,
                                        {u"a|b"_s, u""_s, u" \t"_s, QString(300, u'x')}},
                                       {u""_s, u""_s, u"No type"_s, u""_s, {}}};
    const auto read = ReadQuestions(WriteQuestions(questions));
    ASSERT_TRUE(read);
    ASSERT_EQ(read->size(), questions.size());
    for (qsizetype i = 0; i < questions.size(); ++i) {
        const CopiedQuestion &copied = (*read)[i];
        EXPECT_EQ(copied.row, i + 1);
        EXPECT_EQ(copied.itemsObjection, QString());
        EXPECT_EQ(copied.question.title, questions[i].title);
        EXPECT_EQ(copied.question.question, questions[i].question);
        EXPECT_EQ(copied.question.type, questions[i].type);
        EXPECT_EQ(copied.question.columnName, questions[i].columnName);
        EXPECT_EQ(copied.question.items, questions[i].items);
    }
}

TEST(CopiedQuestions, AreTakenFromTheCurrentRow)
{
    clsDataSource source = SourceWith(3);
    source.SetPosition(1);
    EXPECT_EQ(CurrentQuestion(source).columnName, u"q2"_s);
    EXPECT_EQ(CurrentQuestion(source).items, (QStringList{u"2 a"_s, u"2 b"_s}));
    Current(source).Type = u"Text"_s;
    EXPECT_EQ(CurrentQuestion(source).items, QStringList()) << "it owns none";
}

TEST(CopiedQuestions, AreExactlyThisFormat)
{
    const QByteArray one = R"({"title":"","question":"","type":"","columnName":"","items":["a"]})";
    const auto whole = [](const QByteArray &version, const QByteArray &list) {
        return R"({"version":)" + version + R"(,"questions":[)" + list + "]}";
    };
    ASSERT_TRUE(ReadQuestions(whole("1", one)));
    const struct {
        const char *what;
        QByteArray bytes;
    } rows[] = {
        {"nothing", ""},
        {"no JSON", "q1"},
        {"cut off", whole("1", one).chopped(1)},
        {"a list", "[" + one + "]"},
        {"no version", R"({"questions":[)" + one + "]}"},
        {"a later version", whole("2", one)},
        {"a version as text", whole("\"1\"", one)},
        {"no question", whole("1", "")},
        {"a number as a question", whole("1", one + ",7")},
        {"more beside", whole("1", one).chopped(1) + R"(,"more":1})"},
        {"more in a question", whole("1", one.chopped(1) + R"(,"more":1})")},
        {"a text missing", whole("1", QByteArray(one).replace(R"("type":"",)", ""))},
        {"a number as text", whole("1", QByteArray(one).replace(R"("type":"")", R"("type":1)"))},
        {"items missing", whole("1", QByteArray(one).replace(R"(,"items":["a"])", ""))},
        {"items as a text", whole("1", QByteArray(one).replace(R"(["a"])", R"("a")"))},
        {"a number as an item", whole("1", QByteArray(one).replace(R"(["a"])", R"(["a",1])"))},
        {"larger than anything", whole("1", one) + QByteArray(16LL * 1024 * 1024, ' ')},
        {"nested deeply", QByteArray(5000, '[')},
    };
    for (const auto &row : rows)
        EXPECT_FALSE(ReadQuestions(row.bytes)) << row.what;
}

} // namespace
