#pragma once

#include "editing/added_question.h"
#include "exchange/refusal.h"
#include "exchange/sheet.h"

#include <optional>

namespace vellumo {

/// A question as a row of a sheet tells of it.
struct SheetQuestion {
    qsizetype row;
    std::optional<int> id = {}, order = {}; ///< none = the row does not say
    Question question = {};
    QList<Refusal> refusals = {}; ///< of cells that cannot be taken as they are
};

/// The rules of adding are looked at for its items alone.
SheetQuestion QuestionIn(const CsvRow &row, const Sheet &sheet);

/// Refuses what stands against adding it, but for cells that are refused already.
void Refuse(SheetQuestion &question, const QList<QuestionObjection> &objections);

} // namespace vellumo
