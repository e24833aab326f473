#include "ui/common/stray_input.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QKeyEvent>

namespace vellumo {
namespace {

class WheelFilter : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() != QEvent::Wheel || static_cast<QWidget *>(watched)->hasFocus())
            return false;
        event->ignore(); // what lies below may scroll
        return true;
    }
};

} // namespace

StrayLetters::StrayLetters(QObject *parent) : QObject(parent)
{
    qApp->installEventFilter(this);
}

bool StrayLetters::eventFilter(QObject *watched, QEvent *event)
{
    // What chooses something by Alt and a letter has taken the key before. On Apple's keyboards
    // they are letters of their own.
#ifdef Q_OS_MACOS
    return false;
#endif
    if (event->type() != QEvent::KeyPress || !watched->isWidgetType())
        return false;
    const auto *key = static_cast<QKeyEvent *>(event);
    const bool isPlainAlt = (key->modifiers() & ~Qt::ShiftModifier) == Qt::AltModifier;
    const bool takesText =
        static_cast<QWidget *>(watched)->testAttribute(Qt::WA_InputMethodEnabled);
    return isPlainAlt && takesText && !key->text().isEmpty() && key->text().front().isPrint();
}

void KeepWheelForFocus(QComboBox *box)
{
    box->setFocusPolicy(Qt::StrongFocus);
    box->installEventFilter(new WheelFilter(box));
}

} // namespace vellumo
