#include "platform/html_help.h"

#include <windows.h>

#include <htmlhelp.h>

namespace vellumo {

void CallHelpViewer(quintptr owner, const QString &file, int command, quint32 data)
{
    HtmlHelpW(reinterpret_cast<HWND>(owner), reinterpret_cast<const wchar_t *>(file.utf16()),
              static_cast<UINT>(command), data);
}

} // namespace vellumo
