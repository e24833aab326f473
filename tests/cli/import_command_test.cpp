#include "model/project_reader.h"
#include "vellumo_run.h"

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

const QByteArray heading = "Question,Type,Column Name,Items\n";

class ImportCommand : public VellumoRun
{
protected:
    QString Sheet() const { return InFolder(u"sheet.csv"_s); }
    QString Output() const { return InFolder(u"project.vmp"_s); }

    int Import(const QByteArray &sheet, const QStringList &words = {})
    {
        return ImportTo(Output(), sheet, words);
    }

    int ImportTo(const QString &output, const QByteArray &sheet, const QStringList &words = {})
    {
        WriteBytes(Sheet(), sheet);
        return Run(QStringList{u"import"_s, Sheet(), u"-o"_s, output} + words);
    }

    QStringList Names(const QString &path) const
    {
        const Result<Project> project = ReadProject(BytesOf(path));
        QStringList names;
        if (project)
            for (const QuestionRow &row : project->source.Questions().Rows())
                names += row.ColumnName;
        return names;
    }

    QString Complaint(const QString &text) const { return Sheet() + u": "_s + text + u'\n'; }
};

} // namespace

TEST_F(ImportCommand, GivesBackWhatWasExported)
{
    EXPECT_EQ(Run({u"export"_s, siteVisit, u"--csv"_s, u"-o"_s, Sheet()}), 0);
    EXPECT_EQ(Out() + Err(), u""_s);
    const QByteArray sheet = BytesOf(Sheet());
    EXPECT_TRUE(sheet.startsWith("\xEF\xBB\xBF"
                                 "Form name,"));
    EXPECT_EQ(Import(sheet), 0);
    EXPECT_TRUE(Out().endsWith(u" questions were imported.\n"_s)) << Out().toStdString();
    EXPECT_EQ(Err(), u""_s);
    EXPECT_EQ(BytesOf(Output()), BytesOf(siteVisit));
}

TEST_F(ImportCommand, UsesStandardStreams)
{
    EXPECT_EQ(Run({u"export"_s, u"--csv"_s, u"-"_s}, BytesOf(siteVisit)), 0);
    const QByteArray sheet = QByteArray::fromStdString(out.str());
    EXPECT_EQ(Run({u"import"_s, u"-"_s}, sheet), 0);
    EXPECT_EQ(QByteArray::fromStdString(out.str()), BytesOf(siteVisit));
    EXPECT_TRUE(Err().endsWith(u" questions were imported.\n"_s)) << "beside the project";
    EXPECT_EQ(Run({u"import"_s, u"-q"_s, u"-"_s}, sheet), 0);
    EXPECT_EQ(Err(), u""_s);
}

TEST_F(ImportCommand, WritesNothingWhereACellIsRefused)
{
    const QByteArray sheet = heading + "What?,Text,a,\nWhy?,Essay,b,\nHow?,Text,,x\n";
    EXPECT_EQ(Import(sheet), 1);
    EXPECT_EQ(Out(), u""_s);
    EXPECT_EQ(Err(), Complaint(u"Row 3, Type: There is no question type of this name."_s) +
                         Complaint(u"Row 4, Items: A question of this type has no items."_s) +
                         Complaint(u"Row 4, Column Name: Please enter a column name."_s) +
                         Complaint(u"Nothing was written. With --skip the rest will be."_s));
    EXPECT_FALSE(QFile::exists(Output()));
}

TEST_F(ImportCommand, LeavesOutWhatIsRefusedWhereThatIsAskedFor)
{
    const QByteArray sheet = "Author,x\n" + heading + "What?,Text,a,\nWhy?,Essay,b,\n";
    EXPECT_EQ(Import(sheet, {u"--skip"_s}), 0);
    EXPECT_EQ(Out(), u"1 question was imported. 1 question was left out.\n"_s);
    EXPECT_EQ(Err(),
              Complaint(u"left out: Row 1, Author: No row above the heading has this name."_s) +
                  Complaint(u"left out: Row 4, Type: There is no question type of this name."_s));
    EXPECT_EQ(Names(Output()), QStringList{u"a"_s});
}

TEST_F(ImportCommand, AppendsToAProject)
{
    const QString project = InFolder(u"given.vmp"_s);
    ASSERT_EQ(ImportTo(project, heading + "What?,Text,a,\n"), 0);
    WriteBytes(Sheet(), heading + "What?,Text,a,\nWhy?,Text,b,\n");
    EXPECT_EQ(Run({u"import"_s, Sheet(), u"--into"_s, project, u"-o"_s, Output()}), 0);
    EXPECT_EQ(Names(project), QStringList{u"a"_s});
    EXPECT_EQ(Names(Output()), (QStringList{u"a"_s, u"a(1)"_s, u"b"_s}));
    EXPECT_EQ(Run({u"import"_s, Sheet(), u"--into"_s, project}), 0);
    EXPECT_EQ(Out(), u"2 questions were imported.\n"_s);
    EXPECT_EQ(Names(project), (QStringList{u"a"_s, u"a(1)"_s, u"b"_s}));
    EXPECT_EQ(Run({u"import"_s, u"-"_s, u"--into"_s, project}, heading + "a\x01,Text,c,"), 1);
    EXPECT_EQ(Names(project).size(), 3);
}

TEST_F(ImportCommand, TellsProgramsInJson)
{
    EXPECT_EQ(Import(heading + "What?,Essay,a,\n", {u"--json"_s}), 1);
    ASSERT_EQ(Objects().size(), 3);
    EXPECT_EQ(
        Objects()[0],
        (QJsonObject{{u"kind"_s, u"finding"_s},
                     {u"code"_s, u"refused"_s},
                     {u"message"_s, u"Row 2, Type: There is no question type of this name."_s},
                     {u"file"_s, Sheet()},
                     {u"row"_s, 2},
                     {u"step"_s, 2},
                     {u"question"_s, 1},
                     {u"field"_s, u"Type"_s}}));
    EXPECT_EQ(Objects()[1][u"code"_s], u"not-passed"_s);
    EXPECT_EQ(Objects()[2][u"code"_s], u"failed"_s);
    EXPECT_EQ(Import(heading + "What?,Essay,a,\n", {u"--json"_s, u"--skip"_s}), 0);
    ASSERT_EQ(Objects().size(), 2);
    EXPECT_EQ(Objects()[0][u"kind"_s], u"warning"_s);
    EXPECT_EQ(Objects()[0][u"code"_s], u"refused"_s);
    EXPECT_EQ(Objects()[1], (QJsonObject{{u"kind"_s, u"result"_s},
                                         {u"code"_s, u"imported"_s},
                                         {u"message"_s, Objects()[1][u"message"_s]},
                                         {u"file"_s, Output()},
                                         {u"input"_s, Sheet()},
                                         {u"exit"_s, 0},
                                         {u"added"_s, 0},
                                         {u"leftOut"_s, 1}}));
    EXPECT_EQ(Run({u"import"_s, Sheet(), u"--json"_s}), 2) << "the project has no place";
    EXPECT_EQ(Run({u"export"_s, siteVisit, u"--csv"_s, u"--json"_s}), 2);
    EXPECT_EQ(Run({u"export"_s, siteVisit, u"--csv"_s, u"--json"_s, u"-o"_s, Sheet()}), 0);
    EXPECT_EQ(Objects()[0][u"code"_s], u"exported"_s);
}

TEST_F(ImportCommand, TellsWhereTheDesignerHasWhatIsRefused)
{
    const QByteArray rows = "Form name,a,b\nData folder,a,b\nNext Id,x\n" + heading +
                            "What?,Text,a,\nWhy?,Essay,b,\n,,,\nHow?,Text,,\n";
    const auto places = [this] {
        QStringList told;
        for (const QJsonObject &object : Objects())
            if (object[u"code"_s] == u"refused"_s)
                told += u"%1: step %2, question %3"_s.arg(
                    QString::number(object[u"row"_s].toInt()),
                    QString::number(object[u"step"_s].toInt()),
                    QString::number(object[u"question"_s].toInt()));
        return told;
    };
    EXPECT_EQ(Import(rows, {u"--json"_s}), 1);
    EXPECT_EQ(places(), (QStringList{u"1: step 1, question 0"_s, u"2: step 3, question 0"_s,
                                     u"3: step 0, question 0"_s, u"6: step 2, question 2"_s,
                                     u"8: step 2, question 3"_s}));
    const QString project = InFolder(u"given.vmp"_s);
    ASSERT_EQ(ImportTo(project, heading + "What?,Text,a,\n"), 0);
    EXPECT_EQ(Import(heading + "Why?,Essay,b,\n", {u"--json"_s, u"--into"_s, project}), 1);
    EXPECT_EQ(places(), QStringList{u"2: step 2, question 2"_s}) << "behind those that are there";
}

TEST_F(ImportCommand, RefusesWhatIsNoSheet)
{
    const std::pair<QByteArray, QString> sheets[] = {
        {"a,b\n", u": There is no heading: a row with 'Question', 'Type' and 'Column Name'.\n"_s},
        {"Question,Type\n", u": The heading, row 1, has no column 'Column Name'.\n"_s},
        {heading + "\xE4", u":2: The text is not in UTF-8.\n"_s},
        {heading + "a\"", u":2: A quotation mark stands where none can.\n"_s},
        {heading + "\"", u": Row 2 has a quotation mark without its partner.\n"_s},
        {QByteArray(16 * 1024 * 1024 + 1, 'x'), u": The file is larger than any sheet can be\n"_s},
    };
    for (const auto &[sheet, reason] : sheets) {
        EXPECT_EQ(Import(sheet), 3);
        EXPECT_EQ(Err(), Sheet() + reason);
        EXPECT_FALSE(QFile::exists(Output()));
    }
    EXPECT_EQ(Run({u"import"_s, InFolder(u"none.csv"_s)}), 3);
    EXPECT_EQ(Run({u"export"_s, u"--csv"_s, Sheet()}), 3);
}

TEST_F(ImportCommand, RefusesCellsThatAProjectCannotHold)
{
    const QByteArray rows = heading + "\xCE\xA9?,Text,a,\nWhat?,Text,b,\n]]>?,Text,c,\n"
                                      "Which?,Checkboxes,d,\"x\ny\x02\"\n";
    EXPECT_EQ(Import(rows), 1);
    EXPECT_EQ(Err(),
              Complaint(u"Row 2, Question: It has the character 'Ω' (U+03A9), which "
                        "windows-1252 does not have."_s) +
                  Complaint(u"Row 4, Question: It has \"]]>\", which ends a text in a project "
                            "file."_s) +
                  Complaint(u"Row 5, Items: Item 2: It has the control character U+0002, which no "
                            "project file can have."_s) +
                  Complaint(u"Nothing was written. With --skip the rest will be."_s));
    EXPECT_FALSE(QFile::exists(Output()));
    EXPECT_EQ(Import(rows, {u"--skip"_s}), 0);
    EXPECT_EQ(Names(Output()), QStringList{u"b"_s});
}

TEST_F(ImportCommand, RefusesWhatCannotBeWritten)
{
    EXPECT_EQ(ImportTo(InFolder(u"no/such/folder"_s), heading), 5);
}

TEST_F(ImportCommand, RefusesWordsThatMakeNoSense)
{
    const std::pair<QStringList, QString> words[] = {
        {{u"export"_s, siteVisit}, u"vellumo: Export as what? Please say --csv or --xlsform.\n"_s},
        {{u"import"_s, u"-"_s, u"--into"_s, u"-"_s},
         u"vellumo: Standard input, '-', can be read once only.\n"_s},
        {{u"import"_s, u"-"_s, u"--into"_s, u"/dev/stdin"_s},
         u"/dev/stdin: What is no file cannot be rewritten in its place: -o FILE.\n"_s},
    };
    for (const auto &[line, reason] : words) {
        EXPECT_EQ(Run(line), 2);
        EXPECT_EQ(Err(), reason);
    }
    EXPECT_EQ(Run({u"import"_s}), 2);
    EXPECT_TRUE(Err().startsWith(u"vellumo: Which sheet? Please name a .csv file.\n"_s));
    EXPECT_EQ(Run({u"import"_s, Sheet(), u"--into"_s, u""_s}), 2);
}
