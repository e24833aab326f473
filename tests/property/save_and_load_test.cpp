// Whatever project is in memory: its file is read as the same project, or is not written.

#include "model/project_reader.h"
#include "model/project_writer.h"
#include "model/snapshot.h"
#include "property/random_projects.h"
#include "support/print.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

constexpr int saveRounds = 500;

/// What a file keeps of a value: not the blanks at its ends, and of a line end that it is one.
QString Kept(const QString &text)
{
    return Trimmed(text).replace(u"\r\n"_s, u"\n"_s).replace(u'\r', u'\n');
}

Project Kept(const Project &project)
{
    Project kept = {.FormName = Kept(project.FormName),
                    .FormVersion = Kept(project.FormVersion),
                    .Description = Kept(project.Description),
                    .FormPath = Kept(project.FormPath)};
    if (!project.TitleList.first().isEmpty()) {
        kept.TitleList.clear();
        for (const QString &title : project.TitleList)
            kept.TitleList += Kept(title);
    }
    for (const QuestionRow &row : project.source.Questions().Rows())
        kept.source.Questions().Append({row.Order, Kept(row.Title), Kept(row.Question),
                                        Kept(row.Type), Kept(row.ColumnName), row.Id});
    for (const ItemRow &row : project.source.Items().Rows())
        kept.source.Items().Append({row.Id, Kept(row.Item)});
    kept.source.SetMaxId(project.source.MaxId());
    return kept;
}

bool CanBeWritten(const QString &text)
{
    return !text.contains(u'Ω') && !text.contains(u'ж') && !text.contains(QChar(0x01)) &&
           !text.contains(QChar(0x0b)) && !text.contains(QChar(0xfffe));
}

} // namespace

TEST(SaveAndLoad, GivesTheSameProject)
{
    Random random;
    for (int round = 0; round < saveRounds; ++round) {
        SCOPED_TRACE(round);
        const Project project = RandomProject(random, Letters::Awkward);
        if (LinesOf(project).join(u'\n').contains("]]>"_L1))
            continue;
        const auto written = WriteProject(project);
        ASSERT_TRUE(written) << written.error().text.toStdString();
        const auto read = ReadProject(*written);
        ASSERT_TRUE(read) << read.error().text.toStdString();
        ASSERT_EQ(LinesOf(*read), LinesOf(Kept(project)));
    }
}

TEST(SaveAndLoad, RefusesJustWhatNoFileCanHold)
{
    Random random;
    int refused = 0;
    for (int round = 0; round < saveRounds; ++round) {
        SCOPED_TRACE(round);
        Project project = RandomProject(random, Letters::Plain);
        const bool spoils = random.OnceIn(2);
        project.Description = RandomText(random, 60, spoils ? Letters::Anything : Letters::Awkward);
        if (project.Description.contains("]]>"_L1))
            continue;
        const auto written = WriteProject(project);
        ASSERT_EQ(bool(written), CanBeWritten(project.Description))
            << project.Description.toStdString();
        refused += written ? 0 : 1;
    }
    EXPECT_GT(refused, 0);
    EXPECT_LT(refused, saveRounds);
}

TEST(RescueCopy, HoldsEverything)
{
    Random random;
    for (int round = 0; round < saveRounds; ++round) {
        SCOPED_TRACE(round);
        const Snapshot snapshot = {.project = RandomProject(random, Letters::Anything),
                                   .path = RandomText(random, 40, Letters::Anything),
                                   .taken = QDateTime::fromMSecsSinceEpoch(random.Below(1 << 30))};
        const auto read = ReadSnapshot(WriteSnapshot(snapshot));
        ASSERT_TRUE(read) << read.error().text.toStdString();
        ASSERT_EQ(LinesOf(read->project), LinesOf(snapshot.project));
        ASSERT_EQ(read->path, snapshot.path);
        ASSERT_EQ(read->taken, snapshot.taken);
    }
}
