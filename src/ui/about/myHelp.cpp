#include "ui/about/myHelp.h"

#include "help/reader/help_file.h"
#include "platform/html_help.h"
#include "ui/about/help_window.h"
#include "ui/common/prompts.h"

#include <QApplication>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

QWidget *OwnerFor(QWidget *asker)
{
    if (QWidget *modal = QApplication::activeModalWidget())
        return modal;
    return asker ? asker->window() : nullptr;
}

} // namespace

myHelp::~myHelp()
{
    // A window without an owner has nobody else to delete it.
    for (const auto &window : m_windows)
        delete window;
}

void myHelp::ShowHelp(int command, quint32 data, QWidget *asker)
{
    QWidget *owner = OwnerFor(asker);
    if (m_environment.helpFile.isEmpty())
        return ShowInformation(owner, u"Help File Not Found!"_s);
    if (!CallHelpViewer(owner ? owner->effectiveWinId() : 0, m_environment.helpFile, command, data))
        ShowInWindow(command, data, owner);
}

void myHelp::CloseWindows()
{
    for (const auto &window : std::exchange(m_windows, {}))
        if (window)
            window->close();
}

void myHelp::ShowInWindow(int command, quint32 data, QWidget *owner)
{
    if (command == HH_CLOSE_ALL)
        return CloseWindows();
    if (command != HH_DISPLAY_TOPIC && command != HH_HELP_CONTEXT)
        return;
    auto file = HelpFile::Open(m_environment.helpFile);
    if (!file) {
        ShowBox(owner, {.text = Describe(file.error())});
        return;
    }
    const QString page = command == HH_HELP_CONTEXT ? file->PageOf(data) : file->DefaultPage();
    HelpWindow *window = WindowOf(owner);
    if (!window) {
        window = new HelpWindow(std::move(*file), m_environment.open, owner);
        window->setAttribute(Qt::WA_DeleteOnClose);
        std::erase(m_windows, nullptr);
        m_windows.emplace_back(window);
    }
    window->ShowPage(page);
    window->setWindowState(window->windowState() & ~Qt::WindowMinimized);
    window->show();
    window->raise();
    window->activateWindow();
}

/// The window that the same asker has open, on the file as it is named now.
HelpWindow *myHelp::WindowOf(const QWidget *owner) const
{
    for (const auto &window : m_windows)
        if (window && window->isVisible() && window->parentWidget() == owner &&
            window->FilePath() == m_environment.helpFile)
            return window;
    return nullptr;
}

} // namespace vellumo
