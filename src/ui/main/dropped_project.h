#pragma once

#include <QObject>

#include <functional>

class QWidget;

namespace vellumo {

/// Takes a project file that is dropped anywhere on a window, also on a text box in it. Anything
/// else is left to whatever it is dropped on.
class DroppedProject : public QObject
{
    Q_OBJECT

public:
    using Dropped = std::function<void(const QString &path)>;

    /// Belongs to the window, whose boxes it has by now. The path comes when the drop is over.
    DroppedProject(QWidget *window, Dropped dropped);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    Dropped m_dropped;
};

} // namespace vellumo
