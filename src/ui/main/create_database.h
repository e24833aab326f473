#pragma once

#include "model/project.h"
#include "ui/common/environment.h"

class QWidget;

namespace vellumo {

/// Makes the project's database in the projects folder and tells the user in boxes over the window:
/// of each tool that did not start, and then of success whatever the tools said, or that the
/// creation failed; below stands why something did. After a success the database and its folder are
/// opened.
void CreateDatabase(const Project &project, const Environment &environment, QWidget *window);

} // namespace vellumo
