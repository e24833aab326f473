#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <map>

namespace vellumo {

/// The links and pictures of pages that lead to no file of the help or to no anchor in it, each as
/// "page: target". Addresses of the web are not followed.
QStringList FindBrokenLinks(const std::map<QString, QByteArray> &files);

} // namespace vellumo
