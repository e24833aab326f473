#pragma once

#include <QApplication>
#include <QTimer>
#include <QWidget>

#include <functional>

namespace vellumo {

/// Looks for a window again and again until it is there, and uses it.
inline void AwaitWindow(const QString &name, const std::function<void(QWidget &)> &use)
{
    for (QWidget *window : QApplication::topLevelWidgets())
        if (window->objectName() == name && window->isVisible())
            return use(*window);
    QTimer::singleShot(20, qApp, [=] { AwaitWindow(name, use); });
}

} // namespace vellumo
