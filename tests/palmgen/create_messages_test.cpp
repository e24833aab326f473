#include "palmgen/create_messages.h"

#include "support/print.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace vellumo;

TEST(CreateMessages, TellOfEachToolThatDidNotStart)
{
    const CreateReport report = {
        .runs = {{.commandLine = u"pilrc -ro"_s, .reason = u"it is not there"_s},
                 {.commandLine = u"build-prc"_s, .end = ToolEnd::Failed, .reason = u"crashed"_s},
                 {.commandLine = u"other"_s, .reason = u"nor is that"_s}}};
    EXPECT_EQ(MessagesOfTools(report),
              (QStringList{u"Error starting task pilrc -ro\r\nit is not there"_s,
                           u"Error starting task other\r\nnor is that"_s}));
    EXPECT_TRUE(MessagesOfTools({}).isEmpty());
}

TEST(CreateMessages, TellWhereTheDatabaseIs)
{
    EXPECT_EQ(MessageOfSuccess({.name = u"Survey"_s}, {u"/app"_s, u"/My Vellumo/"_s}),
              u"/My Vellumo/Survey.Prc has been created. You may now install it onto your Palm "
              "handheld (using the Palm Install Tool) to use with Vellumo Viewer."_s);
}

TEST(CreateMessages, GiveTheReason)
{
    const ToolRun failed = {.commandLine = u"pilrc a"_s,
                            .end = ToolEnd::Failed,
                            .reason = u"exit status 1"_s,
                            .messages = u"a.rcp:3: error: what\n"_s};
    const QString ofTool = u"failed (exit status 1): pilrc a\na.rcp:3: error: what"_s;
    const Error denied = {u"Permission denied"_s, u"/app/a.rcp"_s, 0, true};
    const QString ofFile = u"/app/a.rcp: Permission denied"_s;
    const struct {
        const char *what;
        CreateReport report;
        QString reason;
    } rows[] = {
        {"nothing failed", {.runs = {{.end = ToolEnd::Succeeded, .messages = u"fine"_s}}}, u""_s},
        {"a tool", {.runs = {failed, {.end = ToolEnd::Succeeded}}}, ofTool},
        {"a file", {.end = CreateEnd::FileRefused, .error = denied}, ofFile},
        {"the project", {.end = CreateEnd::ProjectRefused, .error = {u"No"_s}}, u"No"_s},
        {"a tool, then a file",
         {.end = CreateEnd::FileRefused, .error = denied, .runs = {failed}},
         ofFile + u'\n' + ofTool},
        {"a tool that a box was shown for", {.runs = {{.reason = u"it is not there"_s}}}, u""_s},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(ReasonOf(row.report), row.reason);
    }
}

TEST(CreateMessages, GiveFewWordsOfAToolThatSaysMany)
{
    ToolRun run = {.end = ToolEnd::Failed, .messages = u"line\n"_s.repeated(1000)};
    EXPECT_EQ(ReasonOf({.runs = {run}}).count(u'\n'), 7);
    run.messages = QString(100'000, u'x');
    EXPECT_EQ(ReasonOf({.runs = {run}}).size(), 800);
}

TEST(CreateMessages, GiveThePlatformsWordsOnlyWherePermissionIsDenied)
{
    CreateReport report = {.end = CreateEnd::FileRefused, .error = {u"Is a directory"_s}};
    EXPECT_EQ(MessageOfFailure(report), u"Error in Vellsheet Creation!"_s);
    report.error = {u"Permission denied"_s, u"a.rcp"_s, 0, true};
    EXPECT_EQ(MessageOfFailure(report), u"Permission denied\r\nError in Vellsheet Creation!"_s);
}
