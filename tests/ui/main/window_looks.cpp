#include "ui/main/window_looks.h"

#include "ui/common/scroll_page.h"

#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QSplitter>
#include <QTableView>
#include <QTreeView>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

/// Within what it lies in; what scrolls has the bars for it.
void ExpectInPlace(const QWidget &window)
{
    for (const auto *widget : ShownWidgets<QWidget>(window)) {
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
    for (const auto *label : ShownWidgets<QLabel>(window)) {
        if (label->text().isEmpty())
            continue;
        const int wanted = label->wordWrap() ? LongestWord(*label) : label->sizeHint().width();
        EXPECT_GE(label->width(), wanted) << Name(*label);
        const int high =
            label->wordWrap() ? label->heightForWidth(label->width()) : label->sizeHint().height();
        EXPECT_GE(label->height(), high) << Name(*label);
    }
    for (const auto *button : ShownWidgets<QAbstractButton>(window)) {
        EXPECT_GE(button->width(), button->sizeHint().width()) << Name(*button);
        EXPECT_GE(button->height(), button->sizeHint().height()) << Name(*button);
    }
    for (const auto *tree : ShownWidgets<QTreeView>(window))
        EXPECT_GE(tree->header()->length(),
                  static_cast<const QTreeView *>(tree)->header()->sectionSizeHint(0))
            << Name(*tree);
    for (const auto *grid : ShownWidgets<QTableView>(window)) {
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
    for (const auto *button : ShownWidgets<QAbstractButton>(window))
        EXPECT_TRUE(!ways.contains(button->objectName()) ||
                    button->visibleRegion() == QRegion(button->rect()))
            << Name(*button);
}

/// Where its words are seen: in the middle of a picture of the widget alone.
int MiddleOfWords(QWidget &widget)
{
    const QImage picture = widget.grab().toImage();
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
    for (auto *label : ShownWidgets<QLabel>(window)) {
        const bool isCentred = label->alignment() & Qt::AlignHCenter;
        const int spare = label->width() - label->sizeHint().width();
        if (isCentred || label->text().isEmpty() || label->wordWrap() || spare < 4 ||
            label->layoutDirection() != window.layoutDirection())
            continue;
        EXPECT_EQ(MiddleOfWords(*label) > label->width() / 2, window.isRightToLeft())
            << Name(*label);
    }
}

/// As nearly as the blank around a picture lets them be.
void ExpectCaptionsInMiddle(const QWidget &window)
{
    for (auto *button : ShownWidgets<QPushButton>(window))
        if (!button->icon().isNull() && !button->isFlat()) {
            button->setFlat(true); // on an even ground
            EXPECT_NEAR(MiddleOfWords(*button), button->width() / 2.0,
                        button->fontMetrics().averageCharWidth())
                << Name(*button);
            button->setFlat(false);
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
    for (const auto *button : ShownWidgets<QAbstractButton>(window)) {
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

} // namespace

void ExpectOnScreen(const QWidget &window)
{
    const QRect screen = window.screen()->availableGeometry(), frame = window.frameGeometry();
    EXPECT_GE(frame.top(), screen.top());
    EXPECT_GE(frame.left(), screen.left());
    EXPECT_LE(frame.bottom(), screen.bottom());
    EXPECT_LE(frame.right(), screen.right());
}

void ExpectLooksRight(const QWidget &window)
{
    ExpectOnScreen(window);
    ExpectInPlace(window);
    ExpectWholeTexts(window);
    ExpectWayOn(window);
    ExpectMirrored(window);
    ExpectLabelsAtBeginning(window);
    ExpectCaptionsInMiddle(window);
    ExpectBeginning(window);
    ExpectIconsAsLargeAsText(window);
    ExpectLinkOverWords(window);
}

} // namespace vellumo
