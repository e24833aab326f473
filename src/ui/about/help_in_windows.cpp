#include "ui/about/myHelp.h"

#include "help/reader/help_file.h"
#include "ui/about/help_window.h"
#include "ui/common/prompts.h"

#include <QWidget>

namespace vellumo {

myHelp::~myHelp()
{
    // A window without an owner has nobody else to delete it.
    for (const auto &window : m_windows)
        delete window;
}

void myHelp::CloseWindows()
{
    for (const auto &window : std::exchange(m_windows, {}))
        if (window)
            window->close();
}

void myHelp::Display(int command, quint32 data, QWidget *owner)
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
