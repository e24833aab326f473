#pragma once

#include <QString>

namespace vellumo {

/// Why a project's file cannot hold a text so that it can be read again; empty = it can.
QString ObjectionToStoring(const QString &text);

} // namespace vellumo
