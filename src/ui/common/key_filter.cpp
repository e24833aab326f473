#include "ui/common/key_filter.h"

#include "ui/common/prompts.h"

#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QWidget>

#include <algorithm>

namespace vellumo {
namespace {

class KeyFilter : public QObject
{
public:
    KeyFilter(QWidget *box, QString characters, QString message)
        : QObject(box),
          m_box(box),
          m_characters(std::move(characters)),
          m_message(std::move(message))
    {}

    bool eventFilter(QObject *, QEvent *event) override
    {
        if (!IsRefused(TypedBy(event)))
            return false;
        ShowExclamation(m_box, m_message);
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
        return key->modifiers() & Qt::ControlModifier ? QStringLiteral("\n") : QStringLiteral("\r");
    }

    bool IsRefused(const QString &typed) const
    {
        return std::ranges::any_of(typed, [this](QChar c) { return m_characters.contains(c); });
    }

    QWidget *m_box;
    QString m_characters;
    QString m_message;
};

} // namespace

void RefuseKeys(QWidget *box, const QString &characters, const QString &message)
{
    box->installEventFilter(new KeyFilter(box, characters, message));
}

} // namespace vellumo
