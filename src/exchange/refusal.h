#pragma once

#include <QString>

namespace vellumo {

/// A cell, row or line that cannot be taken.
struct Refusal {
    qsizetype row;  ///< of the sheet, or line of the text, from 1
    QString column; ///< its caption, or the name of a row of the form; empty = none applies
    QString reason; ///< ready to show
    /// The place from 1 that the question would have if none were refused; 0 = none applies.
    int question = 0;

    bool operator==(const Refusal &) const = default;
};

} // namespace vellumo
