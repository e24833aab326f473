#include "ui/common/key_filter.h"

#include "support/print.h"
#include "ui/common/plain_text.h"
#include "ui/support/prompt_script.h"

#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTest>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

constexpr QLatin1StringView refusal = "Not that one."_L1;

TEST(KeyFilter, RefusesACharacterThatIsTyped)
{
    QLineEdit box;
    RefuseKeys(&box, {"\"|"_L1, refusal});
    const PromptScript script({u"OK"_s, u"OK"_s});

    QTest::keyClicks(&box, u"a|b\"c"_s);

    EXPECT_EQ(box.text(), u"abc"_s);
    ASSERT_EQ(script.boxes().size(), 2u);
    EXPECT_EQ(script.boxes()[0].text, refusal);
    EXPECT_EQ(script.boxes()[0].icon, QMessageBox::Warning);
}

TEST(KeyFilter, RefusesWhatADeadKeyComposed)
{
    QLineEdit box;
    RefuseKeys(&box, {"\""_L1, refusal});
    const PromptScript script({u"OK"_s});

    QInputMethodEvent composed;
    composed.setCommitString(u"\""_s);
    QApplication::sendEvent(&box, &composed);

    EXPECT_EQ(box.text(), QString());
    EXPECT_EQ(script.boxes().size(), 1u);
}

TEST(KeyFilter, LetsPastedTextPass)
{
    QLineEdit box;
    RefuseKeys(&box, {"\""_L1, refusal});
    const PromptScript script;

    QApplication::clipboard()->setText(u"a \"b\""_s);
    QTest::keyClick(&box, Qt::Key_V, Qt::ControlModifier);

    EXPECT_EQ(box.text(), u"a \"b\""_s);
    EXPECT_TRUE(script.boxes().empty());
}

TEST(KeyFilter, KnowsEnterAndCtrlEnterApart)
{
    const struct {
        const char *what;
        QLatin1StringView refused;
        Qt::KeyboardModifiers held;
        int boxes;
    } rows[] = {
        {"Enter is 13", "\r"_L1, Qt::NoModifier, 1},
        {"Ctrl+Enter is not 13", "\r"_L1, Qt::ControlModifier, 0},
        {"Ctrl+Enter is 10", "\n"_L1, Qt::ControlModifier, 1},
        {"Enter is not 10", "\n"_L1, Qt::NoModifier, 0},
        {"Shift does not help", "\r"_L1, Qt::ShiftModifier, 1},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.what);
        QPlainTextEdit box;
        RefuseKeys(&box, {row.refused, refusal});
        const PromptScript script(QStringList(row.boxes, u"OK"_s));
        QTest::keyClick(&box, Qt::Key_Return, row.held);
        EXPECT_EQ(script.texts(), QStringList(row.boxes, refusal));
        if (row.boxes > 0) {
            EXPECT_EQ(TextOf(box), QString());
        }
    }
}

} // namespace
