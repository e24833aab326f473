#include "ui/main/rescue.h"

#include "editing/question_list.h"
#include "support/files.h"
#include "support/print.h"

#include <QSessionManager>
#include <QTest>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace vellumo;
using namespace std::chrono_literals;

namespace {

/// An open project whose rescue copy is due at once.
class ARescue : public testing::Test
{
protected:
    ARescue()
    {
        m_environment.stateFolder = m_folder.filePath(u"state"_s);
        m_environment.rescueDelay = 0ms;
    }

    QStringList Copies() const { return NamesIn(m_environment.stateFolder); }
    QString File() const
    {
        return m_environment.stateFolder + u'/' + Copies().value(0) + u"/project"_s;
    }

    /// What is on disk; the default where nothing is.
    Snapshot OnDisk() const
    {
        const Result<Snapshot> snapshot = ReadSnapshot(BytesOf(File()));
        return snapshot ? *snapshot : Snapshot();
    }
    bool Becomes(const QString &formName) const
    {
        return QTest::qWaitFor([&] { return OnDisk().project.FormName == formName; });
    }

    /// Waits for a timer that is due to have done what it does, which may be nothing.
    static void LetTimersPass(const Rescue &rescue)
    {
        const auto *timer = rescue.findChild<QTimer *>(u"RescueTimer"_s);
        EXPECT_TRUE(QTest::qWaitFor([&] { return !timer->isActive(); }));
    }

    QTemporaryDir m_folder;
    Environment m_environment;
    ProjectDocument m_document;
};

TEST_F(ARescue, WritesWhatChanged)
{
    const Rescue rescue(m_document, m_environment);
    LetTimersPass(rescue);
    EXPECT_EQ(Copies(), QStringList());
    const QString odd = u"]]> \u4E2D \x01"_s;
    m_document.SetText(FormField::Name, odd);
    EXPECT_TRUE(Becomes(odd));
    m_document.SetText(FormField::Name, u"Survey"_s);
    EXPECT_TRUE(Becomes(u"Survey"_s));
    EXPECT_EQ(Copies().size(), 1);
    EXPECT_EQ(OnDisk().path, u""_s);
}

TEST_F(ARescue, IsDueTenSecondsAfterTheFirstChange)
{
    m_environment.rescueDelay = Environment().rescueDelay;
    const Rescue rescue(m_document, m_environment);
    const auto *timer = rescue.findChild<QTimer *>(u"RescueTimer"_s);
    EXPECT_EQ(timer->interval(), 10'000);
    EXPECT_FALSE(timer->isActive());
    m_document.SetText(FormField::Name, u"S"_s);
    ASSERT_TRUE(timer->isActive());
    const int started = timer->timerId();
    m_document.SetText(FormField::Name, u"Su"_s);
    EXPECT_EQ(timer->timerId(), started) << "the second change does not put it off";
}

TEST_F(ARescue, WritesAtOnceWhenToldTo)
{
    m_environment.rescueDelay = 1h;
    Rescue rescue(m_document, m_environment);
    rescue.Write();
    EXPECT_EQ(Copies(), QStringList()) << "nothing is unsaved";
    m_document.SetText(FormField::Name, u"Survey"_s);
    rescue.Write();
    EXPECT_EQ(OnDisk().project.FormName, u"Survey"_s);
    EXPECT_FALSE(rescue.findChild<QTimer *>(u"RescueTimer"_s)->isActive());
}

TEST_F(ARescue, WritesWhenTheSessionEnds)
{
    m_environment.rescueDelay = 1h;
    const Rescue rescue(m_document, m_environment);
    m_document.SetText(FormField::Name, u"Survey"_s);
    // Only the toolkit can make one; nobody looks into it.
    alignas(QSessionManager) char manager[sizeof(QSessionManager)] = {};
    emit qGuiApp->commitDataRequest(*reinterpret_cast<QSessionManager *>(manager));
    EXPECT_EQ(OnDisk().project.FormName, u"Survey"_s);
}

TEST_F(ARescue, KnowsTheFileWhereverItIsOpened)
{
    Rescue rescue(m_document, m_environment);
    m_document.Replace({}, u"./a.vmp"_s);
    m_document.SetText(FormField::Name, u"Survey"_s);
    rescue.Write();
    EXPECT_EQ(OnDisk().path, QDir::currentPath() + u"/a.vmp"_s);
}

TEST_F(ARescue, ADuplicatedQuestionIsWorkToo)
{
    Project project;
    project.source.Questions().Append({.Order = 1, .Title = u"Bird"_s, .ColumnName = u"BIRD"_s});
    Rescue rescue(m_document, m_environment);
    m_document.Replace(project, u"/a.vmp"_s);
    ASSERT_TRUE(m_document.ChangeQuestions(DuplicateQuestion));
    ASSERT_FALSE(m_document.ProjectChanged());
    rescue.Write();
    EXPECT_EQ(OnDisk().project.source.QuestionCount(), 2);
}

TEST_F(ARescue, NothingIsWrittenWhereNothingIsLost)
{
    const Rescue rescue(m_document, m_environment);
    m_document.Replace({}, u"/a.vmp"_s);
    m_document.ChangeTexts([](Project &) { return 0; }); // as a review
    LetTimersPass(rescue);
    EXPECT_EQ(Copies(), QStringList());
}

TEST_F(ARescue, TheCopyGoesWhenTheProjectIsSafe)
{
    const struct {
        const char *what;
        std::function<void(ProjectDocument &)> act;
    } rows[] = {
        {"saved", [](ProjectDocument &document) { document.MarkSaved(u"/a.vmp"_s, {}); }},
        {"another one is open", [](ProjectDocument &document) { document.Replace({}, {}); }},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.what);
        Rescue rescue(m_document, m_environment);
        m_document.SetText(FormField::Name, u"Survey"_s);
        rescue.Write();
        ASSERT_EQ(Copies().size(), 1);
        m_document.SetText(FormField::Name, u"Survey 2"_s);
        row.act(m_document);
        EXPECT_EQ(Copies(), QStringList());
        EXPECT_FALSE(rescue.findChild<QTimer *>(u"RescueTimer"_s)->isActive());
    }
    {
        Rescue rescue(m_document, m_environment);
        m_document.SetText(FormField::Name, u"Survey"_s);
        rescue.Write();
        ASSERT_EQ(Copies().size(), 1);
    }
    EXPECT_EQ(Copies(), QStringList()) << "at a clean end";
}

TEST_F(ARescue, WhatCouldNotBeSavedStaysForALaterStart)
{
    m_environment.rescueDelay = 1h;
    Rescue rescue(m_document, m_environment);
    m_document.SetText(FormField::Name, u"Survey"_s);
    rescue.Leave();
    m_document.Replace({}, u"/b.vmp"_s);
    std::vector<RescueCopy> left = RescueCopy::TakeOver(m_environment.stateFolder);
    ASSERT_EQ(left.size(), 1u);
    EXPECT_EQ(left[0].Read().value_or(Snapshot()).project.FormName, u"Survey"_s);
}

TEST_F(ARescue, IsTriedAgainWhereItFailed)
{
    ASSERT_TRUE(WriteBytes(m_environment.stateFolder, "a file in the way"));
    m_environment.rescueDelay = 1ms;
    Rescue rescue(m_document, m_environment);
    m_document.SetText(FormField::Name, u"Survey"_s);
    rescue.Write();
    ASSERT_TRUE(QFile::remove(m_environment.stateFolder));
    EXPECT_TRUE(Becomes(u"Survey"_s)) << "no other change is needed";

    ASSERT_TRUE(QDir(m_environment.stateFolder).removeRecursively());
    m_document.SetText(FormField::Name, u"Survey 2"_s);
    EXPECT_TRUE(Becomes(u"Survey 2"_s)) << "the folder was tidied away";
}

TEST_F(ARescue, KnowsWhatItsFileHeld)
{
    Rescue rescue(m_document, m_environment);
    m_document.Replace({}, u"/a.vmp"_s, "as opened");
    m_document.SetText(FormField::Name, u"Survey"_s);
    rescue.Write();
    EXPECT_EQ(OnDisk().fingerprint, "as opened");
}

TEST_F(ARescue, WorksOnWhereNoCopyCanBe)
{
    ASSERT_TRUE(WriteBytes(m_environment.stateFolder, "a file in the way"));
    {
        Rescue rescue(m_document, m_environment);
        m_document.SetText(FormField::Name, u"Survey"_s);
        rescue.Write();
    }
    EXPECT_EQ(BytesOf(m_environment.stateFolder), "a file in the way");

    m_environment.stateFolder.clear();
    Rescue rescue(m_document, m_environment);
    m_document.SetText(FormField::Name, u"Survey 2"_s);
    rescue.Write();
    EXPECT_EQ(NamesIn(m_folder.path()), QStringList{u"state"_s});
    EXPECT_TRUE(m_document.ProjectChanged());
}

} // namespace
