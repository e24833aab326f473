#pragma once

#include "model/project.h"
#include "readback/delivered_types.h"
#include "readback/finding.h"

#include <QByteArray>
#include <QList>

namespace vellumo {

/// The texts of a question as the handheld must have them, in windows-1252.
struct DeliveredQuestion {
    const DeliveredType *type; ///< never null; one without name where it is unknown
    QByteArray title;
    QByteArray text;
    QByteArray columnName;
    QList<QByteArray> items = {}; ///< none where the type owns no items
};

/// The texts of a project as the handheld must have them, in windows-1252.
struct DeliveredTexts {
    QByteArray databaseName;
    QByteArray formName;
    QByteArray version;
    QByteArray description;
    QByteArray folder;
    QList<DeliveredQuestion> questions = {};
};

/// What becomes of a project's texts on their way through a resource script: escapes are
/// interpreted, an item with a comma becomes two, the folder ends in a backslash
/// (docs/palm-formats.md, "How the texts of a project arrive").
///
/// A text with a character that windows-1252 lacks is a finding; what stands before the character
/// is delivered then. The types must outlive the result.
DeliveredTexts DeliverTexts(const Project &project, std::span<const DeliveredType> types,
                            QList<Finding> &findings);

} // namespace vellumo
