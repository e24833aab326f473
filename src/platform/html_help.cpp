#include "platform/html_help.h"

#include <QtGlobal>

#ifdef Q_OS_WIN
#include <windows.h>

#include <htmlhelp.h>
#endif

namespace vellumo {

bool CallHelpViewer([[maybe_unused]] quintptr owner, [[maybe_unused]] const QString &file,
                    [[maybe_unused]] int command, [[maybe_unused]] quint32 data)
{
#ifdef Q_OS_WIN
    HtmlHelpA(reinterpret_cast<HWND>(owner), file.toLocal8Bit().constData(), UINT(command), data);
    return true;
#else
    return false;
#endif
}

} // namespace vellumo
