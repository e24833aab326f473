#include "cli/commands.h"
#include "cli/project_texts.h"
#include "support/print.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

/// The README's section on the headless command.
QString Readme()
{
    const QString all = TextOf(u"README.md"_s);
    const qsizetype start = all.indexOf("\n## The headless command\n"_L1);
    EXPECT_GE(start, 0);
    QString section = all.mid(start, all.indexOf("\n## "_L1, start + 1) - start);
    static const QRegularExpression ofGit(u"`git [^`]*`"_s); // which has options of its own
    return section.remove(ofGit);
}

const QString &Page()
{
    static const QString page = TextOf(u"help/headless.html"_s);
    return page;
}

/// What is to be typed, by a page of the help.
QString TypedOn(const QString &page)
{
    return Matches(page, u"(?s)<(?:tt|pre)>(.*?)</"_s).values().join(u'\n');
}

QSet<QString> CommandsIn(const QString &text)
{
    return Matches(text, u"\\bvellumo ([a-z]+)"_s);
}

/// The names of the options that are typed, also by their letter.
QSet<QString> OptionsIn(const QString &text)
{
    QSet<QString> options = Matches(text, u"(?<![\\w-])--([a-z][a-z-]*)"_s);
    const QSet<QString> letters = Matches(text, u"(?<![\\w-])-([a-z])\\b"_s);
    for (const OptionRow &row : OptionRows())
        if (letters.contains(row.letter))
            options += row.name;
    return options;
}

/// What is typed like a command, and is none of the table.
const QSet<QString> helpCommand = {u"help"_s};
const QSet<QString> everywhereElse = {u"help"_s, u"version"_s};

QSet<QString> AllCommands()
{
    const QStringList names = CommandNames();
    return QSet<QString>(names.begin(), names.end());
}

QSet<QString> AllOptions()
{
    QSet<QString> names;
    for (const OptionRow &row : OptionRows())
        names += row.name;
    return names;
}

const QSet<QString> none;

} // namespace

TEST(Agreement, EveryCommandIsToldOfAndNoOther)
{
    const QSet<QString> commands = AllCommands();
    EXPECT_EQ(Matches(HelpText(), u"\n  vellumo ([a-z]+) "_s) - helpCommand, commands);
    EXPECT_EQ(CommandsIn(Readme()) - helpCommand, commands);
    EXPECT_EQ(CommandsIn(TypedOn(Page())) - helpCommand, commands);
}

TEST(Agreement, EveryOptionIsToldOfAndNoOther)
{
    const QSet<QString> options = AllOptions();
    EXPECT_EQ(OptionsIn(HelpText()) - everywhereElse, options);
    EXPECT_EQ(OptionsIn(Readme()) - everywhereElse, options);
    EXPECT_EQ(OptionsIn(TypedOn(Page())) - everywhereElse, options);
}

TEST(Agreement, ThePageHasTheLettersOfOptions)
{
    QSet<QString> letters = {u"h"_s}; // for help
    for (const OptionRow &row : OptionRows())
        letters += row.letter;
    letters -= QString();
    EXPECT_EQ(Matches(Page(), u"<tt>-([a-z])</tt>"_s), letters);
}

TEST(Agreement, NoOtherPageNamesACommandThatThereIsNot)
{
    QString typed = TextOf(u"README.md"_s);
    const QDir pages(QStringLiteral(PROJECT "/help"));
    for (const QString &name : pages.entryList({u"*.html"_s}))
        typed += u'\n' + TypedOn(TextOf(u"help/"_s + name));
    EXPECT_EQ(CommandsIn(typed) - helpCommand - AllCommands(), none);
}

TEST(Agreement, ThePageHasTheExitStatusesOfTheHelp)
{
    const QSet<QString> statuses = Matches(HelpText(), u"[:;]\\s(\\d)\\s"_s);
    EXPECT_EQ(statuses.size(), 6);
    EXPECT_EQ(Matches(Page(), u"<td align=\"right\">(\\d)</td>"_s), statuses);
}
