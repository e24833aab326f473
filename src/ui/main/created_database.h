#pragma once

#include "model/project.h"
#include "palmgen/create_pass.h"

namespace vellumo {

/// What a person is told of a database that is not the one to install.
struct CreatedFault {
    QString text;
    QString reasons; ///< a few lines: in what it differs, what the tools said, and what to do
};

/// Reads the database that a pass has left and holds it against its project; nothing where all is
/// well. For a pass that came to the end of its build.
std::optional<CreatedFault> FaultOfCreated(const CreateReport &report, const Project &project);

} // namespace vellumo
