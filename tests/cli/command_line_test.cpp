#include "cli/command_line.h"

#include "support/print.h"

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr AllowedOptions everything = {.identifier = true, .severalProjects = true};

QString RefusalOf(const QStringList &words, const AllowedOptions &allowed = everything)
{
    const Result<CommandLine> line = ParseCommandLine(words, allowed);
    return line ? u"taken"_s : line.error().text;
}

} // namespace

TEST(CommandLine, TakesOptionsBeforeAndAfterProjects)
{
    const auto line = ParseCommandLine(
        {u"a.vmp"_s, u"-o"_s, u"out"_s, u"b.vmp"_s, u"--guid=0123456789abcdef0123456789ABCDEF"_s},
        everything);
    ASSERT_TRUE(line);
    EXPECT_EQ(line->projects, (QStringList{u"a.vmp"_s, u"b.vmp"_s}));
    EXPECT_EQ(line->output, u"out"_s);
    EXPECT_EQ(line->identifier, u"0123456789ABCDEF0123456789ABCDEF"_s);
}

TEST(CommandLine, TakesWhatFollowsTwoDashesAsProjects)
{
    const auto line = ParseCommandLine({u"--"_s, u"-o"_s, u"--guid"_s}, everything);
    ASSERT_TRUE(line);
    EXPECT_EQ(line->projects, (QStringList{u"-o"_s, u"--guid"_s}));
    EXPECT_EQ(line->output, u""_s);
}

TEST(CommandLine, RefusesWhatMakesNoSense)
{
    const QString which = u"Which project? Please name a .vmp file."_s;
    const QString digits = u"The identifier of --guid must be 32 hexadecimal digits."_s;
    EXPECT_EQ(RefusalOf({}), which);
    EXPECT_EQ(RefusalOf({u"-o"_s, u"x"_s}), which);
    EXPECT_EQ(RefusalOf({u"a"_s, u"b"_s}), u"taken"_s);
    EXPECT_EQ(RefusalOf({u"a"_s, u"b"_s}, {.identifier = true}),
              u"This command takes one project only."_s);
    EXPECT_EQ(RefusalOf({u"a"_s, u"-o"_s, u""_s}), u"The name after -o is empty."_s);
    EXPECT_EQ(RefusalOf({u"a"_s, u"--guid"_s, QString(31, u'A')}), digits);
    EXPECT_EQ(RefusalOf({u"a"_s, u"--guid"_s, QString(33, u'A')}), digits);
    EXPECT_EQ(RefusalOf({u"a"_s, u"--guid"_s, QString(32, u'G')}), digits);
    EXPECT_EQ(RefusalOf({u"a"_s, u"--guid"_s, u""_s}), digits);
    EXPECT_NE(RefusalOf({u"a"_s, u"--guid"_s, QString(32, u'A')}, {}), u"taken"_s);
    EXPECT_NE(RefusalOf({u"a"_s, u"-o"_s}), u"taken"_s);
    EXPECT_NE(RefusalOf({u"a"_s, u"--colour"_s}), u"taken"_s);
}
