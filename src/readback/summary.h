#pragma once

#include "readback/palm_database.h"

#include <QStringList>

#include <optional>

namespace vellumo {

/// What is in a database, told by itself. Texts are as stored and may hold any character. What a
/// database does not have, or has in no shape that can be read, is left out.
struct DatabaseSummary {
    QString name, type, creator;
    qsizetype size = 0; ///< bytes of the whole file
    qsizetype resources = 0;
    std::optional<int> questions = {}; ///< as many as it says it has
    QStringList types = {};            ///< of each question; an unknown one as its code, "0x10"
    QStringList columnNames = {};
    QStringList titles = {}; ///< of each form
};
DatabaseSummary Summarize(const PalmDatabase &database);

} // namespace vellumo
