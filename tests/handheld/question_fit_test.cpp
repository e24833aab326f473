#include "handheld/question_fit.h"

#include "handheld/letters.h"
#include "support/print.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

const QByteArray full = OfWidth(140, 1); ///< a line that fits to the pixel

} // namespace

TEST(QuestionFit, SaysHowMuchOfALineIsSeen)
{
    EXPECT_EQ(LineMisfit("", 10, 1), u""_s);
    EXPECT_EQ(LineMisfit("iii", 9, 1), u""_s);
    EXPECT_EQ(LineMisfit("iii", 8, 1), u"is 1 pixel too wide and stops after \"ii\""_s);
    EXPECT_EQ(LineMisfit("iiii", 7, 1), u"is 5 pixels too wide and stops after \"ii\""_s);
    EXPECT_EQ(LineMisfit("Everything that was seen today", 140, 1),
              u"is 20 pixels too wide and stops after \"... that was seen t\""_s);
    EXPECT_EQ(LineMisfit("\x80i", 9, 1), u"is 3 pixels too wide and stops after \"€\""_s);
}

TEST(QuestionFit, LetsALineEndWhereTheButtonBegins)
{
    for (int lines = 1; lines <= 3; ++lines) {
        EXPECT_EQ(QuestionMisfit(full, lines), u""_s);
        const QString covered = QuestionMisfit(OfWidth(141, 1), lines);
        EXPECT_TRUE(covered.startsWith(u"it is 1 pixel too wide"_s)) << covered.toStdString();
        EXPECT_TRUE(covered.contains(u"a button covers the rest"_s));
        EXPECT_FALSE(covered.contains(u"into the answer"_s));
    }
}

TEST(QuestionFit, SaysWhatLeavesTheScreen)
{
    const QString covered = QuestionMisfit(OfWidth(150, 1), 1);
    EXPECT_TRUE(covered.contains(u"a button covers the rest"_s)) << covered.toStdString();
    const QString leaves = QuestionMisfit(OfWidth(151, 1), 1);
    EXPECT_TRUE(leaves.contains(u"the rest leaves the screen or wraps"_s)) << leaves.toStdString();
    EXPECT_FALSE(leaves.contains(u"into the answer"_s)) << "a line of 151 pixels is still one";
    EXPECT_TRUE(QuestionMisfit(OfWidth(152, 1), 1)
                    .contains(u"in 2 lines it runs into the answer, as there is room for 1"_s));
    EXPECT_FALSE(QuestionMisfit(OfWidth(152, 1), 2).contains(u"into the answer"_s));
}

TEST(QuestionFit, LetsAWrappedTextHaveTheLinesThatAreFree)
{
    // Words of 75 pixels and a blank of 2: two to a line of 151 pixels would need one more.
    const QByteArray word = OfWidth(75, 1), shorter = OfWidth(74, 1);
    const QByteArray twoLines = word + ' ' + shorter + ' ' + word + ' ' + shorter;
    EXPECT_FALSE(QuestionMisfit(twoLines, 2).contains(u"into the answer"_s));
    const QByteArray more = word + ' ' + word + ' ' + word;
    EXPECT_TRUE(QuestionMisfit(more, 2).contains(
        u"in 3 lines it runs into the answer, as there is room for 2"_s));
    EXPECT_FALSE(QuestionMisfit(more, 3).contains(u"into the answer"_s));
}

TEST(QuestionFit, MeasuresEachTypedLineByItself)
{
    EXPECT_EQ(QuestionMisfit(full + '\n' + full, 2), u""_s);
    EXPECT_EQ(QuestionMisfit(full + '\n' + full + '\n' + full, 3), u""_s);
    const QString second = QuestionMisfit(full + '\n' + OfWidth(141, 1), 2);
    EXPECT_TRUE(second.startsWith(u"line 2 is 1 pixel too wide"_s)) << second.toStdString();
    const QString both = QuestionMisfit(OfWidth(143, 1) + '\n' + OfWidth(160, 1), 2);
    EXPECT_TRUE(both.startsWith(u"line 1 is 3 pixels too wide"_s)) << both.toStdString();
    EXPECT_TRUE(both.contains(u"; line 2 is 20 pixels too wide"_s)) << both.toStdString();
}

TEST(QuestionFit, CountsTypedLines)
{
    EXPECT_EQ(QuestionMisfit("a\nb", 1),
              u"in 2 lines it runs into the answer, as there is room for 1; "
              "it fits without \\n"_s);
    EXPECT_EQ(QuestionMisfit(full + "\nb", 1),
              u"in 2 lines it runs into the answer, as there is room for 1; "
              "it has to be shorter"_s);
    EXPECT_EQ(QuestionMisfit("a\nb", 2), u""_s);
    EXPECT_EQ(QuestionMisfit("a\n\nb\n", 3),
              u"in 4 lines it runs into the answer, as there is room for 3; "
              "it fits without \\n"_s);
}

TEST(QuestionFit, NamesTheWayOut)
{
    const auto wayOut = [](const QByteArray &text, int freeLines) {
        return QuestionMisfit(text, freeLines).section(u"; "_s, -1);
    };
    const QByteArray asked = "When did you arrive at the water point?";
    const QString there =
        u"\\n in place of the blank after \"...ou arrive at the\" breaks the line there"_s;
    EXPECT_EQ(wayOut(asked, 2), there);
    EXPECT_EQ(wayOut(asked, 3), there);
    EXPECT_EQ(wayOut(asked, 1), u"it has to be shorter"_s) << "no line is free";
    EXPECT_EQ(wayOut("Hello\n" + asked, 3), there) << "the first line that is too wide";
    EXPECT_EQ(wayOut("Hello\n" + full + " and " + full, 3), u"it has to be shorter"_s);
    EXPECT_EQ(wayOut(OfWidth(200, 1), 3), u"it has to be shorter"_s) << "no blank";
    EXPECT_EQ(wayOut(OfWidth(60, 1) + ' ' + OfWidth(200, 1), 2), u"it has to be shorter"_s)
        << "broken there it would still take three lines";
}

TEST(QuestionFit, NamesOtherBreaksWhereTheTypedOnesDoNotHelp)
{
    EXPECT_EQ(QuestionMisfit("When did you arrive \n at the water point today ok?", 2),
              u"line 2 is 9 pixels too wide and stops after \"...er point today o\"; "
              "a button covers the rest; it fits with \\n after \"...ou arrive at the\" only"_s);
    const auto wayOut = [](const QByteArray &text, int freeLines) {
        return QuestionMisfit(text, freeLines).section(u"; "_s, -1);
    };
    const QByteArray word = OfWidth(75, 1);
    EXPECT_EQ(wayOut("Hello\n" + word + "A " + word + "B " + word, 3),
              u"it fits with \\n after \"...iiiiiiiiiiiiiiiA\" and \"...iiiiiiiiiiiiiiiB\" only"_s);
    EXPECT_EQ(wayOut(OfWidth(141, 1) + "\nb", 3), u"it has to be shorter"_s) << "a word too wide";
}

TEST(QuestionFit, QuotesAPlaceAlikeBeforeAndBehindABlank)
{
    const QByteArray word = OfWidth(138, 1); // and a blank of 2
    EXPECT_EQ(QuestionMisfit(word + " iiii", 2),
              u"it is 12 pixels too wide and stops after \"...iiiiiiiiiiiiiiii\"; "
              "the rest leaves the screen or wraps; \\n in place of the blank after "
              "\"...iiiiiiiiiiiiiiii\" breaks the line there"_s);
    EXPECT_EQ(LineMisfit("ii  W", 10, 1), u"is 11 pixels too wide and stops after \"ii\""_s);
}
