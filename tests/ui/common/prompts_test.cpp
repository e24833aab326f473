#include "ui/common/prompts.h"

#include "support/print.h"
#include "ui/support/prompt_script.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

TEST(Prompts, TellsWithAnOkButton)
{
    const struct {
        void (*show)(QWidget *, const QString &);
        QMessageBox::Icon icon;
    } kinds[] = {{ShowExclamation, QMessageBox::Warning},
                 {ShowInformation, QMessageBox::Information},
                 {ShowCritical, QMessageBox::Critical}};
    for (const auto &kind : kinds) {
        const PromptScript script({u"OK"_s});
        kind.show(nullptr, u"Mind the <b>gap"_s);

        ASSERT_EQ(script.boxes().size(), 1u);
        const SeenBox &box = script.boxes().front();
        EXPECT_EQ(box.title, u"Vellumo Designer"_s);
        EXPECT_EQ(box.text, u"Mind the <b>gap"_s);
        EXPECT_EQ(box.icon, kind.icon);
        EXPECT_EQ(box.buttons, QStringList{u"OK"_s});
        EXPECT_EQ(box.defaultButton, u"OK"_s);
    }
}

TEST(Prompts, TellsFileAndReasonOfAnErrorBelow)
{
    const PromptScript script({u"OK"_s});
    ShowCritical(nullptr, u"Not <b>saved"_s, {u"No <i>space"_s, u"/a <u>b/c.vmp"_s, 3});

    ASSERT_EQ(script.boxes().size(), 1u);
    const SeenBox &box = script.boxes().front();
    EXPECT_EQ(box.title, u"Vellumo Designer"_s);
    EXPECT_EQ(box.text, u"Not <b>saved"_s);
    EXPECT_EQ(box.informative, u"/a <u>b/c.vmp:3: No <i>space"_s);
    EXPECT_EQ(box.icon, QMessageBox::Critical);
    EXPECT_EQ(box.buttons, QStringList{u"OK"_s});
}

TEST(Prompts, AsksYesOrNoWithNoAsDefault)
{
    const PromptScript script({u"Yes"_s, u"No"_s, u""_s});
    EXPECT_EQ(AskYesNo(nullptr, u"Sure?"_s), u"Yes"_s);
    EXPECT_EQ(AskYesNo(nullptr, u"Sure?"_s), u"No"_s);
    EXPECT_EQ(AskYesNo(nullptr, u"Sure?"_s), u"No"_s) << "closed by its title bar";

    const SeenBox &box = script.boxes().front();
    EXPECT_EQ(box.title, u"Vellumo Designer"_s);
    EXPECT_EQ(box.icon, QMessageBox::Question);
    EXPECT_EQ(box.buttons, (QStringList{u"Yes"_s, u"No"_s}));
    EXPECT_EQ(box.defaultButton, u"No"_s);
}

TEST(Prompts, TellsMoreBelowTheQuestionAndHasYesForADefault)
{
    const PromptScript script({u""_s, u"No"_s});
    const auto ask = [] {
        return AskYesNo(nullptr, u"Open?"_s, u"The file\n/a/<b>/c.vmp"_s, QMessageBox::Yes);
    };
    EXPECT_EQ(ask(), u"Yes"_s) << "closed by its title bar";
    EXPECT_EQ(ask(), u"No"_s);

    const SeenBox &box = script.boxes().front();
    EXPECT_EQ(box.text, u"Open?"_s);
    EXPECT_EQ(box.informative, u"The file\n/a/<b>/c.vmp"_s);
    EXPECT_EQ(box.defaultButton, u"Yes"_s);
}

TEST(Prompts, AsksYesNoOrCancelWithCancelAsDefault)
{
    const PromptScript script({u"Yes"_s, u"No"_s, u"Cancel"_s, u""_s});
    EXPECT_EQ(AskYesNoCancel(nullptr, u"Save?"_s), u"Yes"_s);
    EXPECT_EQ(AskYesNoCancel(nullptr, u"Save?"_s), u"No"_s);
    EXPECT_EQ(AskYesNoCancel(nullptr, u"Save?"_s), u"Cancel"_s);
    EXPECT_EQ(AskYesNoCancel(nullptr, u"Save?"_s), u"Cancel"_s) << "closed by its title bar";

    const SeenBox &box = script.boxes().front();
    EXPECT_EQ(box.title, u"Vellumo Designer"_s);
    EXPECT_EQ(box.icon, QMessageBox::Question);
    EXPECT_EQ(box.buttons.size(), 3);
    EXPECT_EQ(box.defaultButton, u"Cancel"_s);
}

TEST(Prompts, AsksForATextAndGivesItAsTyped)
{
    const PromptScript script({u" Red "_s, u""_s});
    EXPECT_EQ(AskText(nullptr, u"New Item"_s, u"Which?"_s), u" Red "_s);
    EXPECT_EQ(AskText(nullptr, u"New Item"_s, u"Which?"_s), QString()) << "cancelled";
    EXPECT_EQ(script.questions(), (QStringList{u"Which?"_s, u"Which?"_s}));
}

} // namespace
