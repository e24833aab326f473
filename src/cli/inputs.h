#pragma once

#include "cli/command_line.h"
#include "cli/ending.h"
#include "model/project_file.h"
#include "platform/files.h"

#include <functional>

namespace vellumo {

/// The bytes of an input, "-" being standard input; an error names it and why it cannot be read.
Result<QByteArray> ReadInput(const QString &name, const FileLimit &limit, const Console &console);

/// Of files that may be projects or databases.
extern const FileLimit eitherLimit;

/// Whether bytes that are a project or a database are rather the latter.
bool LooksLikeDatabase(const QByteArray &bytes);

/// The project in an input, and its bytes where they are asked for.
Result<Project> ReadProjectInput(const QString &name, const Console &console,
                                 QByteArray *bytesOfInput = nullptr);

/// Complains where a second input is standard input like the first, which can be read once only.
/// Whether it was.
bool RefusedAsSecond(const QString &first, const QString &second, const Console &console);

/// An input's name as messages have it.
QString InputName(const QString &name);

/// Does the same with each input, and tells how far it is where there are several.
void TryEachInput(const CommandLine &line, const Console &console,
                  const std::function<void(const QString &input)> &act);
/// Likewise, and tells how that ended. Each is tried; the worst exit is returned.
Exit ForEachInput(const CommandLine &line, const Console &console,
                  const std::function<Ending(const QString &input)> &act);
/// With the first alone.
Exit ForInput(const CommandLine &line, const Console &console,
              const std::function<Ending(const QString &input)> &act);

} // namespace vellumo
