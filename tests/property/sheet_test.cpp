// Whatever project was read from a file: as a sheet it comes back, or is told why it does not.

#include "exchange/sheet_import.h"
#include "exchange/sheet_writer.h"
#include "model/project_reader.h"
#include "model/project_writer.h"
#include "model/question_types.h"
#include "property/random_projects.h"
#include "support/print.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <optional>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

constexpr int sheetRounds = 500;

/// What a project is after it was saved and opened; nothing where that cannot be.
std::optional<Project> Opened(const Project &project)
{
    const Result<QByteArray> written = WriteProject(project);
    if (!written)
        return {};
    const Result<Project> read = ReadProject(*written);
    return read ? std::optional(*read) : std::nullopt;
}

SheetImport ThereAndBack(const Project &project)
{
    const Result<Sheet> sheet = ReadSheet(WriteSheet(project));
    EXPECT_TRUE(sheet) << sheet.error().text.toStdString();
    return sheet ? ImportSheet(*sheet) : SheetImport();
}

/// A text as the wizard could take it, of awkward letters.
QString AwkwardText(Random &random, int longest)
{
    return Trimmed(RandomText(random, longest, Letters::Awkward).remove(u'"'));
}

QString AwkwardLine(Random &random, int longest)
{
    return Trimmed(AwkwardText(random, longest).remove(u'\r').remove(u'\n'));
}

QStringList AwkwardItems(Random &random)
{
    QStringList items;
    for (int i = random.Between(1, 6); i > 0; --i) {
        const QString item = AwkwardText(random, 32).replace(u'\r', u'.');
        if (!item.isEmpty() && !items.contains(item))
            items += item;
    }
    return items.isEmpty() ? QStringList{u"x"_s} : items;
}

/// An Id that is taken by a question of the same type, or any number.
int OddId(Random &random, const clsDataSource &source, const QString &type)
{
    for (const QuestionRow &row : source.Questions().Rows())
        if (row.Type == type && random.OnceIn(4))
            return row.Id;
    return random.Between(-50, 1000) * (random.OnceIn(5) ? 2'000'000 : 1);
}

void Shuffle(Random &random, QList<ItemRow> &rows)
{
    for (qsizetype i = rows.size() - 1; i > 0; --i)
        rows.swapItemsAt(i, random.Below(i + 1));
}

/// A project that keeps the rules of the wizard, and besides is as odd as can be.
Project OddProject(Random &random)
{
    Project project = RandomProject(random, Letters::Awkward);
    clsDataSource &source = project.source;
    source.ClearQuestions();
    for (int order = random.Between(0, 6); order > 0; --order) {
        const QString type = RandomType(random, Letters::Plain);
        const int id = OddId(random, source, type);
        const QString text = AwkwardLine(random, 250) + u'?';
        source.Questions().Append({random.OnceIn(3) ? random.Between(-9, 9) : order,
                                   AwkwardLine(random, 20), text, type,
                                   AwkwardLine(random, 200) + u'_' + QString::number(order), id});
        if (HasItems(type))
            source.ReplaceItems(id, AwkwardItems(random));
    }
    QList<ItemRow> items = source.Items().Rows();
    if (random.OnceIn(2))
        Shuffle(random, items);
    source.Items().SetRows(items);
    return project;
}

} // namespace

TEST(Sheet, OfAProjectThatKeepsTheRulesGivesTheSameFile)
{
    Random random;
    int withItemOrder = 0;
    for (int round = 0; round < sheetRounds; ++round) {
        SCOPED_TRACE(round);
        const std::optional<Project> project = Opened(OddProject(random));
        if (!project) // "]]>"
            continue;
        const SheetImport import = ThereAndBack(*project);
        for (const Refusal &refusal : import.refusals)
            ADD_FAILURE() << refusal.row << ' ' << refusal.column.toStdString() << ": "
                          << refusal.reason.toStdString();
        ASSERT_EQ(*WriteProject(import.project), *WriteProject(*project))
            << WriteSheet(*project).toStdString();
        withItemOrder += WriteSheet(*project).contains("\nItem order,") ? 1 : 0;
    }
    EXPECT_GT(withItemOrder, 0);
    EXPECT_LT(withItemOrder, sheetRounds);
}

TEST(Sheet, OfASoundProjectGivesTheSameFile)
{
    Random random;
    int refused = 0;
    for (int round = 0; round < sheetRounds / 5; ++round) {
        SCOPED_TRACE(round);
        const std::optional<Project> project = Opened(RandomSoundProject(random));
        ASSERT_TRUE(project);
        const SheetImport import = ThereAndBack(*project);
        const auto isRepeated = [](const Refusal &refusal) {
            return refusal.reason.contains("already exists"_L1); // random items may be the same
        };
        ASSERT_TRUE(std::ranges::all_of(import.refusals, isRepeated));
        refused += import.refusals.isEmpty() ? 0 : 1;
        if (import.refusals.isEmpty()) {
            ASSERT_EQ(*WriteProject(import.project), *WriteProject(*project));
        }
    }
    EXPECT_LT(refused, sheetRounds / 5);
}

TEST(Sheet, OfAnyProjectGivesTheSameFileOrRefusals)
{
    Random random;
    for (int round = 0; round < sheetRounds; ++round) {
        SCOPED_TRACE(round);
        const std::optional<Project> project = Opened(RandomProject(random, Letters::Awkward));
        if (!project)
            continue;
        const SheetImport import = ThereAndBack(*project);
        if (import.refusals.isEmpty()) {
            ASSERT_EQ(*WriteProject(import.project), *WriteProject(*project))
                << WriteSheet(*project).toStdString();
        } else {
            ASSERT_EQ(import.added + import.leftOut, project->source.QuestionCount());
        }
    }
}
