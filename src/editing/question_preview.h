#pragma once

#include "model/clsDataSource.h"

#include <QStringList>

#include <optional>

namespace vellumo {

/// The current question as the handheld will show it.
struct QuestionPreview {
    QString position;      ///< such as "3 of 7"
    int pictureNumber = 0; ///< of the kind of control; 0 = the type is none of the ten
    QString title = {};
    QString question = {}; ///< cut where it is long

    /// The first items of a Checkboxes question.
    struct ItemBox {
        QStringList items;
        int width; ///< in twips (1440 an inch; 15 a pixel); smaller where items are left out
    };
    std::optional<ItemBox> itemBox = {};
};

/// The preview of the current question; nothing where there is none.
std::optional<QuestionPreview> PreviewOf(const clsDataSource &source);

} // namespace vellumo
