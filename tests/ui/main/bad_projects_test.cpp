#include "support/print.h"
#include "ui/support/designer.h"
#include "ui/support/prompt_script.h"

#include <QLabel>
#include <QTableView>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

const QString wrongType = u"This type is wrong!"_s;
const QString tooMany = u"The maximum number of questions is 128."_s;

/// A project that no designer made: every rule is broken, and some rows are nonsense.
QByteArray BrokenProject()
{
    const QString long10000(10'000, u'x');
    Project project{.FormName = u"My*Survey "_s + long10000,
                    .FormVersion = u"1.0 \"beta\" "_s + long10000,
                    .Description = u"two\nlines "_s + long10000,
                    .FormPath = u"\\\\server\\share"_s + long10000};
    const QString types[] = {u"Text"_s, u""_s, u"text"_s, u"<b>Checkboxes</b>"_s, u"Checkboxes"_s};
    for (int n = 0; n < 500; ++n)
        project.source.Questions().Append({.Order = (n * 7) % 500 - 3,
                                           .Title = long10000,
                                           .Question = u"line\nbreak \"quoted\""_s,
                                           .Type = types[n % 5],
                                           .ColumnName = u"same"_s,
                                           .Id = n % 40});
    for (int n = 0; n < 3'000; ++n)
        project.source.Items().Append({.Id = n * 11 - 50, .Item = n % 3 == 0 ? u""_s : u"a\nb"_s});
    project.source.SetMaxId(-5);
    QTemporaryDir folder;
    const QString path = folder.filePath(u"broken.vmp"_s);
    EXPECT_TRUE(SaveProject(project, path));
    return BytesOf(path);
}

TEST(BadProject, OpensShowsReviewsAndIsSavedUnchanged)
{
    QTemporaryDir folder;
    const QString path = folder.filePath(u"broken.vmp"_s);
    const QByteArray bytes = BrokenProject();
    ASSERT_TRUE(WriteBytes(path, bytes));

    Designer designer(path);
    const PromptScript prompts({u"OK"_s});
    EXPECT_EQ(designer.project().source.QuestionCount(), 500);
    QImage before;
    for (const int step : {1, 2, 3, 4}) {
        designer.ClickTab(step);
        EXPECT_TRUE(before != designer.window.grab().toImage()) << "step " << step;
        before = designer.window.grab().toImage();
    }
    designer.Click("cmdReviewForm");
    EXPECT_EQ(prompts.texts(), QStringList{u"There are errors in your Vellsheet. "
                                           "Please check the Error List for details."_s});
    EXPECT_EQ(designer.Find<QListWidget>("lstError")->count(), 5);
    EXPECT_FALSE(designer.ProjectChanged());

    designer.Choose("mnuFileSave");
    EXPECT_EQ(BytesOf(path), bytes);
}

TEST(BadProject, IsWalkedThroughAndChanged)
{
    QTemporaryDir folder;
    const QString path = folder.filePath(u"broken.vmp"_s);
    ASSERT_TRUE(WriteBytes(path, BrokenProject()));
    const Designer designer(path);
    {
        const PromptScript nothingIsTold;
        designer.ClickTab(2);
    }
    auto *grid = designer.Find<QTableView>("DataGrid1");
    // Three of the five types, which take turns, are told to be wrong whenever they are previewed.
    const auto told = [](int question, int times) {
        const bool isType = question % 5 == 0 || question % 5 == 4;
        return isType ? QStringList() : QStringList(times, wrongType);
    };
    for (int row = 0; row < 12; ++row) {
        SCOPED_TRACE(row);
        grid->setCurrentIndex(grid->model()->index(row * 40, 0));
        {
            const QStringList boxes = told(row, 2) + QStringList{tooMany};
            const PromptScript prompts(QStringList(boxes.size(), u"OK"_s));
            designer.Click("cmdUp");
            designer.Click("cmdDown");
            designer.Click("cmdDuplic");
            EXPECT_EQ(prompts.texts(), boxes);
        }
        const QStringList ofTheNext = told(row + 1, 1);
        const PromptScript prompts(QStringList{u"Yes"_s} + QStringList(ofTheNext.size(), u"OK"_s));
        designer.Click("cmdDel");
        EXPECT_EQ(prompts.texts(),
                  QStringList{u"Are you sure you want to delete this question?"_s} + ofTheNext);
    }
    EXPECT_EQ(designer.project().source.QuestionCount(), 488);
}

TEST(BadProject, TitlesAndTypesAreShownAsTheyStand)
{
    QTemporaryDir folder;
    const QString path = folder.filePath(u"markup.vmp"_s);
    Project project{.FormName = u"<b>x"_s};
    project.source.Questions().Append({.Order = 1, .Title = u"<b>x"_s, .Type = u"Text"_s});
    ASSERT_TRUE(SaveProject(project, path));
    const Designer designer(path);
    designer.ClickTab(2);
    EXPECT_EQ(designer.Find<QTableView>("DataGrid1")->model()->index(0, 1).data(), u"<b>x"_s);
    const auto *title = designer.Find<QLabel>("lblTitle");
    EXPECT_EQ(title->text(), u"<b>x"_s);
    EXPECT_EQ(title->textFormat(), Qt::PlainText);
}

} // namespace
