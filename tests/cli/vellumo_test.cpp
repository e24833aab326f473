#include "vellumo_run.h"

#include <QCryptographicHash>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

using Vellumo = VellumoRun;

} // namespace

TEST_F(Vellumo, SaysHowToUseIt)
{
    EXPECT_EQ(Run({u"--help"_s}), 0);
    const QString help = Out();
    for (const QString &command : {u"create"_s, u"info"_s, u"review"_s, u"rewrite"_s, u"screens"_s,
                                   u"script"_s, u"verify"_s}) {
        EXPECT_TRUE(help.contains(u"vellumo "_s + command)) << command.toStdString();
        EXPECT_EQ(Run({command, u"--help"_s}), 0);
    }
    EXPECT_EQ(Err(), u""_s);
    EXPECT_EQ(Run({u"--version"_s}), 0);
    EXPECT_TRUE(Out().startsWith(u"vellumo 1."));
}

TEST_F(Vellumo, SaysHowToUseOneCommand)
{
    for (const QStringList &words :
         {QStringList{u"help"_s, u"create"_s}, QStringList{u"create"_s, u"--help"_s},
          QStringList{u"--help"_s, u"create"_s}, QStringList{u"create"_s, u"-h"_s}}) {
        EXPECT_EQ(Run(words), 0);
        EXPECT_TRUE(Out().startsWith(u"  vellumo create PROJECT..."_s));
        EXPECT_FALSE(Out().contains(u"vellumo review"_s));
        EXPECT_TRUE(Out().contains(u"--guid HEX32"_s));
    }
    EXPECT_EQ(Run({u"help"_s}), 0);
    const QString all = Out();
    EXPECT_EQ(Run({u"--help"_s}), 0);
    EXPECT_EQ(Out(), all);
}

TEST_F(Vellumo, SuggestsWhatMayBeMeant)
{
    const struct {
        QStringList words;
        QString told;
    } rows[] = {
        {{u"reveiw"_s}, u"There is no command 'reveiw'. Did you mean 'review'?"_s},
        {{u"help"_s, u"creat"_s}, u"There is no command 'creat'. Did you mean 'create'?"_s},
        {{u"make"_s}, u"There is no command 'make'."_s},
        {{u"create"_s, u"--giud"_s, u"x"_s}, u"Unknown option 'giud'. Did you mean '--guid'?"_s},
        {{u"-dash.vmp"_s}, u"Which command? If '-dash.vmp' is a name, put '--' before it."_s},
        {{u"--versio"_s}, u"Which command? Did you mean '--version'?"_s},
        {{u"-V"_s}, u"Which command? Did you mean '--version'?"_s},
        {{u"-q"_s, u"--jsn"_s}, u"Which command? Did you mean '--json'?"_s},
        {{u"-q"_s, u"-o"_s, u"-V"_s}, u"Which command?"_s},
    };
    for (const auto &row : rows) {
        EXPECT_EQ(Run(row.words), 2);
        EXPECT_EQ(Err(), u"vellumo: "_s + row.told + u"\nTry 'vellumo --help'.\n"_s);
    }
    EXPECT_EQ(Run({u"review"_s, u"-dash.vmp"_s}), 2);
    EXPECT_TRUE(Err().contains(u" If '-dash.vmp' is a name, put '--' before it.\n"_s))
        << Err().toStdString();
}

TEST_F(Vellumo, TakesOptionsBeforeTheCommand)
{
    const QByteArray expected = BytesOf(DataFile(u"projects/SiteVisit.rcp"_s));
    const QString file = InFolder(u"a.rcp"_s);
    EXPECT_EQ(Run({u"--guid"_s, anIdentifier, u"-o"_s, file, u"script"_s, goldenSiteVisit}), 0)
        << Err().toStdString();
    EXPECT_EQ(BytesOf(file), expected);
    EXPECT_EQ(Run({u"--"_s, u"review"_s, goldenSiteVisit}), 2);
    EXPECT_TRUE(Err().startsWith(u"vellumo: Which command?\n"_s));
}

TEST_F(Vellumo, RefusesWrongUseOnStandardError)
{
    for (const QStringList &words :
         {QStringList{}, QStringList{u"make"_s}, QStringList{u"create"_s},
          QStringList{u"script"_s, u"a"_s, u"b"_s}, QStringList{u"rewrite"_s, u"--guid"_s, u"x"_s},
          QStringList{u"create"_s, u"--colour"_s},
          QStringList{u"script"_s, u"--"_s, u"--help"_s, u"--version"_s}}) {
        SCOPED_TRACE(words.join(u' ').toStdString());
        EXPECT_EQ(Run(words), 2);
        EXPECT_EQ(Out(), u""_s);
        EXPECT_TRUE(Err().endsWith(u"Try 'vellumo --help'.\n"));
    }
}

TEST_F(Vellumo, WritesAScriptToStandardOutputOrAFile)
{
    const QByteArray expected = BytesOf(DataFile(u"projects/SiteVisit.rcp"_s));
    EXPECT_EQ(Run({u"script"_s, goldenSiteVisit, u"--guid"_s, anIdentifier.toLower()}), 0);
    EXPECT_EQ(QByteArray::fromStdString(out.str()), expected);

    const QString file = InFolder(u"a.rcp"_s);
    EXPECT_EQ(Run({u"script"_s, goldenSiteVisit, u"-o"_s, file, u"--guid"_s, anIdentifier}), 0);
    EXPECT_EQ(Out(), u""_s);
    EXPECT_EQ(BytesOf(file), expected);
}

TEST_F(Vellumo, MakesANewIdentifierUnlessOneIsGiven)
{
    Run({u"script"_s, goldenSiteVisit});
    const QString first = Out();
    Run({u"script"_s, goldenSiteVisit});
    EXPECT_NE(first, Out());
}

TEST_F(Vellumo, WritesTheSameScriptOfTheSameProjectWhereTheTimeIsGiven)
{
    qputenv("SOURCE_DATE_EPOCH", "1");
    EXPECT_EQ(Run({u"script"_s, goldenSiteVisit}), 0);
    const QString first = Out();
    EXPECT_EQ(Run({u"script"_s, goldenSiteVisit}), 0);
    EXPECT_EQ(Out(), first);
    const QByteArray sum =
        QCryptographicHash::hash(BytesOf(goldenSiteVisit), QCryptographicHash::Sha256).toHex();
    EXPECT_TRUE(first.contains(QString::fromLatin1(sum.first(32)).toUpper())) << "as create has it";
    EXPECT_EQ(Run({u"script"_s, goldenSiteVisit, u"--guid"_s, anIdentifier}), 0);
    EXPECT_TRUE(Out().contains(anIdentifier));
    qputenv("SOURCE_DATE_EPOCH", "soon");
    EXPECT_EQ(Run({u"script"_s, goldenSiteVisit}), 2);
    EXPECT_EQ(Err(), u"vellumo: SOURCE_DATE_EPOCH must be 0 to 2212122495 seconds.\n"_s);
    qunsetenv("SOURCE_DATE_EPOCH");
}

TEST_F(Vellumo, SaysWhyAScriptCannotBeWritten)
{
    const QString noItems = DataFile(u"projects/edge-noitems.vmp"_s);
    EXPECT_EQ(Run({u"script"_s, noItems}), 1);
    EXPECT_EQ(Out(), u""_s) << "half a script is none";
    EXPECT_EQ(Err(), noItems + u": Question 3 is a list without items\n"_s);

    EXPECT_EQ(Run({u"script"_s, InFolder(u"none.vmp"_s)}), 3);
    EXPECT_EQ(Err(), InFolder(u"none.vmp"_s) + u": No such file or directory\n"_s);

    EXPECT_EQ(Run({u"script"_s, goldenSiteVisit, u"-o"_s, InFolder(u"none/a.rcp"_s)}), 5);
    EXPECT_TRUE(Err().startsWith(InFolder(u"none/a.rcp"_s) + u": "_s));
}

TEST_F(Vellumo, NamesTheLineOfAProjectThatIsDamaged)
{
    const QString path = InFolder(u"damaged.vmp"_s);
    WriteBytes(path, BytesOf(goldenSiteVisit).replace("<MaxId><![CDATA[11]]></MaxId>\r\n", ""));
    EXPECT_EQ(Run({u"script"_s, path}), 3);
    EXPECT_TRUE(Err().startsWith(path + u':')) << Err().toStdString();
    EXPECT_TRUE(Err().endsWith(u": the element MaxId is missing\n"));
}

TEST_F(Vellumo, AStreamThatTakesNothingIsAnError)
{
    std::istringstream in;
    out.setstate(std::ios::badbit);
    EXPECT_EQ(RunVellumo({u"script"_s, goldenSiteVisit}, {.in = in, .out = out, .err = err}), 5);
    EXPECT_EQ(Err(), u"vellumo: Standard output cannot be written.\n"_s);
}

TEST_F(Vellumo, RewritesAProjectInItsPlaceOrElsewhere)
{
    const QByteArray today = BytesOf(goldenSiteVisit);
    const QByteArray earlier =
        QByteArray(today).replace("Brindlecot Data Collect", "Harlo Data Collect");
    const QString path = InFolder(u"a.vmp"_s), copy = InFolder(u"b.vmp"_s);
    ASSERT_TRUE(WriteBytes(path, earlier));

    EXPECT_EQ(Run({u"rewrite"_s, path, u"-o"_s, copy}), 0);
    EXPECT_EQ(BytesOf(copy), today);
    EXPECT_EQ(BytesOf(path), earlier);
    EXPECT_EQ(Run({u"rewrite"_s, path}), 0);
    EXPECT_EQ(BytesOf(path), today);
    EXPECT_EQ(Out() + Err(), u""_s);
}

TEST_F(Vellumo, RewritingLeavesAFileThatItCannotReadOrWrite)
{
    const QString path = InFolder(u"a.vmp"_s);
    ASSERT_TRUE(WriteBytes(path, "no project"));
    EXPECT_EQ(Run({u"rewrite"_s, path}), 3);
    EXPECT_EQ(BytesOf(path), "no project");

    const QByteArray foreign =
        BytesOf(goldenSiteVisit).replace("windows-1252", "UTF-8").replace("Inspector", "\xCE\xA9");
    ASSERT_TRUE(WriteBytes(path, foreign));
    EXPECT_EQ(Run({u"rewrite"_s, path}), 5);
    EXPECT_TRUE(Err().contains(u"The title of question 1 has the character"));
    EXPECT_EQ(BytesOf(path), foreign);
}

TEST_F(Vellumo, RewriteRefusesWhatCouldNotBeReadAgain)
{
    const QString path = InFolder(u"a.vmp"_s);
    const QByteArray before =
        BytesOf(goldenSiteVisit)
            .replace("<Title><![CDATA[Inspector]]>", "<Title><![CDATA[a\n]]]]><![CDATA[>b]]>");
    ASSERT_TRUE(WriteBytes(path, before));
    const QString reason =
        u"question 1, title: \"a\\x0a]]>b\": \"]]>\" ends a text in a project file, "
        "so the file cannot be opened again once it is saved"_s;
    EXPECT_EQ(Run({u"rewrite"_s, path}), 5);
    EXPECT_EQ(Err(), path + u": "_s + reason + u'\n');
    EXPECT_EQ(BytesOf(path), before);

    EXPECT_EQ(Run({u"rewrite"_s, path, u"-o"_s, InFolder(u"b.vmp"_s)}), 5);
    EXPECT_EQ(Run({u"rewrite"_s, path, u"-o"_s, u"-"_s}), 5);
    EXPECT_EQ(Out(), u""_s);
    EXPECT_EQ(NamesIn(m_folder.path()), QStringList{u"a.vmp"_s});

    EXPECT_EQ(Run({u"rewrite"_s, u"--json"_s, path}), 5);
    EXPECT_EQ(Objects(), (QList<QJsonObject>{{{u"kind"_s, u"error"_s},
                                              {u"code"_s, u"not-written"_s},
                                              {u"file"_s, path},
                                              {u"message"_s, reason}},
                                             {{u"kind"_s, u"result"_s},
                                              {u"code"_s, u"failed"_s},
                                              {u"file"_s, path},
                                              {u"input"_s, path},
                                              {u"exit"_s, 5},
                                              {u"message"_s, u"It failed."_s}}}));
}

TEST_F(Vellumo, ReadsAndWritesStandardStreams)
{
    const QByteArray project = BytesOf(goldenSiteVisit);
    EXPECT_EQ(Run({u"rewrite"_s, u"-"_s}, project), 0);
    EXPECT_EQ(QByteArray::fromStdString(out.str()), project);
    EXPECT_EQ(Run({u"rewrite"_s, goldenSiteVisit, u"-o"_s, u"-"_s}), 0);
    EXPECT_EQ(QByteArray::fromStdString(out.str()), project);
    EXPECT_EQ(Run({u"script"_s, u"-"_s, u"--guid"_s, anIdentifier}, project), 0);
    EXPECT_EQ(QByteArray::fromStdString(out.str()), BytesOf(DataFile(u"projects/SiteVisit.rcp"_s)));

    EXPECT_EQ(Run({u"script"_s, u"-"_s}, "no project"), 3);
    EXPECT_TRUE(Err().startsWith(u"standard input:1: "));
    EXPECT_EQ(Run({u"script"_s, u"-"_s}, QByteArray(16LL * 1024 * 1024 + 1, ' ')), 3);
    EXPECT_EQ(Err(), u"standard input: The file is larger than any project can be\n"_s);
}

TEST_F(Vellumo, TellsProgramsInJson)
{
    const QString file = InFolder(u"a.rcp"_s);
    EXPECT_EQ(Run({u"script"_s, goldenSiteVisit, u"-o"_s, file, u"--json"_s}), 0);
    ASSERT_EQ(Objects().size(), 1);
    EXPECT_EQ(Objects()[0][u"kind"_s], u"result"_s);
    EXPECT_EQ(Objects()[0][u"code"_s], u"script"_s);
    EXPECT_EQ(Objects()[0][u"file"_s], file);

    EXPECT_EQ(Run({u"--json"_s}), 2) << "the same status as without";
    ASSERT_EQ(Objects().size(), 1);
    EXPECT_EQ(Objects()[0][u"code"_s], u"wrong-use"_s);
    EXPECT_EQ(Run({u"script"_s, goldenSiteVisit, u"--json"_s}), 2)
        << "a script and an object would get mixed";
    EXPECT_EQ(Run({u"script"_s, InFolder(u"none.vmp"_s), u"-o"_s, file, u"--json"_s}), 3);
    EXPECT_EQ(Objects()[0][u"code"_s], u"unreadable"_s);
    EXPECT_EQ(Err(), u""_s);
}
