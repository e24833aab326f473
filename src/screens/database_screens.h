#pragma once

#include "readback/finding.h"
#include "readback/form.h"
#include "readback/palm_database.h"

#include <QDateTime>
#include <QStringList>

namespace vellumo {

/// A form and what is to be said of it. Texts may hold any character.
struct Screen {
    quint32 number = 0;
    Result<Form> form; ///< an error's words go on after "... is damaged: "
    QString title = {};
    QString question = {}; ///< with line feeds where it has them
    QString columnName = {};
    QString type = {};
    QStringList items = {};
    QStringList misfits = {}; ///< what of its texts the screen does not show
};

/// What a page tells of a database.
struct DatabaseScreens {
    QString name;
    QString version = {};
    QString description = {};
    QDateTime created = {};       ///< on the clock of the place; invalid where it is not told
    QList<Screen> screens = {};   ///< by their numbers
    QList<Finding> findings = {}; ///< what is wrong with the database
    QString misfit = {};          ///< what of the description the handheld does not show
};

/// The screens of a database, from its bytes alone.
DatabaseScreens ScreensOf(const PalmDatabase &database);

} // namespace vellumo
