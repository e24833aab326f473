#pragma once

#include <QStringList>

namespace vellumo {

/// What a person decides about a question; its place and its Id are the project's.
struct Question {
    QString title = {};
    QString question = {};
    QString type = {}; ///< the name of a type
    QString columnName = {};
    QStringList items = {}; ///< stored for the types that own items only
};

} // namespace vellumo
