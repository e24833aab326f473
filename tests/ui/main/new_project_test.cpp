#include "ui/main/file_questions.h"

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

TEST(New, AsksNothingWithoutChanges)
{
    const Designer designer(sample);
    const PromptScript prompts;
    designer.ClickTab(3);
    designer.Choose("mnuFileNew");

    EXPECT_TRUE(prompts.boxes().empty());
    EXPECT_EQ(designer.Step(), 1);
    EXPECT_EQ(designer.project().source.QuestionCount(), 0);
    EXPECT_EQ(designer.project().source.Items().Count(), 0);
    EXPECT_EQ(designer.project().source.MaxId(), 1);
    EXPECT_EQ(designer.project().TitleList, QStringList{QString()});
    EXPECT_EQ(designer.window.document().path(), QString());
    for (const char *box : {"txtAppName", "txtAppVersion", "txt3_appDir"})
        EXPECT_EQ(designer.Text(box), QString());
    EXPECT_EQ(designer.Find<QPlainTextEdit>("txtAppDesc")->toPlainText(), QString());
    EXPECT_FALSE(designer.ProjectChanged());
    for (int step = 1; step <= 4; ++step)
        EXPECT_EQ(designer.Mark(step), StepMarkInvalid);
}

TEST(New, ClearsTheErrorList)
{
    const Designer designer;
    designer.ClickTab(4);
    const PromptScript prompts({u"OK"_s});
    designer.Click("cmdReviewForm");
    EXPECT_EQ(prompts.texts(), QStringList{u"There are errors in your Vellsheet. "
                                           "Please check the Error List for details."_s});
    ASSERT_EQ(designer.Find<QListWidget>("lstError")->count(), 3);
    designer.Choose("mnuFileNew");
    EXPECT_EQ(designer.Find<QListWidget>("lstError")->count(), 0);
}

TEST(New, AsksOnceAndGoesByTheAnswer)
{
    const struct {
        const char *what;
        QStringList answers;
        bool proceeds;
        qsizetype fileDialogs;
    } rows[] = {
        {"no", {u"No"_s}, true, 0},
        {"cancel", {u"Cancel"_s}, false, 0},
        {"closing the box is cancel", {u""_s}, false, 0},
        {"yes, but no file is chosen", {u"Yes"_s, u""_s}, false, 1},
        {"yes, and a file", {u"Yes"_s, u"kept.vmp"_s}, true, 1},
    };
    for (const auto &row : rows) {
        for (const char *command : {"mnuFileNew", "cmdToolbar_0"}) {
            SCOPED_TRACE(std::string(row.what) + ", " + command);
            const Designer designer;
            MakeChanged(designer);
            const PromptScript prompts(row.answers);
            if (std::string(command) == "mnuFileNew")
                designer.Choose(command);
            else
                designer.Click(command);

            ASSERT_EQ(prompts.boxes().size(), 1u);
            EXPECT_EQ(prompts.boxes()[0].text, saveQuestion);
            EXPECT_EQ(prompts.boxes()[0].defaultButton, u"Cancel"_s);
            EXPECT_EQ(prompts.fileDialogs().size(), row.fileDialogs);
            EXPECT_EQ(designer.project().FormName, row.proceeds ? u""_s : u"Survey"_s);
            EXPECT_EQ(designer.ProjectChanged(), !row.proceeds);
        }
    }
}

} // namespace
