#pragma once

#include "editing/clipboard_texts.h"
#include "model/clsDataSource.h"

#include <optional>

namespace vellumo {

/// What WriteQuestions makes, where it goes from one program to another.
inline constexpr QLatin1StringView questionsMimeType{"application/x-vellumo-questions"};

/// The current question, which there must be, with its items.
Question CurrentQuestion(const clsDataSource &source);

/// The questions with everything in them: JSON, {"version": 1, "questions": [...]}, each with
/// title, question, type, columnName and items.
QByteArray WriteQuestions(const QList<Question> &questions);

/// The questions of such bytes, of at most 16 MiB; none where they are anything else.
std::optional<QList<CopiedQuestion>> ReadQuestions(const QByteArray &bytes);

} // namespace vellumo
