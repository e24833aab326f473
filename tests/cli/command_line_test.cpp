#include "cli/command_line.h"
#include "cli/option_words.h"
#include "support/files.h"
#include "support/print.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

const CommandShape everything = {.mostInputs = 2,
                                 .whichInput = "Which one?"_L1,
                                 .options = Option::Output | Option::Identifier | Option::Timeout};

QString RefusalOf(const QStringList &words, const CommandShape &shape = everything)
{
    const Result<CommandLine> line = ParseCommandLine(words, shape);
    return line ? u"taken"_s : line.error().text;
}

} // namespace

TEST(CommandLine, TakesOptionsBeforeAndAfterProjects)
{
    const auto line = ParseCommandLine(
        {u"a.vmp"_s, u"-o"_s, u"out"_s, u"b.vmp"_s, u"--guid=0123456789abcdef0123456789ABCDEF"_s},
        everything);
    ASSERT_TRUE(line);
    EXPECT_EQ(line->inputs, (QStringList{u"a.vmp"_s, u"b.vmp"_s}));
    EXPECT_EQ(line->Value(Option::Output), u"out"_s);
    EXPECT_EQ(line->Value(Option::Identifier), u"0123456789ABCDEF0123456789ABCDEF"_s);
}

TEST(CommandLine, TakesWhatFollowsTwoDashesAsProjects)
{
    const auto line = ParseCommandLine({u"--"_s, u"-o"_s, u"--guid"_s}, everything);
    ASSERT_TRUE(line);
    EXPECT_EQ(line->inputs, (QStringList{u"-o"_s, u"--guid"_s}));
    EXPECT_EQ(line->Value(Option::Output), u""_s);
}

TEST(CommandLine, HasItsDefaults)
{
    const auto line = ParseCommandLine({u"-"_s}, everything);
    ASSERT_TRUE(line);
    EXPECT_EQ(line->inputs, QStringList{u"-"_s});
    EXPECT_EQ(line->Value(Option::Identifier), u""_s);
    EXPECT_EQ(line->TimeoutSeconds(), 60);
    EXPECT_FALSE(line->Has(Option::Json));
    EXPECT_TRUE(ParseCommandLine({u"a"_s, u"--json"_s}, everything)->Has(Option::Json));
}

TEST(CommandLine, RefusesWhatMakesNoSense)
{
    const QString digits = u"The identifier of --guid must be 32 hexadecimal digits."_s;
    const QString seconds = u"The time of --timeout must be 1 to 86400 seconds."_s;
    const struct {
        QStringList words;
        QString refusal;
    } rows[] = {
        {{}, u"Which one?"_s},
        {{u"-o"_s, u"x"_s}, u"Which one?"_s},
        {{u"a"_s, u"b"_s}, u"taken"_s},
        {{u"a"_s, u"b"_s, u"c"_s}, u"'c' is one name too many."_s},
        {{u"a"_s, u""_s}, u"An input's name is empty."_s},
        {{u"-"_s, u"-"_s}, u"Standard input, '-', can be read once only."_s},
        {{u"a"_s, u"-o"_s, u""_s}, u"The name after -o is empty."_s},
        {{u"a"_s, u"--guid"_s, QString(32, u'A')}, u"taken"_s},
        {{u"a"_s, u"--guid"_s, QString(31, u'A')}, digits},
        {{u"a"_s, u"--guid"_s, QString(33, u'A')}, digits},
        {{u"a"_s, u"--guid"_s, QString(32, u'G')}, digits},
        {{u"a"_s, u"--guid"_s, QString(32, u'A') + u'\n'}, digits},
        {{u"a"_s, u"--guid"_s, u""_s}, digits},
        {{u"a"_s, u"--timeout"_s, u"1"_s}, u"taken"_s},
        {{u"a"_s, u"--timeout=86400"_s}, u"taken"_s},
        {{u"a"_s, u"--timeout"_s, u"0"_s}, seconds},
        {{u"a"_s, u"--timeout"_s, u"86401"_s}, seconds},
        {{u"a"_s, u"--timeout"_s, u"soon"_s}, seconds},
        {{u"a"_s, u"-o"_s, u"b"_s, u"--output=c"_s}, u"-o is given more than once."_s},
        {{u"a"_s, u"-ob"_s, u"-ob"_s}, u"-o is given more than once."_s},
        {{u"a"_s, u"--timeout"_s, u"5"_s, u"--timeout"_s, u"5"_s},
         u"--timeout is given more than once."_s},
        {{u"a"_s, u"--json"_s, u"--json"_s}, u"taken"_s},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.words.join(u' ').toStdString());
        EXPECT_EQ(RefusalOf(row.words), row.refusal);
    }
}

TEST(CommandLine, TakesOnlyTheOptionsOfTheCommand)
{
    const CommandShape nothing = {.whichInput = "Which one?"_L1};
    EXPECT_EQ(RefusalOf({u"a"_s, u"--json"_s}, nothing), u"taken"_s);
    for (const QStringList &words :
         {QStringList{u"a"_s, u"--guid"_s, QString(32, u'A')}, QStringList{u"a"_s, u"-o"_s, u"b"_s},
          QStringList{u"a"_s, u"--timeout"_s, u"5"_s}, QStringList{u"a"_s, u"--colour"_s}})
        EXPECT_TRUE(RefusalOf(words, nothing).startsWith(u"Unknown option"))
            << RefusalOf(words, nothing).toStdString();
    EXPECT_EQ(RefusalOf({u"a"_s, u"-o"_s}), u"Missing value after '-o'."_s);
}

TEST(CommandLine, FindsOptionsAmongLettersThatStandTogether)
{
    EXPECT_TRUE(AsksFor({u"-q"_s}, Option::Quiet));
    EXPECT_TRUE(AsksFor({u"-qo"_s, u"out"_s}, Option::Quiet));
    EXPECT_TRUE(AsksFor({u"-qo"_s, u"out"_s}, Option::Output));
    EXPECT_FALSE(AsksFor({u"-oq"_s}, Option::Quiet)) << "it is the name";
    EXPECT_FALSE(AsksFor({u"--"_s, u"-q"_s}, Option::Quiet));
    EXPECT_FALSE(AsksFor({u"-o"_s, u"--json"_s}, Option::Json)) << "it is a name, too";
    EXPECT_TRUE(AsksFor({u"-o"_s, u"--json"_s, u"--json"_s}, Option::Json));
    EXPECT_EQ(CommandAt({u"-qo"_s, u"out"_s, u"create"_s}), 2);
    EXPECT_EQ(CommandAt({u"-oout"_s, u"create"_s}), 1);
}

TEST(CommandLine, TakesAWordThatBeginsLikeAnOutputForTheNameThatItMayBe)
{
    const QString hint = u"Which one? If '-order.vmp' is a name, put '--' before it."_s;
    EXPECT_EQ(RefusalOf({u"-order.vmp"_s}), hint);
    EXPECT_EQ(RefusalOf({u"-qorder.vmp"_s, u"--json"_s}),
              u"Which one? If '-qorder.vmp' is a name, put '--' before it."_s);
    EXPECT_EQ(RefusalOf({u"--"_s, u"-order.vmp"_s}), u"taken"_s);
    EXPECT_EQ(RefusalOf({u"-order"_s}), u"Which one?"_s);
    EXPECT_EQ(RefusalOf({u"-order.vmp"_s, u"a"_s}), u"taken"_s);
}

TEST(CommandLine, RefusesAWordThatIsAFileWhereItWouldBeOptions)
{
    const QString before = QDir::currentPath();
    QTemporaryDir folder;
    ASSERT_TRUE(QDir::setCurrent(folder.path()));
    ASSERT_TRUE(WriteBytes(u"-order.vmp"_s, "") && WriteBytes(u"-qoo"_s, ""));
    const QString refusal = u"'%1' is a file, and would be taken for options. "
                            "If '%1' is a name, put '--' before it."_s;
    EXPECT_EQ(RefusalOf({u"-order.vmp"_s, u"a"_s}), refusal.arg(u"-order.vmp"_s));
    EXPECT_EQ(RefusalOf({u"a"_s, u"-order.vmp"_s}), refusal.arg(u"-order.vmp"_s));
    EXPECT_EQ(RefusalOf({u"a"_s, u"-qoo"_s}), refusal.arg(u"-qoo"_s));
    EXPECT_EQ(RefusalOf({u"a"_s, u"-orderly.vmp"_s}), u"taken"_s) << "no file";
    EXPECT_EQ(RefusalOf({u"a"_s, u"-o"_s, u"-order.vmp"_s}), u"taken"_s) << "a value";
    EXPECT_EQ(RefusalOf({u"--"_s, u"a"_s, u"-order.vmp"_s}), u"taken"_s);
    QDir::setCurrent(before);
}

TEST(CommandLine, SuggestsOnlyWhatTheCommandTakes)
{
    const CommandShape nothing = {.whichInput = "Which one?"_L1};
    EXPECT_EQ(RefusalOf({u"a"_s, u"--strict"_s}, nothing), u"Unknown option 'strict'."_s);
    EXPECT_EQ(RefusalOf({u"a"_s, u"--jsn"_s}, nothing),
              u"Unknown option 'jsn'. Did you mean '--json'?"_s);
    EXPECT_EQ(RefusalOf({u"a"_s, u"-V"_s}, nothing),
              u"Unknown option 'V'. Did you mean '--version'?"_s);
}
