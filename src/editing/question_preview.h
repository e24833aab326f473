#pragma once

#include "model/clsDataSource.h"
#include "model/question_types.h"

#include <optional>

namespace vellumo {

/// The current question as the handheld will show it.
struct QuestionPreview {
    QString position; ///< such as "3 of 7"
    std::optional<TypeId> type =
        {}; ///< none = the type is none of the ten, and nothing more is told
    QString title = {};
    QString question = {}; ///< cut where it is long

    /// The first items, for a type whose items stand on the screen.
    struct Items {
        QStringList shown;
        bool more; ///< some were left out
    };
    std::optional<Items> items = {};
};

/// The preview of the current question; nothing where there is none.
std::optional<QuestionPreview> PreviewOf(const clsDataSource &source);

} // namespace vellumo
