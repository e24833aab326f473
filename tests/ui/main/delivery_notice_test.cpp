#include "support/print.h"
#include "ui/support/designer.h"
#include "ui/support/prompt_script.h"

#include <QLabel>
#include <QScrollBar>
#include <QTableView>
#include <QTextDocument>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

/// The designer on step 2, with its first question clicked.
class OpenedQuestions : public Designer
{
public:
    explicit OpenedQuestions(const QList<QuestionRow> &rows) : Designer(ProjectFile(m_files, rows))
    {
        ClickTab(2);
        ClickRow(0);
    }

    void ClickRow(int row) const
    {
        auto *grid = Find<QTableView>("DataGrid1");
        const QPoint place = grid->visualRect(grid->model()->index(row, 1)).center();
        QTest::mouseClick(grid->viewport(), Qt::LeftButton, {}, place);
    }
    const QLabel &Notice() const { return *Find<QLabel>("lblDelivery"); }

private:
    static QString ProjectFile(const QTemporaryDir &folder, const QList<QuestionRow> &rows)
    {
        Project project{.FormName = u"Survey"_s, .FormPath = u"C:\\Data"_s};
        for (const QuestionRow &row : rows)
            project.source.Questions().Append(row);
        QString path = folder.filePath(u"survey.vmp"_s);
        EXPECT_TRUE(SaveProject(project, path));
        return path;
    }

    inline static QTemporaryDir m_files;
};

TEST(DeliveryNotice, IsEmptyWhereAllIsWell)
{
    const OpenedQuestions questions({{1, u"Age"_s, u"How old?"_s, u"Numeric"_s, u"AGE"_s, 1},
                                     {2, u"T\"wo"_s, u"Why?"_s, u"Text"_s, u"WHY"_s, 2}});
    EXPECT_EQ(questions.Notice().text(), QString());
    EXPECT_EQ(questions.Notice().toolTip(), QString());
    EXPECT_EQ(questions.Notice().accessibleDescription(), QString());
}

TEST(DeliveryNotice, TellsTheFirstInWordsTheNumberOfOthersAndAllBesides)
{
    const OpenedQuestions questions(
        {{1, u"<b>\"A\""_s, u"How old?"_s, u"Numeric"_s, u"C\\x"_s, 1}});
    const QString quote = u"Title: the script does not escape a double quote here, "
                          "so it will not arrive as typed"_s;
    const QString backslash = u"Column name: a backslash starts an escape in the script, "
                              "so it will not arrive as typed"_s;
    EXPECT_EQ(questions.Notice().text(), quote + u" (and 1 more)"_s);
    EXPECT_EQ(questions.Notice().accessibleDescription(), quote + u'\n' + backslash);
    EXPECT_EQ(questions.Notice().toolTip(), Qt::convertFromPlainText(quote + u'\n' + backslash));
}

TEST(DeliveryNotice, TellsWhatDoesNotFit)
{
    const OpenedQuestions questions({{1, u"Age"_s, QString(40, u'W'), u"Notes"_s, u"AGE"_s, 1}});
    EXPECT_TRUE(questions.Notice().text().contains(u"pixels too wide"_s))
        << questions.Notice().text().toStdString();
    EXPECT_TRUE(questions.Notice().text().startsWith(u"Question text: "_s));
}

TEST(DeliveryNotice, TellsWhichItemItIs)
{
    const QTemporaryDir folder;
    Project project{.FormName = u"Survey"_s, .FormPath = u"C:\\Data"_s};
    for (int id : {1, 2})
        project.source.Questions().Append(
            {id, u"List"_s, u"Which?"_s, u"Pulldown List"_s, u"Q%1"_s.arg(id), id});
    project.source.AppendItems(1, {u"one"_s, u"two, and more than fits into a few words"_s});
    project.source.AppendItems(2, {u"a,b"_s});
    const QString path = folder.filePath(u"survey.vmp"_s);
    ASSERT_TRUE(SaveProject(project, path));
    const Designer designer(path);
    designer.ClickTab(2);
    EXPECT_TRUE(designer.Find<QLabel>("lblDelivery")
                    ->text()
                    .startsWith(u"Item \"two, and more than fi...\": a comma ends an item"_s))
        << designer.Find<QLabel>("lblDelivery")->text().toStdString();
}

TEST(DeliveryNotice, FollowsThePreview)
{
    OpenedQuestions questions({{1, u"A\"ge"_s, u"How old?"_s, u"Numeric"_s, u"AGE"_s, 1},
                               {2, u"Two"_s, u"Why?"_s, u"Text"_s, u"WHY"_s, 2}});
    EXPECT_TRUE(questions.Notice().text().startsWith(u"Title: "_s));
    questions.ClickRow(1);
    EXPECT_EQ(questions.Notice().text(), QString());
    questions.ClickRow(0);
    EXPECT_TRUE(questions.Notice().text().startsWith(u"Title: "_s));
    questions.Choose("mnuFileNew");
    questions.ClickTab(2);
    EXPECT_EQ(questions.Notice().text(), QString());
}

TEST(Preview, GrowsWithTheWindowAndKeepsTheProportionsOfTheScreen)
{
    OpenedQuestions questions({{1, u"Age"_s, u"How old?"_s, u"Checkboxes"_s, u"AGE"_s, 1}});
    const auto *screen = questions.Find<QWidget>("picPalm");
    EXPECT_EQ(screen->size(), QSize(160, 160));
    questions.window.resize(1340, 1000);
    QApplication::processEvents();
    EXPECT_EQ(screen->size(), QSize(320, 320));
    EXPECT_EQ(questions.Find<QWidget>("lblQuestion")->pos(), QPoint(20, 68));
    EXPECT_EQ(questions.Find<QWidget>("lstCheckBox")->width(), 306);
    questions.window.resize(800, 600);
    QApplication::processEvents();
    EXPECT_EQ(screen->size(), QSize(160, 160));
    for (const QScrollBar *bar :
         questions.Find<QWidget>("scrollArea")->findChildren<QScrollBar *>())
        EXPECT_FALSE(bar->isVisible()) << "what was larger before leaves none";
}

} // namespace
