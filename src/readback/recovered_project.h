#pragma once

#include "model/project.h"
#include "readback/palm_database.h"

namespace vellumo {

/// The project that a database was made from, as far as that can be told from what arrived: texts
/// are recovered from those of the handheld (readback/recovered_text.h), Ids count from 1, and no
/// titles are kept. Any database may be given; what is missing or damaged in it stays empty, and a
/// type of an unknown code has no name.
///
/// CheckDatabase of both tells what could not be recovered.
Project RecoverProject(const PalmDatabase &database);

} // namespace vellumo
