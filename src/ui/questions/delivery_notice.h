#pragma once

#include "model/project.h"

namespace vellumo {

/// What of a question does not fit on the handheld's screen or will not arrive there as typed.
/// Both texts are empty when all is well.
struct DeliveryNotice {
    QString line; ///< the first in words, and how many others there are
    QString all;  ///< a line for each
};

/// The notice of the question at this position, from 1; that of 0 is empty.
DeliveryNotice NoticeOf(const Project &project, int position);

} // namespace vellumo
