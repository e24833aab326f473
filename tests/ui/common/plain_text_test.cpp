#include "ui/common/plain_text.h"

#include "support/print.h"

#include <QPlainTextEdit>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace vellumo;

TEST(PlainText, IsReadToTheLastCharacter)
{
    for (const QString &text : {u""_s, u"one"_s, u"one\ntwo\n"_s, u"5\u00a0m"_s, u" \t "_s}) {
        QPlainTextEdit box;
        box.setPlainText(text);
        EXPECT_EQ(TextOf(box), text);
    }
}
