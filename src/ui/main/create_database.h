#pragma once

#include "model/project.h"
#include "ui/common/environment.h"

class QWidget;

namespace vellumo {

/// Makes the project's database in the projects folder and tells the user in boxes over the window:
/// of each tool that did not start, and then of success whatever the tools said, or that the
/// creation failed and why. After a success the database and its folder are opened, and last a box
/// tells where the database is missing or not what the project asks for.
void CreateDatabase(const Project &project, const Environment &environment, QWidget *window);

} // namespace vellumo
