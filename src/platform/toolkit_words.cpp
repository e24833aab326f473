#include "platform/toolkit_words.h"

#include "platform/descriptor_supply.h"

#include <QString>

#include <cstdio>
#include <cstdlib>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

// What the toolkit calls is handed nothing of ours.
const char *name = "";
const char *usualReason = "";

constexpr char tooManyFiles[] = "Too many open files";

[[noreturn]] void End(const char *reason)
{
    std::fprintf(stderr, "%s: %s\n", name, reason);
    std::_Exit(1);
}

void Handle(QtMsgType type, const QMessageLogContext &, const QString &message)
{
    if (type != QtFatalMsg)
        return;
    if (message.startsWith("ASSERT"_L1)) { // a mistake of the program's own, for its developers
        std::fprintf(stderr, "%s\n", qPrintable(message));
        return;
    }
    constexpr int neededAtStart = 10;
    End(DescriptorsAreLeft(neededAtStart) ? usualReason : tooManyFiles);
}

} // namespace

void KeepToolkitQuiet(const char *program, const char *reason, int neededDescriptors)
{
    name = program;
    usualReason = reason;
    if (!DescriptorsAreLeft(neededDescriptors))
        End(tooManyFiles);
    for (const char *asked : {"QT_LOGGING_RULES", "QT_DEBUG_PLUGINS"})
        if (qEnvironmentVariableIsSet(asked))
            return;
    qInstallMessageHandler(Handle);
}

} // namespace vellumo
