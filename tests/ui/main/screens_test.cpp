// The windows on screens of many sizes, with small and large text, in both directions. A process
// has one screen and one scale, so this is run once for each of them: see CMakeLists.txt.
#include "model/question_types.h"
#include "support/print.h"
#include "ui/about/help_browser.h"
#include "ui/common/scroll_page.h"
#include "ui/questions/question_preview_box.h"
#include "ui/support/every_window.h"

#include <QHeaderView>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QSplitter>
#include <QTabBar>
#include <QTableView>
#include <QTreeView>
#include <QWindow>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

/// Text and direction while it lives.
class Desktop
{
public:
    Desktop(int points, Qt::LayoutDirection direction) : m_font(QApplication::font())
    {
        QFont font = m_font;
        font.setPointSize(points);
        QApplication::setFont(font);
        QApplication::setLayoutDirection(direction);
    }
    ~Desktop()
    {
        QApplication::setFont(m_font);
        QApplication::setLayoutDirection(Qt::LeftToRight);
    }
    Q_DISABLE_COPY_MOVE(Desktop)

private:
    QFont m_font;
};

std::string Name(const QWidget &widget)
{
    return widget.objectName().toStdString();
}

/// Whether a widget is one of the toolkit's own, within another.
bool IsPart(const QWidget &widget)
{
    return widget.objectName().isEmpty() || widget.objectName().startsWith("qt_"_L1) ||
           qobject_cast<const QScrollBar *>(&widget) ||
           qobject_cast<const QTabBar *>(widget.parentWidget());
}

/// The texts of the handheld's screen end where they end there.
bool IsOnHandheld(const QWidget &widget)
{
    for (const QWidget *above = widget.parentWidget(); above; above = above->parentWidget())
        if (qobject_cast<const QuestionPreviewBox *>(above))
            return true;
    return false;
}

template <typename Widget> QList<Widget *> Shown(const QWidget &window)
{
    QList<Widget *> shown;
    for (auto *widget : window.findChildren<Widget *>())
        if (widget->isVisible() && widget->window() == &window && !IsPart(*widget) &&
            !IsOnHandheld(*widget))
            shown += widget;
    return shown;
}

void ExpectOnScreen(const QWidget &window)
{
    const QRect screen = window.screen()->availableGeometry(), frame = window.frameGeometry();
    EXPECT_GE(frame.top(), screen.top());
    EXPECT_GE(frame.left(), screen.left());
    EXPECT_LE(frame.bottom(), screen.bottom());
    EXPECT_LE(frame.right(), screen.right());
}

/// Within what it lies in; what scrolls has the bars for it.
void ExpectInPlace(const QWidget &window)
{
    for (const auto *widget : Shown<QWidget>(window)) {
        const auto *area =
            qobject_cast<QAbstractScrollArea *>(widget->parentWidget()->parentWidget());
        if (!area || area->viewport() != widget->parentWidget()) {
            // A splitter that is mirrored is a pixel out.
            const int beside = qobject_cast<QSplitter *>(widget->parentWidget()) ? 1 : 0;
            const QRect around = widget->parentWidget()->rect().adjusted(0, 0, beside, 0);
            EXPECT_TRUE(around.contains(widget->geometry()))
                << Name(*widget) << " " << widget->x() << "," << widget->y() << " "
                << widget->width() << "x" << widget->height() << " in " << around.width() << "x"
                << around.height();
            continue;
        }
        EXPECT_TRUE(widget->width() <= area->viewport()->width() ||
                    area->horizontalScrollBar()->isVisible())
            << Name(*widget);
        EXPECT_TRUE(widget->height() <= area->viewport()->height() ||
                    area->verticalScrollBar()->isVisible())
            << Name(*widget);
    }
}

int LongestWord(const QLabel &label)
{
    int longest = 0;
    for (const QString &word : label.text().split(u' '))
        longest = std::max(longest, label.fontMetrics().horizontalAdvance(word));
    return longest;
}

void ExpectWholeTexts(const QWidget &window)
{
    for (const auto *label : Shown<QLabel>(window)) {
        if (label->text().isEmpty())
            continue;
        const int wanted = label->wordWrap() ? LongestWord(*label) : label->sizeHint().width();
        EXPECT_GE(label->width(), wanted) << Name(*label);
        const int high =
            label->wordWrap() ? label->heightForWidth(label->width()) : label->sizeHint().height();
        EXPECT_GE(label->height(), high) << Name(*label);
    }
    for (const auto *button : Shown<QAbstractButton>(window)) {
        EXPECT_GE(button->width(), button->sizeHint().width()) << Name(*button);
        EXPECT_GE(button->height(), button->sizeHint().height()) << Name(*button);
    }
    for (const auto *tree : Shown<QTreeView>(window))
        EXPECT_GE(tree->header()->length(),
                  static_cast<const QTreeView *>(tree)->header()->sectionSizeHint(0))
            << Name(*tree);
    for (const auto *grid : Shown<QTableView>(window)) {
        const QHeaderView *header = grid->horizontalHeader();
        for (int column = 0; column < header->count(); ++column)
            EXPECT_GE(header->sectionSize(column), header->sectionSizeHint(column)) << column;
    }
    for (const auto *bar : window.findChildren<QTabBar *>())
        EXPECT_EQ(bar->elideMode(), Qt::ElideNone);
}

/// The buttons that lead on and out of a window are seen whole, wherever it has been scrolled to.
void ExpectWayOn(const QWidget &window)
{
    static const QStringList ways = {u"cmd1_Back"_s, u"cmd1_Next"_s, u"cmd2_Back"_s, u"cmd2_Next"_s,
                                     u"cmd3_Back"_s, u"cmd3_Next"_s, u"cmd4_back"_s, u"cmd4_next"_s,
                                     u"cmdNav_1"_s,  u"cmdNav_2"_s,  u"cmdNav_3"_s,  u"cmdNav_4"_s,
                                     u"cmdOK"_s,     u"cmdCancel"_s, u"Command1"_s};
    for (const auto *button : Shown<QAbstractButton>(window))
        EXPECT_TRUE(!ways.contains(button->objectName()) ||
                    button->visibleRegion() == QRegion(button->rect()))
            << Name(*button);
}

/// Where its words are seen: in the middle of a picture of the label alone.
int MiddleOfWords(QLabel &label)
{
    const QImage picture = label.grab().toImage();
    const QRgb ground = picture.pixel(0, 0);
    int first = picture.width(), last = 0;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            if (picture.pixel(x, y) != ground) {
                first = std::min(first, x);
                last = std::max(last, x);
            }
    return qRound((first + last) / 2.0 / picture.devicePixelRatio());
}

/// Labels that have more room than they need are written where lines begin.
void ExpectLabelsAtBeginning(const QWidget &window)
{
    for (auto *label : Shown<QLabel>(window)) {
        const bool isCentred = label->alignment() & Qt::AlignHCenter;
        const int spare = label->width() - label->sizeHint().width();
        if (isCentred || label->text().isEmpty() || label->wordWrap() || spare < 4 ||
            label->layoutDirection() != window.layoutDirection())
            continue;
        EXPECT_EQ(MiddleOfWords(*label) > label->width() / 2, window.isRightToLeft())
            << Name(*label);
    }
}

void ExpectMirrored(const QWidget &window)
{
    const auto *back = window.findChild<QAbstractButton *>(u"cmdNav_2"_s);
    const auto *next = window.findChild<QAbstractButton *>(u"cmdNav_3"_s);
    if (!back || !next || back->y() != next->y())
        return;
    EXPECT_EQ(back->x() > next->x(), QApplication::isRightToLeft());
}

/// A step of the wizard arrives at the beginning of its lines, unless its cursor is elsewhere.
void ExpectBeginning(const QWidget &window)
{
    const auto *wizard = qobject_cast<const frmWizard *>(&window);
    const QWidget *focus = window.focusWidget();
    const bool isTyped = focus && focus->testAttribute(Qt::WA_InputMethodEnabled);
    if (!wizard || (isTyped && window.isRightToLeft()))
        return;
    const auto *page = wizard->findChild<ScrollPage *>();
    EXPECT_LT(page->horizontalScrollBar()->value(), window.fontMetrics().averageCharWidth());
}

/// Icons are as high as the text beside them, at least.
void ExpectIconsAsLargeAsText(const QWidget &window)
{
    for (const auto *button : Shown<QAbstractButton>(window)) {
        const int least = button->icon().isNull() ? 0 : QFontInfo(button->font()).pixelSize();
        EXPECT_GE(button->iconSize().height(), least) << Name(*button);
    }
}

/// The link over a sentence covers the very words.
void ExpectLinkOverWords(const QWidget &window)
{
    const auto *label = window.findChild<QLabel *>(u"lblWiz1_2"_s);
    if (!label || !label->isVisible())
        return;
    const auto *link = label->findChild<QLabel *>(u"lblLkWzType"_s);
    const QString before = label->text().first(label->text().indexOf(link->text()));
    EXPECT_NEAR(link->x(), label->fontMetrics().horizontalAdvance(before), 1);
    EXPECT_LE(label->width(), label->sizeHint().width() + 1);
    const int behind = label->parentWidget()->width() - label->geometry().right() - 1;
    EXPECT_EQ(window.isRightToLeft() ? behind : label->x(), 0);
}

void ExpectFocusSeen(const QWidget &window)
{
    for (auto *widget : Shown<QWidget>(window)) {
        if (!(widget->focusPolicy() & Qt::TabFocus) || !widget->isEnabled() || widget->focusProxy())
            continue;
        const auto *button = qobject_cast<const QPushButton *>(widget);
        if (button && button->isDefault()) // has the look of it also while nothing has the focus
            continue;
        if (auto *box = qobject_cast<QPlainTextEdit *>(widget)) // not by its caret alone
            box->setCursorWidth(0);
        widget->setFocus(Qt::TabFocusReason);
        QApplication::processEvents();
        const QImage with = widget->grab().toImage();
        widget->clearFocus();
        QApplication::processEvents();
        EXPECT_TRUE(with != widget->grab().toImage()) << Name(*widget);
    }
}

/// Where the screen has room for all of it, nothing of the wizard scrolls.
TEST(Screens, HoldTheWizardWhole)
{
    const Desktop desktop(9, Qt::LeftToRight);
    if (QGuiApplication::primaryScreen()->size().height() < 600)
        return; // it has to scroll
    Designer designer(DataFile(u"projects/SiteVisit.vmp"_s));
    for (const QuestionType &type : questionTypes) {
        SCOPED_TRACE(type.name.latin1());
        frmWizard wizard(const_cast<ProjectDocument &>(designer.window.document()), nullptr);
        wizard.show();
        auto *types = wizard.findChild<QListWidget *>(u"lstWiz1_1"_s);
        types->setCurrentItem(types->findItems(type.name, Qt::MatchExactly).first());
        wizard.findChild<QPlainTextEdit *>(u"txtWiz3_1"_s)->setPlainText(u"Which?"_s);
        for (int step = 1; step <= (type.items ? 5 : 4); ++step) {
            QApplication::processEvents();
            EXPECT_FALSE(
                wizard.findChild<QScrollArea *>(u"scrollArea"_s)->verticalScrollBar()->isVisible())
                << step;
            wizard.findChild<QAbstractButton *>(u"cmdNav_3"_s)->click();
        }
    }
}

/// On a screen of any size, step 2 has the window that it is in.
TEST(Screens, FillStepTwo)
{
    Designer designer(DataFile(u"projects/SiteVisit.vmp"_s));
    const QSize size = designer.window.size();
    designer.Find<QTabWidget>("SSTab1")->setCurrentIndex(1);
    SettleWindows();
    designer.window.resize(size * 2 / 3);
    SettleWindows();
    designer.window.resize(size);
    SettleWindows();
    const auto *content = designer.Find<QWidget>("content");
    const int room = designer.Find<QScrollArea>("scrollArea")->viewport()->width();
    EXPECT_EQ(content->width(), std::max(content->minimumSizeHint().width(), room));
    EXPECT_EQ(
        designer.Find<QTableView>("DataGrid1")->findChildren<QObject *>(u"questionWidth"_s).size(),
        1);
}

/// A window manager tells late how wide its frames are.
TEST(Screens, HoldTheFrames)
{
    ShowEveryWindow([](const QWidget &window) {
        const bool isFramed = QGuiApplication::platformName() == u"xcb"_s &&
                              !(window.windowFlags() & Qt::FramelessWindowHint);
        EXPECT_TRUE(QTest::qWaitFor([&] {
            return (!isFramed || !window.windowHandle()->frameMargins().isNull()) &&
                   window.screen()->availableGeometry().contains(window.frameGeometry());
        })) << Name(window);
        ExpectOnScreen(window);
    });
}

/// Where the screen has room for it, nothing is to be scrolled sideways, however large the text.
TEST(Screens, GrowWithTheText)
{
    const QSize room = QGuiApplication::primaryScreen()->size();
    const Desktop desktop(24, Qt::LeftToRight);
    if (room.width() < 1900 || room.height() < 1000)
        return; // there is no such room
    ShowEveryWindow([](const QWidget &window) {
        for (const auto *bar : window.findChildren<QScrollBar *>())
            EXPECT_FALSE(bar->isVisible() && bar->orientation() == Qt::Horizontal)
                << Name(*bar->parentWidget()->parentWidget());
    });
}

TEST(Screens, ShowTheFocus)
{
    ShowEveryWindow([](QWidget &window) { ExpectFocusSeen(window); });
}

/// The least height in which any of the pages around it shows a widget.
int RoomFor(const QWidget &widget)
{
    int room = widget.window()->height();
    for (const QWidget *above = &widget; (above = above->parentWidget());)
        if (const auto *page = qobject_cast<const ScrollPage *>(above))
            room = std::min(room, page->viewport()->height());
    return room;
}

/// All of what has the focus is seen, or as much as there is room for; of the list its header and
/// its current row, wherever both have room.
void ExpectFocusInView(const QWidget &window)
{
    constexpr int frames = 4; // pixels
    const QWidget *focus = window.focusWidget();
    ASSERT_TRUE(focus);
    const QRect seen = focus->visibleRegion().boundingRect();
    const int room = RoomFor(*focus);
    EXPECT_GE(seen.height(), std::min(focus->height(), room) - frames) << Name(*focus);
    const auto *grid = qobject_cast<const QTableView *>(focus);
    if (!grid)
        return;
    const QRect row = grid->visualRect(grid->currentIndex()).translated(grid->viewport()->pos());
    EXPECT_GE(seen.bottom(), std::min(row.bottom(), room - frames)) << Name(*focus);
    EXPECT_TRUE(row.bottom() >= room || seen.top() == 0) << Name(*focus);
}

TEST(Screens, ArriveAtStepsWithTheFocusInView)
{
    for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft})
        for (const int points : {9, 13, 18, 24}) {
            const Desktop desktop(points, direction);
            Designer designer(DataFile(u"projects/SiteVisit.vmp"_s));
            SettleWindows();
            for (int visit = 1; visit <= 8; ++visit) {
                SCOPED_TRACE(std::to_string(points) + " points, direction " +
                             std::to_string(direction) + ", step " +
                             std::to_string(designer.Step()) + ", visit " + std::to_string(visit));
                ExpectFocusInView(designer.window);
                QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab, Qt::ControlModifier);
                SettleWindows();
            }
        }
}

/// As far as any window has that much room at all.
TEST(Screens, ShowTheListWithTwoRows)
{
    Designer designer(DataFile(u"projects/SiteVisit.vmp"_s));
    designer.Find<QTabWidget>("SSTab1")->setCurrentIndex(1);
    SettleWindows();
    const auto *grid = designer.Find<QTableView>("DataGrid1");
    const int rows = grid->horizontalHeader()->height() + 2 * grid->rowHeight(0);
    EXPECT_GE(grid->visibleRegion().boundingRect().height(),
              std::min(rows, designer.window.height() / 3));
}

TEST(Screens, HoldEveryWindow)
{
    for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft})
        for (const int points : {8, 9, 13, 18, 24}) {
            SCOPED_TRACE(std::to_string(points) + " points, direction " +
                         std::to_string(direction));
            const Desktop desktop(points, direction);
            ShowEveryWindow([](QWidget &window) {
                ExpectOnScreen(window);
                ExpectInPlace(window);
                ExpectWholeTexts(window);
                ExpectWayOn(window);
                ExpectMirrored(window);
                ExpectLabelsAtBeginning(window);
                ExpectBeginning(window);
                ExpectIconsAsLargeAsText(window);
                ExpectLinkOverWords(window);
            });
        }
}

} // namespace
