#include "cli/outputs.h"

#include "platform/files.h"

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

Outcome WriteOutput(const QString &name, const QByteArray &bytes, const Console &console)
{
    if (name != "-"_L1)
        return ReplaceFile(name, bytes);
    console.Write(bytes);
    return done;
}

} // namespace

Ending Deliver(const QString &name, const QByteArray &bytes, QLatin1StringView code,
               const Console &console)
{
    if (const Outcome written = WriteOutput(name, bytes, console); !written)
        return Refuse(console, Exit::NotWritten, written.error());
    Ending ending(Exit::Fine, code, u"written"_s);
    ending.made = name;
    return ending;
}

Exit RefuseMixture(const Console &console)
{
    return RefuseUse(console, u"With --json the output needs a file of its own: -o FILE."_s);
}

} // namespace vellumo
