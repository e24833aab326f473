#pragma once

#include <QString>

#include <vector>

namespace vellumo {

/// A line of the tree of contents.
struct ContentsEntry {
    int level = 0; ///< 0 = top; never more than one below the entry before
    QString title;
    QString page; ///< as the file names it; empty for a heading that leads nowhere
};

/// The lines of a contents file (.hhc), from top to bottom.
std::vector<ContentsEntry> ReadContents(const QString &html);

} // namespace vellumo
