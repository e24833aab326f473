#pragma once

#include "model/clsDataSource.h"

#include <QStringList>

namespace vellumo {

/// One Vellsheet under design. A new one has both tables, empty, and nothing in its texts.
struct Project {
    QString FormName = {};
    QString FormVersion = {};
    QString Description = {};
    QString FormPath = {}; ///< the folder on the PC that receives the collected data

    /// Titles that the wizard offers again, oldest first; starts with one empty element.
    QStringList TitleList = {QString()};

    clsDataSource source = [] {
        clsDataSource created;
        created.GetDataMember();
        return created;
    }();
};

} // namespace vellumo
