#pragma once

#include <QByteArray>

#include <map>

namespace vellumo {

/// The bytes of a compiled help file, uncompressed, that holds these objects by their full names,
/// such as "/index.html". The same objects give the same bytes everywhere and at any time.
QByteArray WriteArchive(const std::map<QByteArray, QByteArray> &objects);

} // namespace vellumo
