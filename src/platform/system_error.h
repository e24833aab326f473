#pragma once

#include "platform/result.h"

#include <system_error>

namespace vellumo {

/// What the platform says of a failure, with the file that it is about.
Error ErrorOf(const std::error_code &code, const QString &file = {});

/// The same of what errno holds now.
Error LastError(const QString &file = {});

} // namespace vellumo
