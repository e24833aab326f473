#include "model/limits.h"
#include "model/project_reader.h"
#include "vellumo_run.h"

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

class ItemsCommand : public VellumoRun
{
protected:
    ItemsCommand()
    {
        // The first is a text, the others have lists.
        WriteBytes(InFolder(u"sheet.csv"_s), "Question,Type,Column Name,Items\n"
                                             "What?,Text,TEXT,\n"
                                             "Which?,Pulldown List,STATE,\"b\na\"\n"
                                             "And?,Checkboxes,BOX,x\n");
        Run({u"import"_s, InFolder(u"sheet.csv"_s), u"-o"_s, Given()});
    }

    QString Given() const { return InFolder(u"given.vmp"_s); }
    QString List() const { return InFolder(u"list.txt"_s); }

    int Items(const QString &question, const QByteArray &lines, const QStringList &words = {})
    {
        WriteBytes(List(), lines);
        return Run(
            QStringList{u"items"_s, Given(), u"--question"_s, question, u"--from"_s, List()} +
            words);
    }

    QStringList ItemsOf(int id, const QString &path = {}) const
    {
        const Result<Project> project = ReadProject(BytesOf(path.isEmpty() ? Given() : path));
        return project ? project->source.ItemsOf(id) : QStringList();
    }

    QString Complaint(const QString &text) const { return List() + text + u'\n'; }
};

} // namespace

TEST_F(ItemsCommand, PutsTheLinesOfATextInThePlaceOfTheItems)
{
    EXPECT_EQ(Items(u"STATE"_s, "Oak\r\n\r\n Ash \r\n"), 0);
    EXPECT_EQ(Out(), u"2 items were added.\n"_s);
    EXPECT_EQ(Err(), u""_s);
    EXPECT_EQ(ItemsOf(2), (QStringList{u"Oak"_s, u"Ash"_s}));
    EXPECT_EQ(ItemsOf(3), QStringList{u"x"_s});
    EXPECT_EQ(Items(u"3"_s, "y"), 0);
    EXPECT_EQ(Out(), u"1 item was added.\n"_s);
    EXPECT_EQ(ItemsOf(3), QStringList{u"y"_s});
}

TEST_F(ItemsCommand, AppendsAndSorts)
{
    EXPECT_EQ(Items(u"2"_s, "c\nB\n", {u"--append"_s}), 0);
    EXPECT_EQ(ItemsOf(2), (QStringList{u"b"_s, u"a"_s, u"c"_s, u"B"_s}));
    EXPECT_EQ(Items(u"2"_s, "", {u"--append"_s, u"--sort"_s}), 0);
    EXPECT_EQ(Out(), u"0 items were added.\n"_s);
    EXPECT_EQ(ItemsOf(2), (QStringList{u"B"_s, u"a"_s, u"b"_s, u"c"_s}));
}

TEST_F(ItemsCommand, TakesAColumnOfATable)
{
    const QString table = InFolder(u"trees.CSV"_s), copy = InFolder(u"copy.vmp"_s);
    WriteBytes(table, "No;Tree\n1;\"Oak; old\"\n2;Ash\n");
    const QStringList words = {u"items"_s,  Given(), u"--question"_s, u"STATE"_s,
                               u"--from"_s, table,   u"-o"_s,         copy};
    EXPECT_EQ(Run(words), 0);
    EXPECT_EQ(ItemsOf(2, copy), (QStringList{u"No"_s, u"1"_s, u"2"_s}));
    EXPECT_EQ(Run(words + QStringList{u"--column"_s, u"tree"_s}), 0);
    EXPECT_EQ(ItemsOf(2, copy), (QStringList{u"Oak; old"_s, u"Ash"_s}));
    EXPECT_EQ(ItemsOf(2), (QStringList{u"b"_s, u"a"_s})) << "-o leaves the project alone";
    EXPECT_EQ(Run(words + QStringList{u"--column"_s, u"Shrub"_s}), 3);
    EXPECT_EQ(Err(), table + u": The first row has no column 'Shrub'.\n"_s);
    EXPECT_EQ(Items(u"2"_s, "Tree\nElm\nElm\n", {u"--column"_s, u"Tree"_s}), 1);
    EXPECT_TRUE(Err().startsWith(List() + u": Row 3: The item already exists."_s));
}

TEST_F(ItemsCommand, WritesNothingWhereALineIsRefused)
{
    const QByteArray before = BytesOf(Given());
    const QString exists = u"The item already exists. Please enter a different name."_s;
    EXPECT_EQ(Items(u"2"_s, "c\nc\n\n" + QByteArray(33, 'x') + "\n\"\nb", {u"--append"_s}), 1);
    EXPECT_EQ(Out(), u""_s);
    EXPECT_EQ(Err(), Complaint(u":2: "_s + exists) + Complaint(u":4: "_s + itemLimit.message) +
                         Complaint(u":5: "_s + doubleQuotes.message) +
                         Complaint(u":6: "_s + exists) +
                         Complaint(u": Nothing was written. With --skip the rest will be."_s));
    EXPECT_EQ(BytesOf(Given()), before);

    EXPECT_EQ(Items(u"2"_s, "c\nc\n", {u"--skip"_s}), 0);
    EXPECT_EQ(Out(), u"1 item was added.\n"_s);
    EXPECT_EQ(Err(), Complaint(u":2: left out: "_s + exists));
    EXPECT_EQ(ItemsOf(2), QStringList{u"c"_s});
}

TEST_F(ItemsCommand, KeepsTheLimitsOfTheType)
{
    QByteArray lines;
    for (int i = 1; i <= 33; ++i)
        lines += QByteArray::number(i) + '\n';
    EXPECT_EQ(Items(u"BOX"_s, lines), 1);
    EXPECT_TRUE(Err().startsWith(List() + u":33: "_s + checkboxLimit.message));
    EXPECT_EQ(Items(u"BOX"_s, lines, {u"--skip"_s}), 0);
    EXPECT_EQ(ItemsOf(3).size(), 32);
    EXPECT_EQ(Items(u"BOX"_s, " \n"), 1);
    EXPECT_EQ(Err(), Complaint(u": Please enter at least one item"_s));
    EXPECT_EQ(ItemsOf(3).size(), 32);
}

TEST_F(ItemsCommand, UsesStandardStreamsAndJson)
{
    const QByteArray given = BytesOf(Given());
    const QStringList words = {u"items"_s, u"--question"_s, u"2"_s, u"--from"_s};
    EXPECT_EQ(Run(words + QStringList{u"-"_s, Given()}, "c"), 0);
    EXPECT_EQ(ItemsOf(2), QStringList{u"c"_s});
    EXPECT_EQ(Items(u"2"_s, "d", {u"--json"_s}), 0);
    ASSERT_EQ(Objects().size(), 1);
    EXPECT_EQ(Objects()[0][u"code"_s], u"items"_s);
    EXPECT_EQ(Objects()[0][u"message"_s], u"1 item was added."_s);
    EXPECT_EQ(Objects()[0][u"added"_s], 1);
    EXPECT_EQ(Run(words + QStringList{List(), u"-"_s}, given), 0);
    EXPECT_TRUE(ReadProject(QByteArray::fromStdString(out.str())));
    EXPECT_EQ(Err(), u"1 item was added.\n"_s);
    EXPECT_EQ(Items(u"2"_s, "d\nd", {u"--json"_s}), 1);
    EXPECT_EQ(Objects()[0][u"line"_s], 2);
    EXPECT_EQ(Objects()[0][u"question"_s], 2);
    EXPECT_EQ(Objects()[0][u"step"_s], 2);
}

TEST_F(ItemsCommand, RefusesWhatMakesNoSense)
{
    const std::pair<QStringList, QString> words[] = {
        {{Given(), u"--from"_s, List()},
         u"vellumo: Items of which question? Please name it with --question.\n"_s},
        {{Given(), u"--question"_s, u"2"_s},
         u"vellumo: Items from where? Please name a file with --from.\n"_s},
        {{u"-"_s, u"--question"_s, u"2"_s, u"--from"_s, u"-"_s},
         u"vellumo: Standard input, '-', can be read once only.\n"_s},
    };
    for (const auto &[line, reason] : words) {
        EXPECT_EQ(Run(QStringList{u"items"_s} + line), 2);
        EXPECT_EQ(Err(), reason);
    }
    for (const QString &question : {u"0"_s, u"4"_s, u"state"_s}) {
        EXPECT_EQ(Items(question, "a"), 2);
        EXPECT_EQ(Err(), Given() + u": There is no question '%1'.\n"_s.arg(question));
    }
    EXPECT_EQ(Items(u"1"_s, "a"), 2);
    EXPECT_EQ(Err(), Given() + u": A question of the type 'Text' has no items.\n"_s);
    EXPECT_EQ(Items(u"2"_s, "\xE4"), 3);
    EXPECT_EQ(Err(), Complaint(u":1: The text is not in UTF-8."_s));
}
