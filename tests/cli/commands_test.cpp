#include "cli/commands.h"

#include "support/print.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace vellumo;

TEST(Commands, AreFoundByTheirExactNames)
{
    for (const Command &command : Commands()) {
        SCOPED_TRACE(command.name.latin1());
        EXPECT_EQ(CommandNamed(command.name), &command);
        EXPECT_TRUE(command.run);
    }
    EXPECT_EQ(CommandNamed(u"Create"_s), nullptr);
    EXPECT_EQ(CommandNamed(u""_s), nullptr);
}

TEST(Commands, TheSynopsisTellsWhatACommandTakes)
{
    for (const Command &command : Commands()) {
        SCOPED_TRACE(command.name.latin1());
        const QString synopsis = command.synopsis;
        EXPECT_EQ(synopsis.contains(u"[-o "_s), command.shape.output);
        EXPECT_EQ(synopsis.contains(u"[--guid HEX32]"_s), command.shape.identifier);
        EXPECT_EQ(synopsis.contains(u"[--timeout SECONDS]"_s), command.shape.timeout);
        EXPECT_EQ(synopsis.contains(u"..."_s), command.shape.mostInputs > 2);
    }
}

TEST(Commands, TheHelpTellsOfEachOnLinesOfATerminal)
{
    const QString help = HelpText();
    for (const Command &command : Commands())
        EXPECT_TRUE(
            help.contains(u"\n  vellumo %1 %2\n      "_s.arg(command.name, command.synopsis)))
            << command.name.latin1();
    for (const QString &line : help.split(u'\n'))
        EXPECT_LE(line.size(), 82) << line.toStdString();
    EXPECT_TRUE(help.endsWith(u"status is returned.\n"_s)) << "the exit status comes last";
}
