// What docs/handheld-screen.md and the help tell of the screen is what the program measures by.

#include "handheld/screen_geometry.h"
#include "support/files.h"
#include "support/print.h"

#include <QRegularExpression>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

QString Page(const QString &path)
{
    return QString::fromUtf8(BytesOf(DataFile(u"../../"_s + path))).simplified();
}

} // namespace

TEST(Pages, TellTheLinesOfEveryType)
{
    const QString help = Page(u"help/fitting.html"_s);
    const QString notes = QString::fromUtf8(BytesOf(DataFile(u"../../docs/handheld-screen.md"_s)));
    for (const QuestionType &type : questionTypes) {
        const QString name = type.name, lines = QString::number(FreeLines(&type));
        const QRegularExpression inNotes(u"\n\\| %1 \\| [^|]+ \\| %2 \\|\n"_s.arg(name, lines));
        EXPECT_TRUE(notes.contains(inNotes)) << name.toStdString();
        const QRegularExpression inHelp(
            u"<tr><td>[^<]*\\b%1\\b[^<]*</td><td align=\"right\">%2</td></tr>"_s.arg(name, lines));
        EXPECT_TRUE(help.contains(inHelp)) << name.toStdString();
    }
}

TEST(Pages, TellThePixelsOfEveryText)
{
    const struct {
        QString inNotes, inHelp;
        int pixels;
    } rows[] = {
        {u"a line of a question | w1"_s, u"A line of a question"_s, screen::questionWidth},
        {u"title | w1"_s, u"Title"_s, screen::titleWidth},
        {u"item of a pulldown list | w0"_s, u"Item of a pulldown list"_s, screen::listItemWidth},
        {u"item of checkboxes | w0"_s, u"Item of checkboxes"_s, screen::captionWidth},
    };
    for (const auto &row : rows) {
        EXPECT_TRUE(Page(u"docs/handheld-screen.md"_s)
                        .contains(u"| %1 at most %2 |"_s.arg(row.inNotes).arg(row.pixels)))
            << row.inNotes.toStdString();
        EXPECT_TRUE(
            Page(u"help/fitting.html"_s)
                .contains(
                    u"<td>%1</td><td align=\"right\">%2</td>"_s.arg(row.inHelp).arg(row.pixels)))
            << row.inHelp.toStdString();
    }
    const QString notes = Page(u"docs/handheld-screen.md"_s);
    EXPECT_TRUE(notes.contains(u"| the same | w1 at most %1 |"_s.arg(screen::questionToEnd)));
    EXPECT_TRUE(notes.contains(u"its lines hold %1 pixels"_s.arg(screen::questionWrapWidth)));
    EXPECT_TRUE(notes.contains(u"it is cut after %1 pixels"_s.arg(screen::captionDrawn)));
}
