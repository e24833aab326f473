#include "ui/main/file_questions.h"

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

TEST(Exit, ClosesAtOnceWithoutChanges)
{
    const Designer designer(sample);
    const PromptScript prompts;
    designer.Choose("mnuFileExit");
    EXPECT_FALSE(designer.window.isVisible());
    EXPECT_TRUE(prompts.boxes().empty());
}

TEST(Exit, AsksOnceAndStaysWhenTheSaveDidNotHappen)
{
    const struct {
        const char *what;
        QStringList answers;
        bool closes;
    } rows[] = {
        {"no", {u"No"_s}, true},
        {"cancel", {u"Cancel"_s}, false},
        {"yes, but no file is chosen", {u"Yes"_s, u""_s}, false},
        {"yes, and a file", {u"Yes"_s, u"kept"_s}, true},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.what);
        const Designer designer;
        MakeChanged(designer);
        const PromptScript prompts(row.answers);
        designer.Choose("mnuFileExit");
        EXPECT_EQ(prompts.texts(), QStringList{saveQuestion});
        EXPECT_EQ(prompts.fileDialogs(), QStringList(row.answers.size() - 1, saveAs));
        EXPECT_EQ(designer.window.isVisible(), !row.closes);
    }
}

TEST(TitleBar, AsksOnceAndStaysWhenTheSaveDidNotHappen)
{
    const struct {
        const char *what;
        QStringList answers;
        bool closes;
    } rows[] = {
        {"no", {u"No"_s}, true},
        {"cancel", {u"Cancel"_s}, false},
        {"yes, but no file is chosen", {u"Yes"_s, u""_s}, false},
        {"yes, and a file", {u"Yes"_s, u"kept"_s}, true},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.what);
        Designer designer;
        int helpClosed = 0;
        QObject::connect(&designer.window, &appInfoForm::HelpCloseAsked, [&] { ++helpClosed; });
        MakeChanged(designer);
        const PromptScript prompts(row.answers);
        EXPECT_EQ(designer.CloseByTitleBar(), row.closes);
        EXPECT_EQ(prompts.texts(), QStringList{saveQuestion});
        EXPECT_EQ(prompts.fileDialogs(), QStringList(row.answers.size() - 1, saveAs));
        EXPECT_EQ(helpClosed, 1) << "help goes in every case";
    }
}

TEST(TitleBar, RemembersASaveThatFailedBefore)
{
    Designer designer;
    MakeChanged(designer);
    const PromptScript prompts({u""_s, u"Yes"_s, u"kept"_s});
    designer.Choose("mnuFileSave");
    EXPECT_FALSE(designer.CloseByTitleBar()) << "the failed save was not forgotten";
    EXPECT_FALSE(designer.ProjectChanged()) << "although this one succeeded";
    EXPECT_TRUE(designer.CloseByTitleBar());
    EXPECT_EQ(prompts.texts(), QStringList{saveQuestion});
    EXPECT_EQ(prompts.fileDialogs(), QStringList(2, saveAs));
}

TEST(TitleBar, ForgetsASaveThatFailedFromTheToolbar)
{
    Designer designer;
    MakeChanged(designer);
    const PromptScript prompts({u""_s, u"Yes"_s, u"kept"_s});
    designer.Click("cmdToolbar_1");
    EXPECT_TRUE(designer.CloseByTitleBar());
    EXPECT_EQ(prompts.texts(), QStringList{saveQuestion});
    EXPECT_EQ(prompts.fileDialogs(), QStringList(2, saveAs));
}

TEST(CloseByTheProgram, AsksNothing)
{
    Designer designer;
    MakeChanged(designer);
    const PromptScript prompts;
    EXPECT_TRUE(designer.window.close());
    EXPECT_TRUE(prompts.boxes().empty());
}

} // namespace
