#pragma once

#include "model/texts.h"
#include "palmgen/script_generator.h"
#include "palmtools/build_prc/database_builder.h"
#include "palmtools/pilrc/compiler.h"

#include <optional>

namespace vellumo {

/// The database of a project, made by the libraries of the tools as the programs make it, but for
/// the times, which are 0. None where the script cannot be written or a tool refuses; then the
/// refusal has the reason.
inline std::optional<QByteArray> MakeInProcess(const Project &project, QString *refusal = nullptr)
{
    const auto refuse = [&](const QString &reason) {
        if (refusal)
            *refusal = reason;
        return std::nullopt;
    };
    const Script script = GenerateScript(project, QString(32, u'0'));
    if (!script.outcome)
        return refuse(script.outcome.error().text);
    const auto compilation = palmtools::CompileScript(script.bytes.toStdString());
    if (compilation.failed)
        return refuse(QString::fromStdString(compilation.diagnostics.back().text));
    const std::string name = TrimBlanks(project.FormName).toString().toStdString();
    const auto header =
        palmtools::HeaderOf({.name = name, .type = "kelp", .creator = "Wmpt", .hidden = true}, 0);
    if (!header)
        return refuse(QString::fromStdString(header.error().text));
    const auto resources = palmtools::Sorted(ViewsOf(compilation.resources));
    if (!resources)
        return refuse(QString::fromStdString(resources.error().text));
    const auto bytes = palmtools::EncodeDatabase(*header, *resources);
    if (!bytes)
        return refuse(QString::fromStdString(bytes.error().text));
    return QByteArray::fromStdString(*bytes);
}

} // namespace vellumo
