#include "cli/commands.h"

#include "support/print.h"

#include <QRegularExpression>

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
        for (const OptionRow &row : OptionRows()) {
            const QString typed = row.letter.isEmpty() ? "--"_L1 + row.name : u'-' + row.letter;
            const QRegularExpression told(u"%1( |\\]|$)"_s.arg(typed));
            EXPECT_EQ(told.match(synopsis).hasMatch(), command.shape.options.testFlag(row.option))
                << typed.toStdString();
        }
        EXPECT_EQ(synopsis.contains(u"..."_s), command.shape.mostInputs > 2);
    }
}

TEST(Commands, TheHelpTellsOfEachOnLinesOfATerminal)
{
    const QString help = HelpText();
    for (const Command &command : Commands()) {
        const QString start = u"\n  vellumo %1 "_s.arg(command.name);
        const QStringList synopsis = QString(command.synopsis).split(u'\n');
        EXPECT_TRUE(help.contains(start + synopsis.join(u'\n' + QString(start.size() - 1, u' ')) +
                                  u"\n      "_s))
            << command.name.latin1();
    }
    for (const QString &line : help.split(u'\n'))
        EXPECT_LE(line.size(), 82) << line.toStdString();
    EXPECT_TRUE(help.endsWith(u"status is returned.\n"_s)) << "the exit status comes last";
}
