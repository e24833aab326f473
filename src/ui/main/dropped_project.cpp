#include "ui/main/dropped_project.h"

#include <QApplication>
#include <QDir>
#include <QDropEvent>
#include <QMimeData>
#include <QTimer>
#include <QUrl>
#include <QWidget>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

/// Empty unless it is one file, and a project's by its name.
QString ProjectIn(const QMimeData &data)
{
    const QList<QUrl> urls = data.urls();
    if (urls.size() != 1 || !urls.front().isLocalFile())
        return {};
    const QString path = urls.front().toLocalFile();
    return path.endsWith(".vmp"_L1, Qt::CaseInsensitive) ? QDir::toNativeSeparators(path)
                                                         : QString();
}

} // namespace

DroppedProject::DroppedProject(QWidget *window, Dropped dropped)
    : QObject(window), m_dropped(std::move(dropped))
{
    window->setAcceptDrops(true);
    window->installEventFilter(this);
    for (auto *child : window->findChildren<QWidget *>())
        if (child->acceptDrops())
            child->installEventFilter(this);
}

bool DroppedProject::eventFilter(QObject *, QEvent *event)
{
    const QEvent::Type type = event->type();
    if (type != QEvent::DragEnter && type != QEvent::DragMove && type != QEvent::Drop)
        return false;
    auto *drop = static_cast<QDropEvent *>(event);
    const QString path = ProjectIn(*drop->mimeData());
    if (path.isEmpty() || QApplication::activeModalWidget())
        return false;
    drop->setDropAction(Qt::CopyAction); // the file stays where it is
    drop->accept();
    if (type == QEvent::Drop) // who dropped it does not wait for the answer to a question
        QTimer::singleShot(0, this, [this, path] { m_dropped(path); });
    return true;
}

} // namespace vellumo
