#include "ui/main/window_keys.h"

#include <QAbstractButton>
#include <QKeyEvent>
#include <QShortcut>
#include <QTabWidget>

namespace vellumo {
namespace {

/// The toolkit does so in dialogs alone.
class EnterFilter : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() != QEvent::KeyPress)
            return false;
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (key != Qt::Key_Return && key != Qt::Key_Enter)
            return false;
        static_cast<QAbstractButton *>(watched)->click();
        return true;
    }
};

} // namespace

QList<QKeySequence> KeysOf(QKeySequence::StandardKey standard, const QKeySequence &other)
{
    const QList<QKeySequence> keys = QKeySequence::keyBindings(standard);
    return keys.isEmpty() ? QList{other} : keys;
}

void WalkTabsByKeys(QTabWidget &tabs)
{
    const struct {
        QKeyCombination key;
        int way;
    } walks[] = {{Qt::CTRL | Qt::Key_Tab, +1},
                 {Qt::CTRL | Qt::SHIFT | Qt::Key_Tab, -1},
                 {Qt::CTRL | Qt::SHIFT | Qt::Key_Backtab, -1}, // as X11 has it
                 {Qt::CTRL | Qt::Key_PageDown, +1},
                 {Qt::CTRL | Qt::Key_PageUp, -1}};
    for (const auto &[key, way] : walks)
        QObject::connect(new QShortcut(key, tabs.window()), &QShortcut::activated, &tabs,
                         [&tabs, way = way] {
                             const int next = tabs.currentIndex() + way + tabs.count();
                             tabs.setCurrentIndex(next % tabs.count());
                         });
}

void PressButtonsByEnter(QWidget &window)
{
    auto *filter = new EnterFilter(&window);
    for (auto *button : window.findChildren<QAbstractButton *>())
        button->installEventFilter(filter);
}

} // namespace vellumo
