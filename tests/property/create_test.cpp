// Random projects on their way to a database and back.

#include "property/random_projects.h"
#include "readback/database_check.h"
#include "support/in_process.h"
#include "support/print.h"
#include "validation/delivery_warnings.h"
#include "validation/project_review.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

QString FindingsIn(const QByteArray &bytes, const Project &project)
{
    const auto database = ReadDatabase(bytes);
    if (!database)
        return database.error().text;
    QStringList texts;
    for (const Finding &finding : CheckDatabase(*database, project))
        texts += finding.text;
    return texts.join(u'\n');
}

} // namespace

TEST(Create, MakesADatabaseOfEverySoundProject)
{
    Random random;
    for (int round = 0; round < 300; ++round) {
        SCOPED_TRACE(round);
        Project project = RandomSoundProject(random);
        ASSERT_TRUE(ReviewProject(project).Passed()) << project.FormName.toStdString();
        for (const DeliveryWarning &warning : FindDeliveryWarnings(project))
            FAIL() << Describe(warning).toStdString();
        QString refusal;
        const auto bytes = MakeInProcess(project, &refusal);
        ASSERT_TRUE(bytes) << refusal.toStdString();
        ASSERT_EQ(FindingsIn(*bytes, project), QString());
    }
}

TEST(Create, MakesWhatAgreesOrNothing)
{
    Random random;
    int made = 0, refused = 0;
    for (int round = 0; round < 3000; ++round) {
        SCOPED_TRACE(round);
        Project project = RandomProject(random, Letters::Awkward);
        project.FormName = u"Form"_s;
        project.FormPath = u"C:\\Data"_s;
        QString refusal;
        const auto bytes = MakeInProcess(project, &refusal);
        ASSERT_NE(bytes.has_value(), !refusal.isEmpty()) << "a refusal has its reason";
        (bytes ? made : refused) += 1;
        const QString findings = bytes ? FindingsIn(*bytes, project) : QString();
        ASSERT_EQ(findings, QString()) << LinesOf(project).join(u'\n').toStdString();
    }
    EXPECT_GT(made, 0);
    EXPECT_GT(refused, 0);
}
