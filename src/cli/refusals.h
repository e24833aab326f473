#pragma once

#include "cli/command_line.h"
#include "cli/console.h"
#include "exchange/refusal.h"

#include <QList>

namespace vellumo {

/// What the rows of a refusal are.
enum class RowsAre { RowsOfTable, LinesOfText };

/// Complains of what an input has that cannot be taken. With --skip it is left out, of which one is
/// warned; without it nothing is to be written. Whether the rest may be.
bool MayWrite(const QList<Refusal> &refusals, RowsAre rowsAre, const QString &inputName,
              const CommandLine &line, const Console &console);

} // namespace vellumo
