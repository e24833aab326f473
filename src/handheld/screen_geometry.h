#pragma once

#include "model/question_types.h"

namespace vellumo {

/// Where things stand on the handheld's screen, in its pixels from the top left corner
/// (docs/handheld-screen.md).
namespace screen {

inline constexpr int width = 160;
inline constexpr int height = 160;
inline constexpr int lineHeight = 11; ///< of every font that has letters

inline constexpr int titleX = 2;       ///< where the text of the title begins, in the bold font
inline constexpr int titleWidth = 146; ///< from there to button 102, which stands at its right

inline constexpr int questionX = 10;      ///< of the label with the question, in the bold font
inline constexpr int questionY = 34;      ///< of its first line
inline constexpr int questionWidth = 140; ///< of a line before button 97, which is drawn over it
inline constexpr int questionToEnd = 150; ///< of a line before the end of the screen
inline constexpr int questionWrapWidth = 151; ///< of a line where the system breaks it by itself

inline constexpr int listItemWidth = 140; ///< of an item in an opened pulldown list, in font 0
inline constexpr int captionWidth = 120;  ///< of the caption of a check box, in font 0
inline constexpr int captionDrawn = 121;  ///< of what is drawn of a longer one

} // namespace screen

/// The room that a type leaves for its question.
struct QuestionRoom {
    TypeId type;
    int freeLines; ///< of the question, above the first place that takes the answer
};

/// A row for each type, in their order.
extern const std::array<QuestionRoom, typeCount> questionRooms;

/// The lines that a question of this type may have; null, a type that is unknown, has one.
int FreeLines(const QuestionType *type);

} // namespace vellumo
