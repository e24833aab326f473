#include "readback/shown_text.h"

#include "support/print.h"

#include <QByteArray>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace vellumo;

TEST(ShownText, ShowsWhatCanBeShown)
{
    EXPECT_EQ(Shown("kelp"), u"'kelp'"_s);
    EXPECT_EQ(Shown(""), u"''"_s);
    EXPECT_EQ(Shown("a b\xA0"
                    "c\xAD"),
              u"'a b\\xa0c\\xad'"_s);
    EXPECT_EQ(Shown("caf\xE9 \x80"), u"'caf\u00E9 \u20AC'"_s);
    EXPECT_EQ(Shown(QByteArrayView("\x1B[2J\0\x81", 6)), u"'\\x1b[2J\\x00\\x81'"_s);
}

TEST(ShownText, CutsLongTexts)
{
    EXPECT_EQ(Shown(QByteArray(60, 'x')), u"'%1'"_s.arg(QString(60, u'x')));
    EXPECT_EQ(Shown(QByteArray(61, 'x')), u"'%1...'"_s.arg(QString(60, u'x')));
}

TEST(ShownText, ShowsWhereTextsDiffer)
{
    EXPECT_EQ(ShownDifference("abc", "abd"), u"'abc' instead of 'abd'"_s);
    EXPECT_EQ(ShownDifference("", "a"), u"'' instead of 'a'"_s);
    const QByteArray front = QByteArray(85, 'x') + "0123456789abcde";
    EXPECT_EQ(ShownDifference(front, front + "f"),
              u"'...0123456789abcde' instead of '...0123456789abcdef'"_s);
}
