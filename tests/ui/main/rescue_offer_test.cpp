#include "ui/main/rescue_offer.h"

#include "support/print.h"
#include "ui/support/designer.h"
#include "ui/support/prompt_script.h"

using namespace Qt::StringLiterals;
using namespace vellumo;
using namespace std::chrono_literals;

namespace {

const QString question = u" was not saved when Vellumo Designer ended. "
                         "Do you want to open the rescued copy?"_s;

/// A state folder with what designers left in it.
class LeftWork : public testing::Test
{
protected:
    /// The later ones are those of the larger number.
    void Leave(const QString &formName, const QString &path, int second,
               const Fingerprint &fingerprint = {}) const
    {
        const Result<RescueCopy> copy = RescueCopy::Make(State());
        ASSERT_TRUE(copy);
        Snapshot snapshot;
        snapshot.project.FormName = formName;
        snapshot.path = path;
        snapshot.taken = QDateTime({2025, 3, 1}, {14, 2, second});
        snapshot.fingerprint = fingerprint;
        ASSERT_TRUE(copy->Write(snapshot));
    }

    QString State() const { return m_folder.filePath(u"state"_s); }
    QStringList Copies() const { return NamesIn(State()); }

    QTemporaryDir m_folder;
};

TEST_F(LeftWork, IsOpenedAndCountsAsChanged)
{
    const QString path = m_folder.filePath(u"a <b> survey.vmp"_s);
    Leave(u"]]>\u4E2D"_s, path, 33);
    Designer designer(sample, State(), 1h);
    {
        const PromptScript prompts({u"Yes"_s});
        designer.window.OfferRescue();
        ASSERT_EQ(prompts.boxes().size(), 1u);
        const SeenBox &box = prompts.boxes()[0];
        EXPECT_EQ(box.text, u"a <b> survey.vmp"_s + question);
        EXPECT_EQ(box.informative, u"The copy was made at 2025-03-01 14:02:33.\n"_s + path);
        EXPECT_EQ(box.icon, QMessageBox::Question);
        EXPECT_EQ(box.buttons, (QStringList{u"Yes"_s, u"No"_s}));
        EXPECT_EQ(box.defaultButton, u"Yes"_s);
    }
    EXPECT_EQ(designer.Text("txtAppName"), u"]]>\u4E2D"_s);
    EXPECT_EQ(designer.project().source.QuestionCount(), 0);
    EXPECT_EQ(designer.window.document().path(), path);
    EXPECT_TRUE(designer.ProjectChanged());
    EXPECT_EQ(designer.Step(), 1);
    EXPECT_EQ(Copies().size(), 1) << "until it is saved";

    designer.Find<QLineEdit>("txtAppName")->selectAll();
    designer.Type("txtAppName", u"Survey"_s);
    designer.Choose("mnuFileSave");
    EXPECT_TRUE(BytesOf(path).contains("[Survey]"));
    EXPECT_EQ(Copies(), QStringList());
}

TEST_F(LeftWork, IsNotSavedUnaskedOverAFileThatChangedMeanwhile)
{
    const QString path = m_folder.filePath(u"survey.vmp"_s);
    ASSERT_TRUE(WriteBytes(path, "what another program wrote"));
    Leave(u"Survey"_s, path, 0, "as opened");
    Designer designer({}, State(), 1h);
    const PromptScript prompts({u"Yes"_s, u"No"_s});
    designer.window.OfferRescue();
    designer.Choose("mnuFileSave");
    EXPECT_TRUE(prompts.texts().value(1).startsWith(path + u"\r\nhas been changed"_s));
    EXPECT_EQ(BytesOf(path), "what another program wrote");
    EXPECT_EQ(Copies().size(), 1) << "still unsaved";
}

TEST_F(LeftWork, IsLockedByTheDesignerThatOpenedIt)
{
    Leave(u"Survey"_s, {}, 0);
    {
        Designer designer({}, State(), 1h);
        const PromptScript prompts({u"Yes"_s});
        designer.window.OfferRescue();
        EXPECT_EQ(prompts.texts(), QStringList{u"A new project"_s + question});
        EXPECT_EQ(prompts.boxes()[0].informative, u"The copy was made at 2025-03-01 14:02:00."_s);
        EXPECT_TRUE(RescueCopy::TakeOver(State()).empty());

        designer.Type("txtAppName", u" 2"_s);
        designer.window.WriteRescueCopy();
        EXPECT_EQ(Copies().size(), 1) << "the same one";
    }
    EXPECT_EQ(Copies(), QStringList());
}

TEST_F(LeftWork, ThatIsNotWantedIsRemoved)
{
    Leave(u"Survey"_s, u"/home/a/survey.vmp"_s, 0);
    Designer designer(sample, State(), 1h);
    const PromptScript prompts({u"No"_s});
    designer.window.OfferRescue();
    designer.window.OfferRescue();
    EXPECT_EQ(prompts.boxes().size(), 1u) << "it is offered once";
    EXPECT_EQ(Copies(), QStringList());
    EXPECT_EQ(designer.window.document().path(), sample);
    EXPECT_EQ(designer.project().FormName, u"SiteVisit"_s);
    EXPECT_FALSE(designer.ProjectChanged());
}

TEST_F(LeftWork, ABoxThatIsClosedThrowsNothingAway)
{
    Leave(u"Survey"_s, u"/home/a/survey.vmp"_s, 0);
    Designer designer({}, State(), 1h);
    const PromptScript prompts({u""_s});
    designer.window.OfferRescue();
    EXPECT_EQ(prompts.boxes().size(), 1u);
    EXPECT_EQ(designer.project().FormName, u"Survey"_s);
}

TEST_F(LeftWork, OfSeveralDesignersTheLatestIsOfferedFirst)
{
    Leave(u"First"_s, u"/a/first.vmp"_s, 1);
    Leave(u"Third"_s, u"/a/third.vmp"_s, 3);
    Leave(u"Second"_s, u"/a/second.vmp"_s, 2);
    Designer designer({}, State(), 1h);
    {
        const PromptScript prompts({u"No"_s, u"Yes"_s});
        designer.window.OfferRescue();
        EXPECT_EQ(prompts.texts(),
                  (QStringList{u"third.vmp"_s + question, u"second.vmp"_s + question}));
    }
    EXPECT_EQ(designer.project().FormName, u"Second"_s);
    EXPECT_EQ(Copies().size(), 2) << "the open one, and that for the next start";

    Designer next({}, State(), 1h);
    const PromptScript prompts({u"No"_s});
    next.window.OfferRescue();
    EXPECT_EQ(prompts.texts(), QStringList{u"first.vmp"_s + question});
    EXPECT_EQ(Copies().size(), 1);
}

TEST_F(LeftWork, ThatIsDamagedIsLeftAlone)
{
    Leave(u"Damaged"_s, u"/a/damaged.vmp"_s, 2);
    const QString damaged = Copies().value(0);
    ASSERT_TRUE(WriteBytes(State() + u'/' + damaged + u"/project"_s, "damaged"));
    Leave(u"Whole"_s, u"/a/whole.vmp"_s, 1);
    Designer designer({}, State(), 1h);
    const PromptScript prompts({u"No"_s});
    designer.window.OfferRescue();
    EXPECT_EQ(prompts.texts(), QStringList{u"whole.vmp"_s + question});
    EXPECT_EQ(Copies(), QStringList{damaged});
}

TEST_F(LeftWork, WithoutAnyNothingIsAsked)
{
    Designer designer({}, State(), 1h);
    const PromptScript prompts;
    designer.window.OfferRescue();
    EXPECT_TRUE(prompts.boxes().empty());
    EXPECT_FALSE(QFile::exists(State()));
}

TEST_F(LeftWork, AnAnsweredQuestionLeavesNone)
{
    const struct {
        const char *command;
        QStringList answers;
        bool copyStays;
    } rows[] = {
        {"mnuFileNew", {u"No"_s}, false},
        {"mnuFileNew", {u"Yes"_s, u"kept"_s}, false},
        {"mnuFileNew", {u"Cancel"_s}, true},
        {"mnuFileOpen", {u"No"_s, u""_s}, true}, // the project stays open, and unsaved
        {"mnuFileExit", {u"Cancel"_s}, true},
        {"mnuFileExit", {u"No"_s}, false},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(std::string(row.command) + ' ' + row.answers[0].toStdString());
        Designer designer({}, State(), 1h);
        designer.Type("txtAppName", u"Survey"_s);
        designer.window.WriteRescueCopy();
        ASSERT_EQ(Copies().size(), 1);
        const PromptScript prompts(row.answers);
        designer.Choose(row.command);
        EXPECT_EQ(prompts.boxes().size(), 1u);
        EXPECT_EQ(Copies().size(), row.copyStays ? 1 : 0);
        (void)prompts.fileDialogs();
    }
}

TEST_F(LeftWork, ThatCouldNotBeSavedBeforeAnotherWasOpenedIsOfferedLater)
{
    {
        Designer designer({}, State(), 1h);
        designer.Type("txtAppName", u"Survey"_s);
        const PromptScript prompts({u"Yes"_s, u""_s, sample});
        designer.Choose("mnuFileOpen");
        EXPECT_EQ(prompts.boxes().size(), 1u);
        EXPECT_EQ(prompts.fileDialogs().size(), 2);
        EXPECT_EQ(designer.project().FormName, u"SiteVisit"_s);
    }
    Designer next({}, State(), 1h);
    const PromptScript prompts({u"Yes"_s});
    next.window.OfferRescue();
    EXPECT_EQ(prompts.boxes().size(), 1u);
    EXPECT_EQ(next.project().FormName, u"Survey"_s);
}

TEST_F(LeftWork, IsNotThereAfterTheTitleBarClosedTheWindow)
{
    Designer designer({}, State(), 1h);
    designer.Type("txtAppName", u"Survey"_s);
    designer.window.WriteRescueCopy();
    const PromptScript prompts({u"Cancel"_s, u"No"_s});
    EXPECT_FALSE(designer.CloseByTitleBar());
    EXPECT_EQ(Copies().size(), 1);
    EXPECT_TRUE(designer.CloseByTitleBar());
    EXPECT_EQ(Copies(), QStringList());
    EXPECT_EQ(prompts.boxes().size(), 2u);
}

} // namespace
