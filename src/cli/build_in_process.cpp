#include "cli/build_in_process.h"

#include "palmtools/build_prc/database_builder.h"
#include "palmtools/pilrc/compiler.h"

#include <exception>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

QString TextOf(const std::string &text)
{
    return QString::fromUtf8(text);
}

Error CompilerError(const palmtools::Diagnostic &diagnostic)
{
    return {u"the script cannot be compiled: line %1: %2"_s.arg(diagnostic.line)
                .arg(TextOf(diagnostic.text))};
}

Result<QByteArray> Built(const palmtools::Compilation &compilation, const QString &name)
{
    const auto header = palmtools::HeaderOf(
        {.name = name.toStdString(), .type = "kelp", .creator = "Wmpt", .hidden = true},
        std::time(nullptr));
    if (!header)
        return Error{TextOf(header.error().text)};
    const auto sorted = palmtools::Sorted(palmtools::ViewsOf(compilation.resources));
    if (!sorted)
        return Error{TextOf(sorted.error().text)};
    const auto database = palmtools::EncodeDatabase(*header, *sorted);
    if (!database)
        return Error{TextOf(database.error().text)};
    return QByteArray(database->data(), qsizetype(database->size()));
}

Result<QByteArray> Compiled(const QByteArray &script, const QString &name)
{
    try {
        const auto compilation =
            palmtools::CompileScript({script.constData(), size_t(script.size())});
        if (compilation.failed)
            return CompilerError(compilation.diagnostics.back());
        return Built(compilation, name);
    } catch (const std::exception &failure) {
        return Error{QString::fromLocal8Bit(failure.what())};
    }
}

} // namespace

BuildReport BuildInProcess(const Script &script, const QString &name, const BuildFolders &)
{
    if (!script.outcome)
        return {};
    Result<QByteArray> database = Compiled(script.bytes, name);
    if (!database)
        return {.made = database.error()};
    return {.database = *std::move(database)};
}

} // namespace vellumo
