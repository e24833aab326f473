#include "exchange/difference_text.h"

#include "support/print.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace vellumo;

TEST(DifferenceLines, TellWhatWasAndWhatIs)
{
    const std::vector<Difference> differences = {
        {.kind = DifferenceKind::FormChanged,
         .field = "form version"_L1,
         .before = u"1.0"_s,
         .after = u"1.1"_s},
        {.kind = DifferenceKind::FormChanged, .field = "description"_L1, .after = u"Words"_s},
        {.kind = DifferenceKind::QuestionRemoved,
         .question = 3,
         .columnName = u"STATE"_s,
         .before = u"Text"_s},
        {.kind = DifferenceKind::QuestionAdded,
         .question = 3,
         .columnName = u"%1"_s,
         .after = u"Notes %2"_s},
        {.kind = DifferenceKind::QuestionMoved,
         .question = 2,
         .columnName = u"FENCED"_s,
         .before = u"7"_s,
         .after = u"2"_s},
        {.kind = DifferenceKind::QuestionChanged,
         .field = "title"_L1,
         .question = 2,
         .columnName = u"FENCED"_s,
         .before = u"Old"_s},
    };
    EXPECT_EQ(DifferenceLines(differences),
              (QStringList{u"@@ form version @@"_s, u"-1.0"_s, u"+1.1"_s, u"@@ description @@"_s,
                           u"+Words"_s, u"@@ question 3, STATE: removed @@"_s, u"-Text"_s,
                           u"@@ question 3, %1: added @@"_s, u"+Notes %2"_s,
                           u"@@ question 2, FENCED: moved from 7 @@"_s,
                           u"@@ question 2, FENCED: title @@"_s, u"-Old"_s}));
}

TEST(DifferenceLines, PutItemsOfAQuestionBelowOneHeading)
{
    const auto item = [](DifferenceKind kind, const QString &before, int itemBefore,
                         const QString &after, int itemAfter) {
        return Difference{.kind = kind,
                          .field = "item"_L1,
                          .question = 1,
                          .columnName = u"BIRDS"_s,
                          .before = before,
                          .after = after,
                          .itemBefore = itemBefore,
                          .itemAfter = itemAfter};
    };
    EXPECT_EQ(DifferenceLines({item(DifferenceKind::ItemRemoved, u"Robin"_s, 2, {}, 0),
                               item(DifferenceKind::ItemMoved, u"Owl"_s, 4, u"Owl"_s, 1),
                               item(DifferenceKind::ItemAdded, {}, 0, {}, 3)}),
              (QStringList{u"@@ question 1, BIRDS: items @@"_s, u"-2. Robin"_s, u"-4. Owl"_s,
                           u"+1. Owl"_s, u"+3. "_s}));
}

TEST(DifferenceLines, OfNothingAreNone)
{
    EXPECT_EQ(DifferenceLines({}), QStringList());
}
