// Random databases on their way to a project and back.

#include "model/project_reader.h"
#include "model/project_writer.h"
#include "property/random_projects.h"
#include "readback/database_check.h"
#include "readback/delivered_texts.h"
#include "readback/palm_database.h"
#include "readback/recovered_project.h"
#include "readback/recovered_text.h"
#include "support/in_process.h"
#include "support/print.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

/// A project as its file is read.
Project Reread(const Project &project)
{
    const Result<QByteArray> file = WriteProject(project);
    EXPECT_TRUE(file) << file.error().text.toStdString();
    const Result<Project> read = file ? ReadProject(*file) : Result<Project>(Error{});
    EXPECT_TRUE(read) << read.error().text.toStdString();
    return read ? *read : Project();
}

void ExpectTheWayBack(const QByteArray &bytes)
{
    const auto database = ReadDatabase(bytes);
    ASSERT_TRUE(database) << database.error().text.toStdString();
    const Project recovered = Reread(RecoverProject(*database));
    QString refusal;
    const auto again = MakeInProcess(recovered, &refusal);
    ASSERT_TRUE(again) << refusal.toStdString();
    ASSERT_TRUE(*again == bytes) << LinesOf(recovered).join(u'\n').toStdString();
}

/// Bytes that a text can arrive as, often those that are written otherwise.
QByteArray RandomBytes(Random &random)
{
    const QByteArray special = "\"\\,] >]]>017\n\r\t\x01\x1F";
    QByteArray bytes;
    for (int length = random.Below(12); bytes.size() < length;)
        bytes +=
            random.OnceIn(3) ? static_cast<char>(random.Between(1, 255)) : random.OneOf(special);
    return bytes;
}

} // namespace

TEST(Recover, GivesTheDatabaseOfEverySoundProjectAgain)
{
    Random random;
    for (int round = 0; round < 200; ++round) {
        SCOPED_TRACE(round);
        const auto bytes = MakeInProcess(RandomSoundProject(random));
        ASSERT_TRUE(bytes);
        ASSERT_NO_FATAL_FAILURE(ExpectTheWayBack(*bytes));
    }
}

TEST(Recover, GivesTheDatabaseOfAnyProjectAgain)
{
    Random random;
    int made = 0;
    for (int round = 0; round < 3000; ++round) {
        SCOPED_TRACE(round);
        Project project = RandomProject(random, Letters::Awkward);
        project.FormName = u"Form"_s;
        project.FormPath = u"C:\\Data"_s;
        const auto bytes = MakeInProcess(project);
        // A text that takes its closing quotation mark along can hide what stands behind it, even a
        // type that is none: the database is not that of the project then.
        if (bytes && CheckDatabase(*ReadDatabase(*bytes), project).isEmpty()) {
            ++made;
            ASSERT_NO_FATAL_FAILURE(ExpectTheWayBack(*bytes));
        }
    }
    EXPECT_GT(made, 0);
}

TEST(Recover, FindsATextThatArrivesAsAnyBytes)
{
    Random random;
    for (int round = 0; round < 3000; ++round) {
        SCOPED_TRACE(round);
        const QByteArray title = RandomBytes(random), text = RandomBytes(random),
                         version = RandomBytes(random), item = RandomBytes(random);
        Project project = {.FormVersion = RecoverVersion(version)};
        project.source.Questions().Append({.Title = RecoverWritten(title),
                                           .Question = RecoverWording(text),
                                           .Type = u"Checkboxes"_s,
                                           .ColumnName = RecoverWritten(text)});
        const bool several = random.OnceIn(2);
        for (int i = 0; i <= several; ++i)
            project.source.Items().Append({0, RecoverItem(item, several)});
        EXPECT_FALSE(project.FormVersion.contains(u' '));
        QList<Finding> findings;
        const DeliveredTexts arrived = DeliverTexts(Reread(project), deliveredTypes, findings);
        ASSERT_EQ(arrived.version, version);
        ASSERT_EQ(arrived.questions[0].title, title);
        ASSERT_EQ(arrived.questions[0].text, text);
        ASSERT_EQ(arrived.questions[0].columnName, text);
        ASSERT_EQ(arrived.questions[0].items, QList<QByteArray>(several ? 2 : 1, item));
    }
}
