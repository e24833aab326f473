#pragma once

#include "ui/common/environment.h"

#include <QPointer>

#include <vector>

class QWidget;

namespace vellumo {

class HelpWindow;

// Commands of help files and what their data are.
inline constexpr int HH_DISPLAY_TOPIC = 0; ///< 0: the default page
inline constexpr int HH_HELP_CONTEXT = 15; ///< the number of a page
inline constexpr int HH_CLOSE_ALL = 18;    ///< 0: closes every help window

/// The help of the program. Windows of ours go when their asker goes, and with this at the latest.
class myHelp
{
public:
    /// The environment must live as long.
    explicit myHelp(const Environment &environment) : m_environment(environment) {}
    ~myHelp();
    Q_DISABLE_COPY_MOVE(myHelp)

    /// Tells in a box what stands in the way. The asker may be null; where a modal window is up,
    /// help belongs to that one, so that it can be used beside it.
    void ShowHelp(int command, quint32 data, QWidget *asker);

    /// Closes every help window that is open here; says nothing.
    void CloseWindows();

private:
    // In windows of ours, or by the viewer of a platform that has one.
    void Display(int command, quint32 data, QWidget *owner);
    HelpWindow *WindowOf(const QWidget *owner) const;

    const Environment &m_environment;
    std::vector<QPointer<HelpWindow>> m_windows;
};

} // namespace vellumo
