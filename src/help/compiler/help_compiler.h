#pragma once

#include "help/help_topics.h"
#include "platform/result.h"

#include <QByteArray>
#include <QString>

#include <map>
#include <span>

namespace vellumo {

/// What a help file is made of.
struct HelpSource {
    QString title;
    QString defaultPage;
    QString contents; ///< the file with the tree of contents
    std::span<const HelpTopic> topics;
    /// Pages and pictures by their names, folders separated by slashes: "pictures/103.png".
    std::map<QString, QByteArray> files;
};

/// The compiled help file. Fails where a page that the source names is not among its files.
Result<QByteArray> CompileHelp(const HelpSource &source);

} // namespace vellumo
