#pragma once

#include "model/project.h"
#include "platform/result.h"

namespace vellumo {

/// Appends the questions of another project to those of this one, with their items, under fresh
/// Ids; a column name that is taken grows as that of a duplicate does. The titles that the other
/// one remembers are remembered here, too, as if they had been used last. Items that belong to no
/// question, or to one of a type without items, stay behind.
///
/// Fails, with the project as it was, where there are not enough places for all questions, or a
/// column name grows too long.
Outcome AppendProject(Project &project, const Project &other);

} // namespace vellumo
