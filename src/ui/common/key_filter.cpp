#include "ui/common/key_filter.h"

#include "ui/common/prompts.h"

#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QWidget>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

class KeyFilter : public QObject
{
public:
    KeyFilter(QWidget *box, const RefusedCharacters &refused)
        : QObject(box), m_box(box), m_refused(refused)
    {}

    bool eventFilter(QObject *, QEvent *event) override
    {
        if (!IsRefused(TypedBy(event)))
            return false;
        ShowExclamation(m_box, m_refused.message);
        return true;
    }

private:
    /// A dead key or a compose sequence reaches the box as a text of an input method.
    static QString TypedBy(QEvent *event)
    {
        if (event->type() == QEvent::InputMethod)
            return static_cast<QInputMethodEvent *>(event)->commitString();
        if (event->type() != QEvent::KeyPress)
            return {};
        const auto *key = static_cast<QKeyEvent *>(event);
        if (key->key() != Qt::Key_Return && key->key() != Qt::Key_Enter)
            return key->text();
        return key->modifiers() & Qt::ControlModifier ? u"\n"_s : u"\r"_s;
    }

    bool IsRefused(const QString &typed) const
    {
        return std::ranges::any_of(typed,
                                   [this](QChar c) { return m_refused.characters.contains(c); });
    }

    QWidget *m_box;
    RefusedCharacters m_refused;
};

} // namespace

void RefuseKeys(QWidget *box, const RefusedCharacters &refused)
{
    box->installEventFilter(new KeyFilter(box, refused));
}

} // namespace vellumo
