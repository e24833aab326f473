#pragma once

#include <QString>

#include <array>

namespace vellumo {

/// The columns of a table of questions, in the order in which the program writes them.
enum class QuestionColumn { Title, Text, Type, ColumnName, Items };
inline constexpr std::array questionColumns = {QuestionColumn::Title, QuestionColumn::Text,
                                               QuestionColumn::Type, QuestionColumn::ColumnName,
                                               QuestionColumn::Items};

/// What a heading calls the column.
QLatin1StringView CaptionOf(QuestionColumn column);

/// Whether a cell has this name, blanks around it and case aside.
bool HasName(QStringView cell, QLatin1StringView name);

/// The type that a cell names so, by its own name; another text stays as it is.
QString TypeCalled(const QString &cell);

} // namespace vellumo
