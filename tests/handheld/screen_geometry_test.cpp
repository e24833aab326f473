#include "handheld/screen_geometry.h"

#include <gtest/gtest.h>

using namespace vellumo;

TEST(ScreenGeometry, EndsAQuestionAtTheEndOfTheScreen)
{
    EXPECT_EQ(screen::questionX + screen::questionToEnd, screen::width);
}

TEST(ScreenGeometry, KnowsTheLinesThatEachTypeLeavesFree)
{
    const auto lines = [](QStringView type) { return FreeLines(TypeNamed(type)); };
    for (const auto *two :
         {u"Text", u"Numeric", u"Yes/No", u"Date/Time", u"Currency", u"Scanned Barcode"})
        EXPECT_EQ(lines(two), 2) << QString::fromUtf16(two).toStdString();
    EXPECT_EQ(lines(u"Pulldown List"), 3);
    EXPECT_EQ(lines(u"Signature"), 3);
    EXPECT_EQ(lines(u"Notes"), 1);
    EXPECT_EQ(lines(u"Checkboxes"), 1);
    EXPECT_EQ(lines(u"Essay"), 1) << "a type that is unknown";
}
