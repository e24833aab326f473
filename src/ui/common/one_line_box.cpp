#include "ui/common/one_line_box.h"

#include "editing/clipboard_texts.h"

#include <QClipboard>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>

#include <memory>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

/// Stands before the ways on which a text of several lines comes into the box, which would keep the
/// line breaks and show them as something else.
class OneLineFilter : public QObject
{
public:
    explicit OneLineFilter(QLineEdit *box) : QObject(box), m_box(box) {}

    bool eventFilter(QObject *, QEvent *event) override
    {
        switch (event->type()) {
        case QEvent::KeyPress:
            return static_cast<QKeyEvent *>(event)->matches(QKeySequence::Paste) &&
                   Take(Laid(QClipboard::Clipboard));
        case QEvent::MouseButtonRelease: {
            const auto *mouse = static_cast<QMouseEvent *>(event);
            return mouse->button() == Qt::MiddleButton &&
                   TakeAt(mouse->position(), Laid(QClipboard::Selection));
        }
        case QEvent::Drop: {
            const auto *drop = static_cast<QDropEvent *>(event);
            return TakeAt(drop->position(), drop->mimeData()->text());
        }
        case QEvent::ContextMenu:
            ShowMenu(static_cast<QContextMenuEvent *>(event)->globalPos());
            return true;
        default:
            return false;
        }
    }

private:
    static QString Laid(QClipboard::Mode mode) { return QGuiApplication::clipboard()->text(mode); }

    /// Whether the text needed it and was taken; any other is left to the box.
    bool Take(const QString &text)
    {
        const QString line = OneLine(text);
        if (line == text || m_box->isReadOnly())
            return false;
        m_box->insert(line);
        return true;
    }

    bool TakeAt(QPointF place, const QString &text)
    {
        if (OneLine(text) == text || m_box->isReadOnly())
            return false;
        m_box->setCursorPosition(m_box->cursorPositionAt(place.toPoint()));
        return Take(text);
    }

    /// The menu pastes by itself, so that is done over again.
    void ShowMenu(QPoint place)
    {
        const QString before = m_box->text();
        const std::unique_ptr<QMenu> menu(m_box->createStandardContextMenu());
        menu->exec(place);
        const QString laid = Laid(QClipboard::Clipboard);
        if (OneLine(laid) == laid || m_box->text().count(laid) <= before.count(laid))
            return;
        m_box->undo();
        Take(laid);
    }

    QLineEdit *m_box;
};

} // namespace

void KeepToOneLine(QLineEdit *box)
{
    auto *filter = new OneLineFilter(box);
    box->installEventFilter(filter);
    // A drop-down has the focus and hands its keys on past the filters of its box.
    if (auto *combo = qobject_cast<QComboBox *>(box->parentWidget()))
        combo->installEventFilter(filter);
}

} // namespace vellumo
