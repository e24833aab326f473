#include "ui/common/prompt_box.h"

#include "ui/common/button_line.h"
#include "ui/common/desktop_manners.h"
#include "ui/common/focus_ring.h"
#include "ui/common/help_key.h"
#include "ui/common/screen_centre.h"
#include "ui/common/scroll_page.h"

#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QScrollBar>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

QList<QLabel *> TextsOf(const QWidget &content)
{
    return content.findChildren<QLabel *>(Qt::FindDirectChildrenOnly);
}

} // namespace

PromptBox::PromptBox(Icon icon, const QString &title, const QString &text, const QString &below,
                     StandardButtons buttons, QWidget *parent)
    : QMessageBox(icon, title, text, buttons, parent), m_page(new ScrollPage(this))
{
    setTextFormat(Qt::PlainText);
    setInformativeText(below);
    PutTextIntoPage();
    RingWhenFocused(m_page);
    FollowDesktop(*this);
    KeepOnScreen(*this);
}

/// In the place that the toolkit gives to its labels, which it goes on to find by their names.
void PromptBox::PutTextIntoPage()
{
    auto *grid = static_cast<QGridLayout *>(layout());
    auto *content = new ScrollContent;
    auto *lines = new QVBoxLayout(content);
    lines->setContentsMargins({});
    int row = 0, column = 0, rows = 1, columns = 1;
    for (const auto name : {"qt_msgbox_label"_L1, "qt_msgbox_informativelabel"_L1})
        if (auto *label = findChild<QLabel *>(name)) {
            if (lines->isEmpty())
                grid->getItemPosition(grid->indexOf(label), &row, &column, &rows, &columns);
            lines->addWidget(label);
            label->setTextFormat(Qt::PlainText); // the box's own does not hold for all of it
        }
    lines->addStretch();
    m_page->setWidget(content);
    grid->addWidget(m_page, row, column, 2, columns);
}

/// Of one size from the start: a window manager that is told another one first may come back to it.
/// The toolkit's preparations for being shown would set theirs if the box were visible.
void PromptBox::setVisible(bool visible)
{
    if (visible && !isVisible()) {
        QShowEvent coming;
        QMessageBox::showEvent(&coming);
        SettleLayouts(*this);
        Fit();
    }
    QMessageBox::setVisible(visible);
}

void PromptBox::showEvent(QShowEvent *event)
{
    QDialog::showEvent(event); // NOLINT(bugprone-parent-virtual-call)
    SettleText();
}

/// The toolkit would set a size of its own. All that changes while the box is up is the font.
bool PromptBox::event(QEvent *event)
{
    if (event->type() == QEvent::LayoutRequest)
        return true;
    const bool handled = QMessageBox::event(event);
    if (event->type() == QEvent::FontChange && isVisible())
        Fit();
    return handled;
}

void PromptBox::resizeEvent(QResizeEvent *event)
{
    QMessageBox::resizeEvent(event);
    if (isVisible())
        SettleText();
}

void PromptBox::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_F1)
        return PressHelpKeyBelow(parentWidget());
    QScrollBar *bar = m_page->verticalScrollBar();
    const bool turns = event->key() == Qt::Key_PageUp || event->key() == Qt::Key_PageDown;
    turns && bar->isVisible() ? void(QCoreApplication::sendEvent(bar, event))
                              : QMessageBox::keyPressEvent(event);
}

void PromptBox::Fit()
{
    const QSize room = RoomOnScreen(*this);
    for (QLabel *label : TextsOf(*m_page->widget())) {
        label->setWordWrap(true);
        label->ensurePolished();
    }
    FitButtons(room);
    FitIcon(room.width());
    const QSize around = Around();
    const QSize text = TextSize(room - around);
    const int title = fontMetrics().horizontalAdvance(windowTitle()) + 50; // with its buttons
    const QSize least = layout()->totalMinimumSize().boundedTo(room);
    setMinimumSize(least);
    setMaximumSize((text + around).expandedTo(least).expandedTo({title, 0}).boundedTo(room));
    resize(maximumSize());
}

/// Whether it has to scroll is known in the size that the box has at last.
void PromptBox::SettleText()
{
    layout()->activate();
    m_page->Settle();
    const bool scrolls =
        m_page->verticalScrollBar()->isVisible() || m_page->horizontalScrollBar()->isVisible();
    m_page->setFocusPolicy(scrolls ? Qt::TabFocus : Qt::NoFocus);
}

/// Side by side, else one below the other, and with smaller text where they leave the text above
/// hardly any room.
void PromptBox::FitButtons(QSize room)
{
    auto *line = findChild<QDialogButtonBox *>();
    const int margins = layout()->contentsMargins().left() + layout()->contentsMargins().right();
    ShrinkText(*line, line->buttons(), [&] {
        for (const auto way : {Qt::Horizontal, Qt::Vertical}) {
            if (line->orientation() != way)
                line->setOrientation(way);
            const QSize size = line->minimumSizeHint();
            if (size.width() + margins <= room.width() && size.height() <= room.height() / 2)
                return true;
        }
        return false;
    });
}

/// The picture goes where a word would not have the room.
void PromptBox::FitIcon(int room)
{
    auto *picture = findChild<QLabel *>(u"qt_msgboxex_icon_label"_s);
    if (picture->pixmap(Qt::ReturnByValue).isNull())
        return;
    picture->show();
    const int word = m_page->widget()->minimumSizeHint().width();
    picture->setVisible(word + Around().width() <= room);
}

/// What the box needs beside the text, however large that is.
QSize PromptBox::Around()
{
    constexpr QSize large(2000, 2000);
    m_page->setMinimumSize(large);
    layout()->activate();
    const QSize around = layout()->totalMinimumSize() - large;
    m_page->setMinimumSize(0, 0);
    layout()->activate();
    return around;
}

QSize PromptBox::TextSize(QSize room) const
{
    constexpr int readable = 70; // letters
    constexpr int step = 10;
    const QWidget &content = *m_page->widget();
    int wanted = 0;
    for (const QLabel *label : TextsOf(content))
        wanted = std::max(wanted, label->fontMetrics().size(0, label->text()).width() + 2);
    wanted = std::min(wanted, readable * fontMetrics().averageCharWidth());
    const int word = content.minimumSizeHint().width();
    int width = std::min(std::max(wanted, word), room.width());
    while (width < room.width() && content.heightForWidth(width) > room.height())
        width = std::min(width + step, room.width());
    const int bar = word > width ? m_page->horizontalScrollBar()->sizeHint().height() : 0;
    return QSize(width, content.heightForWidth(std::max(width, word)) + bar)
        .boundedTo({width, room.height()});
}

} // namespace vellumo
