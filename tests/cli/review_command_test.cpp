#include "vellumo_run.h"

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

class ReviewCommand : public VellumoRun
{
protected:
    /// A file with the example, changed.
    QString Changed(const QByteArray &from, const QByteArray &to, const QString &name = u"a.vmp"_s)
    {
        const QByteArray bytes = BytesOf(siteVisit);
        EXPECT_TRUE(bytes.contains(from)) << from.toStdString();
        QString path = InFolder(name);
        WriteBytes(path, QByteArray(bytes).replace(from, to));
        return path;
    }
};

const QByteArray name = "<FormName><![CDATA[SiteVisit]]></FormName>";
const QByteArray noName = "<FormName></FormName>";

} // namespace

TEST_F(ReviewCommand, SaysNothingOfAProjectThatIsFine)
{
    EXPECT_EQ(Run({u"review"_s, siteVisit}), 0);
    EXPECT_EQ(Out() + Err(), u""_s);
}

TEST_F(ReviewCommand, ListsTheEntriesAsTheErrorListShowsThem)
{
    const QString path = Changed(name, noName);
    EXPECT_EQ(Run({u"review"_s, path}), 1);
    EXPECT_EQ(Out(), u"Step1\t\tPlease enter a name for your Vellsheet.\n"_s);
    EXPECT_EQ(Err(), u""_s);
}

TEST_F(ReviewCommand, WarnsProgramsOfAnUnknownType)
{
    const QString path = Changed("<Type><![CDATA[Text]]></Type>", "<Type>Telepathy</Type>");
    EXPECT_EQ(Run({u"review"_s, u"--json"_s, path}), 1);
    ASSERT_GE(Objects().size(), 2);
    EXPECT_EQ(Objects()[0][u"kind"_s], u"warning"_s);
    EXPECT_EQ(Objects()[0][u"code"_s], u"unknown-type"_s);
}

TEST_F(ReviewCommand, PutsTheFileInFrontWhereThereAreSeveral)
{
    const QString good = siteVisit, bad = Changed(name, noName);
    EXPECT_EQ(Run({u"review"_s, good, bad}), 1);
    EXPECT_EQ(Out(), bad + u": Step1\t\tPlease enter a name for your Vellsheet.\n"_s);
    EXPECT_EQ(Run({u"review"_s, bad, InFolder(u"none.vmp"_s), good}), 3);
}

TEST_F(ReviewCommand, WarnsOfWhatWillNotArriveAsTyped)
{
    const QString path = Changed("<Title><![CDATA[Inspector]]>", "<Title><![CDATA[a\\b]]>");
    EXPECT_EQ(Run({u"review"_s, path}), 1);
    EXPECT_TRUE(Out().startsWith(u"warning: question 1, title: \"a\\b\": ")) << Out().toStdString();
}

TEST_F(ReviewCommand, WarnsOfATextThatMakesTheFileUnreadable)
{
    const QString path =
        Changed("<Title><![CDATA[Inspector]]>", "<Title><![CDATA[a]]]]><![CDATA[>b]]>");
    EXPECT_EQ(Run({u"review"_s, path}), 1);
    EXPECT_TRUE(Out().startsWith(u"warning: question 1, title: \"a]]>b\": "))
        << Out().toStdString();
    EXPECT_EQ(Run({u"review"_s, u"--json"_s, path}), 1);
    EXPECT_EQ(Objects()[0][u"kind"_s], u"warning"_s);
    EXPECT_EQ(Objects()[0][u"code"_s], u"unreadable"_s);
    EXPECT_EQ(Objects()[0][u"question"_s], 1);
    EXPECT_EQ(Objects()[0][u"field"_s], u"title"_s);
    EXPECT_EQ(Objects()[1][u"code"_s], u"passed"_s);
}

TEST_F(ReviewCommand, KeepsControlCharactersFromTheTerminal)
{
    const QString path = Changed("<Title><![CDATA[Inspector]]>", "<Title><![CDATA[a\\\xC2\x9B"
                                                                 "b\tc]]>");
    EXPECT_EQ(Run({u"review"_s, path}), 1);
    EXPECT_TRUE(Out().contains(uR"("a\Â›b\x09c")"_s)) << Out().toStdString();
}

TEST_F(ReviewCommand, TellsProgramsInJson)
{
    const QString path = Changed(name + "\r\n<FormVersion>", noName + "\r\n<FormVersion>");
    EXPECT_EQ(Run({u"review"_s, u"--json"_s, path}), 1);
    ASSERT_EQ(Objects().size(), 2);
    EXPECT_EQ(Objects()[0],
              (QJsonObject{{u"kind"_s, u"finding"_s},
                           {u"code"_s, u"invalid-form-name"_s},
                           {u"field"_s, u"form name"_s},
                           {u"file"_s, path},
                           {u"step"_s, 1},
                           {u"message"_s, u"Please enter a name for your Vellsheet."_s}}));
    EXPECT_EQ(Objects()[1], (QJsonObject{{u"kind"_s, u"result"_s},
                                         {u"code"_s, u"not-passed"_s},
                                         {u"file"_s, path},
                                         {u"input"_s, path},
                                         {u"exit"_s, 1},
                                         {u"message"_s, u"The project does not pass."_s}}));

    const QString warned = Changed("<Item><![CDATA[Nevada]]>", "<Item><![CDATA[a,b]]>");
    EXPECT_EQ(Run({u"review"_s, u"--json"_s, warned}), 1);
    EXPECT_EQ(Objects()[0][u"kind"_s], u"warning"_s);
    EXPECT_EQ(Objects()[0][u"code"_s], u"comma-in-item"_s);
    EXPECT_EQ(Objects()[0][u"step"_s], 2);
    EXPECT_EQ(Objects()[0][u"question"_s], 3);
    EXPECT_EQ(Objects()[0][u"field"_s], u"item"_s);
    EXPECT_EQ(Objects()[1][u"code"_s], u"passed"_s) << "warnings do not stand in the way";
}

TEST_F(ReviewCommand, WarnsOfWhatDoesNotFitTheScreen)
{
    const QString path =
        Changed("<Title><![CDATA[Inspector]]>", "<Title><![CDATA[WWWWWWWWWWWWWWWWWWWW]]>");
    EXPECT_EQ(Run({u"review"_s, path}), 0) << "the database is as it should be";
    EXPECT_EQ(Out(), u"warning: question 1, title: \"WWWWWWWWWWWWWWWWWWWW\": it is 74 pixels too "
                     "wide and stops after \"WWWWWWWWWWWWW\"; a button covers the rest\n"_s);
    EXPECT_EQ(Run({u"review"_s, u"--json"_s, path}), 0);
    ASSERT_EQ(Objects().size(), 2);
    EXPECT_EQ(Objects()[0][u"kind"_s], u"warning"_s);
    EXPECT_EQ(Objects()[0][u"code"_s], u"title-too-wide"_s);
    EXPECT_EQ(Objects()[0][u"question"_s], 1);
    EXPECT_EQ(Objects()[0][u"field"_s], u"title"_s);
    EXPECT_EQ(Objects()[1][u"code"_s], u"passed"_s);

    const QString both =
        Changed("<Title><![CDATA[Inspector]]>", "<Title><![CDATA[WWWWWWWWWWWWWWWWWW\\W]]>");
    EXPECT_EQ(Run({u"review"_s, both}), 1) << "a warning of the other kind is in it too";
    EXPECT_EQ(Out().count(u"warning: "_s), 2) << Out().toStdString();
}

TEST_F(ReviewCommand, TakesWarningsForFindingsWhereItIsStrict)
{
    const QString wide = Changed("<Title><![CDATA[Inspector]]>",
                                 "<Title><![CDATA[Inspector of the northern district]]>");
    EXPECT_EQ(Run({u"review"_s, wide}), 0);
    const QString told = Out();
    EXPECT_EQ(Run({u"review"_s, u"--strict"_s, wide}), 1);
    ASSERT_TRUE(told.startsWith("warning: "_L1)) << told.toStdString();
    EXPECT_EQ(Out(), told.mid(9)) << "it is no warning then";
    EXPECT_EQ(Run({u"review"_s, u"--strict"_s, u"--json"_s, wide}), 1);
    ASSERT_EQ(Objects().size(), 2);
    EXPECT_EQ(Objects()[0].value(u"kind"_s).toString(), u"finding"_s);
    EXPECT_EQ(Objects()[1].value(u"code"_s).toString(), u"not-passed"_s);
    EXPECT_EQ(Run({u"review"_s, u"--strict"_s, siteVisit}), 0);
}

TEST_F(ReviewCommand, TellsOnlyWhatMakesItsStatusWhereItIsQuiet)
{
    const QString wide = Changed("<Title><![CDATA[Inspector]]>",
                                 "<Title><![CDATA[Inspector of the northern district]]>");
    EXPECT_EQ(Run({u"review"_s, u"-q"_s, wide}), 0);
    EXPECT_EQ(Out() + Err(), u""_s);
    const QString path = Changed("<Title><![CDATA[Inspector]]>", "<Title><![CDATA[a\\b]]>");
    EXPECT_EQ(Run({u"review"_s, u"-q"_s, path}), 1);
    EXPECT_TRUE(Out().startsWith(u"warning: question 1, title: "_s)) << Out().toStdString();
    EXPECT_EQ(Out().count(u'\n'), 1) << Out().toStdString();
    EXPECT_EQ(Run({u"review"_s, u"--quiet"_s, u"--strict"_s, path}), 1);
    EXPECT_TRUE(Out().startsWith(u"question 1, title: "_s)) << Out().toStdString();
    EXPECT_EQ(Run({u"review"_s, u"--quiet"_s, Changed(name, noName)}), 1);
    EXPECT_EQ(Out(), u"Step1\t\tPlease enter a name for your Vellsheet.\n"_s);
}

TEST_F(ReviewCommand, LetsAQuestionBeBroken)
{
    const QString path =
        Changed("Who inspects the site?", "Who inspects the site today,\\nand why?");
    EXPECT_EQ(Run({u"review"_s, path}), 0);
    EXPECT_TRUE(Out().startsWith(u"warning: question 1, question text: "_s)) << Out().toStdString();
    EXPECT_TRUE(Out().contains(u": line 1 is "_s)) << Out().toStdString();
    EXPECT_EQ(Out().count(u'\n'), 1) << "the line break of the question itself is none of these";
}

TEST_F(ReviewCommand, LeavesTheFileAlone)
{
    const QString path = Changed("<FormVersion><![CDATA[1.0]]>", "<FormVersion><![CDATA[  1.0]]>");
    const QByteArray before = BytesOf(path);
    EXPECT_EQ(Run({u"review"_s, path}), 0);
    EXPECT_EQ(BytesOf(path), before);
}

TEST_F(ReviewCommand, TellsAPersonHowFarItIs)
{
    watched = true;
    const QString good = siteVisit;
    EXPECT_EQ(Run({u"review"_s, good, good}), 0);
    EXPECT_EQ(Err(), u"1 of 2: "_s + good + u"\n2 of 2: "_s + good + u'\n');
    EXPECT_EQ(Run({u"review"_s, good}), 0);
    EXPECT_EQ(Err(), u""_s);
}
