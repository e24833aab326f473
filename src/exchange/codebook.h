#pragma once

#include "model/project.h"

#include <vector>

namespace vellumo {

/// What somebody who reads the collected data has to know of a question.
struct CodebookRow {
    int number; ///< position of the question from 1
    QString columnName, type;
    QLatin1StringView value; ///< what the column holds, see ValueOf
    QString title, question;
    QStringList items; ///< of the types that own items only
};

/// A row for each question, in their order.
std::vector<CodebookRow> CodebookOf(const Project &project);

/// What the column of a question of this type holds in the collected data, in a few words;
/// "unknown" where there is no such type.
QLatin1StringView ValueOf(QStringView type);

} // namespace vellumo
