#pragma once

#include "model/project.h"
#include "ui/common/environment.h"

class QWidget;

namespace vellumo {

/// Makes the project's database in the projects folder and tells the user in boxes over the window:
/// of success whatever the tools said, of a tool that did not start, or that the creation failed.
void CreateDatabase(const Project &project, const Environment &environment, QWidget *window);

} // namespace vellumo
