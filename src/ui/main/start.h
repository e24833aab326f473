#pragma once

#include <QString>

namespace vellumo {

inline constexpr QLatin1StringView newProject{"New"};
inline constexpr QLatin1StringView existingProject{"Existing"};

/// What the main window opens with.
struct Start {
    QString choice = newProject; ///< newProject or existingProject
    QString path = {};           ///< of the project file; empty for a new project
    QString hint = {};           ///< goes with the reason where that file cannot be opened
};

} // namespace vellumo
