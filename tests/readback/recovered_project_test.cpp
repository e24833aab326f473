#include "readback/recovered_project.h"

#include "model/project_reader.h"
#include "model/project_writer.h"
#include "readback/findings.h"

#include <random>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

/// The project of a database, as its file is read.
Project Recovered(const QByteArray &bytes)
{
    const Result<QByteArray> file = WriteProject(RecoverProject(Read(bytes)));
    EXPECT_TRUE(file) << file.error().text.toStdString();
    const Result<Project> project = file ? ReadProject(*file) : Result<Project>(Error{});
    EXPECT_TRUE(project) << project.error().text.toStdString();
    return project ? *project : Project();
}

/// What cannot be recovered of a database, as codes and places.
QStringList LossesOf(const QByteArray &bytes)
{
    return CodesOf(LinesOf(bytes, Recovered(bytes)));
}

void ExpectSameQuestions(const Project &found, const Project &expected)
{
    const auto &questions = expected.source.Questions().Rows();
    ASSERT_EQ(found.source.QuestionCount(), questions.size());
    for (qsizetype i = 0; i < questions.size(); ++i) {
        const QuestionRow &row = found.source.Questions().Rows()[i];
        EXPECT_EQ(row, questions[i]) << row.Title.toStdString();
        EXPECT_EQ(found.source.ItemsOf(row.Id), expected.source.ItemsOf(questions[i].Id));
    }
}

} // namespace

TEST(RecoveredProject, IsTheOneThatTheDatabaseWasMadeFrom)
{
    Project expected = TenTypesProject();
    const Project found = Recovered(TenTypes());
    EXPECT_EQ(found.FormName, expected.FormName);
    EXPECT_EQ(found.FormVersion, expected.FormVersion);
    EXPECT_EQ(found.Description, expected.Description);
    EXPECT_EQ(found.FormPath + u'\\', expected.FormPath);
    EXPECT_EQ(found.TitleList, Project().TitleList);
    EXPECT_EQ(found.source.MaxId(), 11);
    ExpectSameQuestions(found, expected);
}

TEST(RecoveredProject, LacksNothingOfAnyGoldenDatabaseOfOurKind)
{
    for (const QString &name : GoldenNames()) {
        if (name != "plainattr"_L1) {
            EXPECT_EQ(LossesOf(Golden(name)), QStringList()) << name.toStdString();
        }
    }
}

TEST(RecoveredProject, LacksWhatNoProjectHas)
{
    const Damage rows[] = {
        {"another kind", TenTypes().replace(60, 4, "appl"), {u"database-type [database type]"_s}},
        {"a name of its own", TenTypes().replace(0, 8, "tentypeS"), {u"form-name [form name]"_s}},
        {"a blank behind the name",
         TenTypes().replace(0, 9, "tentypes "),
         {u"database-name [database name]"_s}},
        {"a folder without end",
         Replaced("sdir", 1005, "Ten\\", "Tenn"),
         {u"data-folder [data folder]"_s}},
        {"a line feed in the folder",
         Replaced("sdir", 1005, "Ten", "T\nn"),
         {u"data-folder [data folder]"_s}},
        {"an unknown type",
         Replaced("ques", 1002, "\x01", "\x21"),
         {u"value-code [value kind 9]"_s, u"type-code [type 9]"_s, u"unknown-type [type 9]"_s,
          u"form-objects [form 9]"_s}},
        {"another value kind",
         Replaced("fldt", 1001, "\x01", "\x02"),
         {u"value-code [value kind 9]"_s}},
        {"a button moved", Replaced("tFRM", 3, "Prev", "Back"), {u"form-object [form 3]"_s}},
        {"without a form", Without("tFRM", 10), {u"resource-missing [form 10]"_s}},
        {"without a folder", Without("sdir", 1005), {u"resource-missing [data folder]"_s}},
        {"without types", Without("ques", 1002), {}},
    };
    for (const Damage &row : rows) {
        SCOPED_TRACE(row.what);
        const QStringList losses = LossesOf(row.bytes);
        if (row.lines.isEmpty())
            EXPECT_GT(losses.size(), 10);
        else
            EXPECT_EQ(losses, row.lines);
        EXPECT_EQ(Recovered(row.bytes).source.QuestionCount(), 10);
    }
}

TEST(RecoveredProject, AListWithoutItemsHasAnEmptyOne)
{
    const Project found = Recovered(Without("tFRM", 1));
    EXPECT_EQ(found.source.Questions().Rows()[0].Type, u"Checkboxes"_s);
    EXPECT_EQ(found.source.ItemsOf(1), QStringList{u""_s}) << "as no script is made without any";
}

TEST(RecoveredProject, CanBeWrittenWhateverTheDatabaseIs)
{
    std::mt19937 random(41);
    const QByteArray bytes = TenTypes();
    int read = 0;
    for (int i = 0; i < 3000; ++i) {
        QByteArray damaged = bytes;
        for (int change = 0; change < 4; ++change)
            damaged[static_cast<qsizetype>(random() % static_cast<size_t>(bytes.size()))] =
                static_cast<char>(random());
        if (const auto database = ReadDatabase(damaged)) {
            ++read;
            Recovered(damaged);
        }
    }
    EXPECT_GT(read, 1000);
}
