#include "exchange/row_matching.h"

#include "support/print.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

QStringList LettersOf(const QString &word)
{
    QStringList letters;
    for (const QChar letter : word)
        letters += letter;
    return letters;
}

/// The letters that moved on the way from one word to another.
QString MovedLetters(const QString &before, const QString &after)
{
    RowMatching matching(before.size(), after.size());
    matching.Pair(LettersOf(before), LettersOf(after));
    const QList<bool> moved = matching.Moved();
    QString letters;
    for (qsizetype i = 0; i < after.size(); ++i)
        if (moved[i])
            letters += after[i];
    return letters;
}

} // namespace

TEST(RowMatching, PairsTheFirstWithTheFirst)
{
    RowMatching matching(4, 4);
    matching.Pair(LettersOf(u"abac"_s), LettersOf(u"aaad"_s));
    EXPECT_EQ(matching.Before(0), 0);
    EXPECT_EQ(matching.Before(1), 2);
    EXPECT_EQ(matching.Before(2), RowMatching::none);
    EXPECT_EQ(matching.Before(3), RowMatching::none);
    EXPECT_FALSE(matching.IsGone(0));
    EXPECT_TRUE(matching.IsGone(1));
    EXPECT_FALSE(matching.IsGone(2));
    EXPECT_TRUE(matching.IsGone(3));
}

TEST(RowMatching, LeavesPairsOfAnEarlierKeyAlone)
{
    RowMatching matching(2, 2);
    matching.Pair({u"1"_s, u"2"_s}, {u"3"_s, u"1"_s});
    matching.Pair({u"x"_s, u"x"_s}, {u"x"_s, u"x"_s});
    EXPECT_EQ(matching.Before(1), 0);
    EXPECT_EQ(matching.Before(0), 1);
}

TEST(RowMatching, PairsNothingThatIsNotAccepted)
{
    RowMatching matching(2, 2);
    matching.Pair(LettersOf(u"ab"_s), LettersOf(u"ab"_s),
                  [](qsizetype before, qsizetype) { return before == 1; });
    EXPECT_EQ(matching.Before(0), RowMatching::none);
    EXPECT_TRUE(matching.IsGone(0));
    EXPECT_EQ(matching.Before(1), 1);
}

TEST(RowMatching, TellsAsFewMovesAsThereCanBe)
{
    const struct {
        const char *what;
        QString before, after, moved;
    } rows[] = {
        {"nothing", u""_s, u""_s, u""_s},
        {"all as it was", u"abcdef"_s, u"abcdef"_s, u""_s},
        {"one to the front", u"abcdef"_s, u"fabcde"_s, u"f"_s},
        {"one to the end", u"abcdef"_s, u"bcdefa"_s, u"a"_s},
        {"one in between", u"abcdef"_s, u"acdebf"_s, u"b"_s},
        {"two", u"abcdefgh"_s, u"hacdefbg"_s, u"hb"_s},
        {"others came and went", u"abcdef"_s, u"xfaycze"_s, u"f"_s},
        {"nothing but new ones", u"abc"_s, u"xyz"_s, u""_s},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(MovedLetters(row.before, row.after), row.moved);
    }
    EXPECT_EQ(MovedLetters(u"abcdef"_s, u"fedcba"_s).size(), 5) << "one stays";
    EXPECT_EQ(MovedLetters(u"ab"_s, u"ba"_s).size(), 1);
}
