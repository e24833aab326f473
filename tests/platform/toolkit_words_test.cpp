#include "platform/toolkit_words.h"

#include "support/print.h"

#include <gtest/gtest.h>

#include <sys/resource.h>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

void LimitDescriptors(rlim_t count)
{
    const rlimit limit = {count, count};
    setrlimit(RLIMIT_NOFILE, &limit);
}

void Ignore(QtMsgType, const QMessageLogContext &, const QString &) {}

class ToolkitWords : public testing::Test
{
protected:
    ToolkitWords()
    {
        qunsetenv("QT_LOGGING_RULES");
        qunsetenv("QT_DEBUG_PLUGINS");
    }
    ~ToolkitWords() override { qInstallMessageHandler(nullptr); }

    /// What is on standard error where the toolkit says this.
    static std::string Told(QtMsgType type, const QString &message)
    {
        testing::internal::CaptureStderr();
        qt_message_output(type, {}, message);
        return testing::internal::GetCapturedStderr();
    }
};
using ToolkitWordsDeathTest = ToolkitWords;

TEST_F(ToolkitWords, AreKeptBack)
{
    KeepToolkitQuiet("program", "It cannot start", 0);
    for (const QtMsgType type : {QtDebugMsg, QtInfoMsg, QtWarningMsg, QtCriticalMsg})
        EXPECT_EQ(Told(type, u"QSomething: trouble"_s), "");
}

TEST_F(ToolkitWords, AreLeftToWhoAsksForThem)
{
    for (const char *asked : {"QT_LOGGING_RULES", "QT_DEBUG_PLUGINS"}) {
        SCOPED_TRACE(asked);
        qputenv(asked, "1");
        qInstallMessageHandler(Ignore);
        KeepToolkitQuiet("program", "It cannot start", 0);
        EXPECT_EQ(qInstallMessageHandler(nullptr), &Ignore);
        qunsetenv(asked);
    }
}

TEST_F(ToolkitWords, AMistakeOfTheProgramsOwnIsTold)
{
    KeepToolkitQuiet("program", "It cannot start", 0);
    const QtMessageHandler handle = qInstallMessageHandler(nullptr);
    testing::internal::CaptureStderr();
    handle(QtFatalMsg, {}, u"ASSERT: \"x\" in file y"_s);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "ASSERT: \"x\" in file y\n");
}

TEST_F(ToolkitWordsDeathTest, WhereItCannotGoOnTheProgramSaysWhy)
{
    KeepToolkitQuiet("program", "It cannot start", 0);
    EXPECT_EXIT(qFatal("no plugin"), testing::ExitedWithCode(1), "^program: It cannot start\n$");
}

TEST_F(ToolkitWordsDeathTest, TooFewDescriptorsAreTheReasonWhereTheyAre)
{
    const auto tooFewAtTheStart = [] {
        LimitDescriptors(20);
        KeepToolkitQuiet("program", "It cannot start", 50);
    };
    const auto tooFewLater = [] {
        KeepToolkitQuiet("program", "It cannot start", 0);
        LimitDescriptors(3);
        qFatal("no plugin");
    };
    const char *told = "^program: Too many open files\n$";
    EXPECT_EXIT(tooFewAtTheStart(), testing::ExitedWithCode(1), told);
    EXPECT_EXIT(tooFewLater(), testing::ExitedWithCode(1), told);
}

} // namespace
