#pragma once

#include "support/print.h"
#include "ui/questions/question_preview_box.h"
#include "ui/support/every_window.h"

#include <QScrollBar>
#include <QTabBar>

namespace vellumo {

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

inline std::string Name(const QWidget &widget)
{
    return widget.objectName().toStdString();
}

/// Whether a widget is one of the toolkit's own, within another.
inline bool IsPart(const QWidget &widget)
{
    return widget.objectName().isEmpty() || widget.objectName().startsWith(QLatin1String("qt_")) ||
           qobject_cast<const QScrollBar *>(&widget) ||
           qobject_cast<const QTabBar *>(widget.parentWidget());
}

/// The texts of the handheld's screen end where they end there.
inline bool IsOnHandheld(const QWidget &widget)
{
    for (const QWidget *above = widget.parentWidget(); above; above = above->parentWidget())
        if (qobject_cast<const QuestionPreviewBox *>(above))
            return true;
    return false;
}

/// The widgets of this window that are up, without those of the toolkit and of the handheld.
template <typename Widget> QList<Widget *> ShownWidgets(const QWidget &window)
{
    QList<Widget *> shown;
    for (auto *widget : window.findChildren<Widget *>())
        if (widget->isVisible() && widget->window() == &window && !IsPart(*widget) &&
            !IsOnHandheld(*widget))
            shown += widget;
    return shown;
}

/// The window stands on its screen, with its frame.
void ExpectOnScreen(const QWidget &window);

/// And all in it has its place, whole texts, and the direction of the desktop.
void ExpectLooksRight(const QWidget &window);

} // namespace vellumo
