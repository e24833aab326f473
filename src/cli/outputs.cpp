#include "cli/outputs.h"

#include "platform/files.h"

#include <algorithm>

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

Exit CheckIsNoInput(const QString &output, const QStringList &inputs, const Console &console)
{
    const auto input = std::ranges::find_if(
        inputs, [&output](const QString &name) { return IsSameFile(output, name); });
    if (output == "-"_L1 || input == inputs.end() || *input == "-"_L1)
        return Exit::Fine;
    return RefuseUse(console,
                     u"The output would take the place of the input '%1'."_s.arg(Visible(*input)));
}

Exit CheckOutput(const QString &output, const QStringList &inputs, const Console &console)
{
    if (console.json && output == "-"_L1)
        return RefuseMixture(console);
    return CheckIsNoInput(output, inputs, console);
}

} // namespace vellumo
