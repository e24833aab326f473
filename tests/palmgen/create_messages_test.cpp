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

TEST(CreateMessages, GiveThePlatformsWordsOnlyWherePermissionIsDenied)
{
    CreateReport report = {.end = CreateEnd::FileRefused, .error = {u"Is a directory"_s}};
    EXPECT_EQ(MessageOfFailure(report), u"Error in Vellsheet Creation!"_s);
    report.error = {u"Permission denied"_s, u"a.rcp"_s, 0, true};
    EXPECT_EQ(MessageOfFailure(report), u"Permission denied\r\nError in Vellsheet Creation!"_s);
}
