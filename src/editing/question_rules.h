#pragma once

#include "model/question.h"

#include <QLatin1StringView>

namespace vellumo {

// What can be wrong with a question. The places where questions are edited apply these rules in
// their own order, and some of them say a thing in words of their own.

/// Gives its message, ready to show, where the question breaks the rule, and otherwise nothing.
using QuestionRule = QLatin1StringView (*)(const Question &question);

QLatin1StringView TypeMissing(const Question &question);
QLatin1StringView TitleTooLong(const Question &question);
QLatin1StringView TitleWithQuotes(const Question &question);
QLatin1StringView ColumnNameMissing(const Question &question);
QLatin1StringView ColumnNameTooLong(const Question &question);
QLatin1StringView ColumnNameWithQuotes(const Question &question);
QLatin1StringView TextMissing(const Question &question);
QLatin1StringView TextWithLineBreaks(const Question &question);
QLatin1StringView TextTooLong(const Question &question);
/// Of a type that owns items.
QLatin1StringView ItemsMissing(const Question &question);
QLatin1StringView ItemsTooMany(const Question &question);

inline constexpr QLatin1StringView columnNameExists{
    "The column name already exists. Please enter a different name."};

} // namespace vellumo
