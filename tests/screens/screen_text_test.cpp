#include "screens/screen_text.h"

#include "support/print.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace vellumo;

TEST(ScreenText, HasNoCharacterThatAPageCannotHold)
{
    EXPECT_EQ(ShownText(QByteArrayView("Caf\xE9 \x80 <&>\"'")), u"Café € <&>\"'"_s);
    EXPECT_EQ(ShownText(QByteArrayView("a\tb\nc\x1B[1m\x7F")), u"a\uFFFDb\uFFFDc\uFFFD[1m\uFFFD"_s);
    EXPECT_EQ(ShownText(QByteArrayView("\x81\x9D")), u"\uFFFD\uFFFD"_s) << "not in the code page";
    EXPECT_EQ(ShownText(u"\U0001F600"), u"\U0001F600"_s) << "of a file's name";
    EXPECT_EQ(ShownText(QString(QChar(0xD800)) + u"a"_s + QChar(0xDC00) + QChar(0xFFFE)),
              u"\uFFFDa\uFFFD\uFFFD"_s);
}
