#pragma once

#include "platform/result.h"

#include <QFlags>

#include <span>

namespace vellumo {

/// What may be asked for beside inputs; a set of them is what a command takes.
enum class Option : unsigned {
    Output = 1U << 0U,
    Identifier = 1U << 1U,
    Compiler = 1U << 2U,
    Builder = 1U << 3U,
    Timeout = 1U << 4U,
    Strict = 1U << 5U,
    Quiet = 1U << 6U,
    Json = 1U << 7U,
    Csv = 1U << 8U,
    Into = 1U << 9U,
    Skip = 1U << 10U,
    Question = 1U << 11U,
    From = 1U << 12U,
    Column = 1U << 13U,
    Append = 1U << 14U,
    Sort = 1U << 15U,
    Markdown = 1U << 16U,
    Git = 1U << 17U,
    FormSheet = 1U << 18U,
    Lossy = 1U << 19U,
};
Q_DECLARE_FLAGS(Options, Option)
Q_DECLARE_OPERATORS_FOR_FLAGS(Options)

/// Those that say how databases are made.
constexpr Options making = Option::Compiler | Option::Builder | Option::Timeout;

/// Those that every command takes.
constexpr Options everywhere = Option::Quiet | Option::Json;

/// An option; everything that is to be said of it stands in its row.
struct OptionRow {
    Option option;
    QLatin1StringView name;           ///< typed after two dashes
    QLatin1StringView letter = {};    ///< typed after one dash; empty = it has none
    QLatin1StringView valueName = {}; ///< as the help has it; empty = it takes no value
    QLatin1StringView help;           ///< what it does, in lines of at most 60 letters
    /// The value as commands use it, or why it is none; null = each is taken.
    Result<QString> (*check)(const QString &value) = nullptr;
};

/// In the order in which the help tells of them.
std::span<const OptionRow> OptionRows();

/// What --help prints of some of them.
QString OptionsHelp(Options options);

} // namespace vellumo
