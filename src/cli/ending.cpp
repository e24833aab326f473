#include "cli/ending.h"

using namespace Qt::StringLiterals;

namespace vellumo {

void Tell(const Ending &ending, const QString &inputName, const Console &console)
{
    if (!console.json && ending.shown.isEmpty())
        return;
    QJsonObject more = ending.more;
    more.insert(u"exit"_s, static_cast<int>(ending.exit));
    if (!inputName.isEmpty())
        more.insert(u"input"_s, inputName);
    console.Tell({.kind = "result"_L1,
                  .code = ending.code,
                  .text = ending.text,
                  .shown = ending.shown,
                  .file = ending.made.isEmpty() ? inputName : ending.made,
                  .more = more});
}

void TellOfFile(Ending ending, const QString &file, const Console &console)
{
    ending.made = file;
    Tell(ending, {}, console);
}

} // namespace vellumo
