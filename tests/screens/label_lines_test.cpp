#include "screens/label_lines.h"

#include "readback/expected_objects.h"
#include "support/print.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

QList<TextLine> LinesOfQuestion(const QByteArray &text)
{
    return LinesOf(expected::Label(1, 10, 34, text, expected::Font::Bold));
}

QList<QByteArray> TextsOf(const QList<TextLine> &lines)
{
    QList<QByteArray> texts;
    for (const TextLine &line : lines)
        texts.append(line.text);
    return texts;
}

} // namespace

TEST(LabelLines, BreakAtTheLastBlankBeforeTheScreenEnds)
{
    const struct {
        const char *what;
        QByteArray text;
        QList<QByteArray> lines;
    } rows[] = {
        {"151 pixels fit", "When did the visit take place?", {"When did the visit take place?"}},
        {"152 do not", "Scan the tag on the main gate.", {"Scan the tag on the main", "gate."}},
        {"a line feed", "Who?\nYou, or whom?", {"Who?", "You, or whom?"}},
        {"an empty line", "Who?\n\nYou?", {"Who?", "", "You?"}},
        {"nothing", "", {""}},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(TextsOf(LinesOfQuestion(row.text)), row.lines);
    }
}

TEST(LabelLines, AWordThatIsWiderThanALineIsBroken)
{
    const QList<QByteArray> texts = TextsOf(LinesOfQuestion(QByteArray(40, 'W')));
    ASSERT_GT(texts.size(), 1);
    EXPECT_EQ(texts.join(), QByteArray(40, 'W'));
}

TEST(LabelLines, StandBelowEachOther)
{
    const QList<TextLine> lines = LinesOfQuestion("Scan the tag on the main gate.");
    ASSERT_EQ(lines.size(), 2);
    EXPECT_EQ(lines[0].place, QRect(10, 34, 123, 11));
    EXPECT_EQ(lines[1].place, QRect(10, 45, 27, 11));
}

TEST(LabelLines, EndWithTheScreen)
{
    EXPECT_EQ(LinesOfQuestion(QByteArray(100, '\n')).size(), 12) << "the last begins at 155";
    EXPECT_TRUE(LinesOf(expected::Label(1, 0, 160, "below")).isEmpty());
    EXPECT_EQ(TextsOf(LinesOf(expected::Label(1, 65535, 0, "far out"))),
              (QList<QByteArray>{"f", "a", "r", "o", "u", "t"}));
}

TEST(LabelLines, ATextInAFontThatIsNotKnownIsInTheStandardOne)
{
    EXPECT_EQ(LineAt({0, 0}, "Yes", 7).font, 0u);
    EXPECT_EQ(LineAt({0, 0}, "Yes", 7).place.width(), 15);
}
