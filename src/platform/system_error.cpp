#include "platform/system_error.h"

#include <cerrno>

namespace vellumo {

Error ErrorOf(const std::error_code &code, const QString &file)
{
    const bool denied = code == std::errc::permission_denied ||
                        code == std::errc::operation_not_permitted ||
                        code == std::errc::read_only_file_system;
    return {QString::fromLocal8Bit(code.message()), file, 0, denied};
}

Error LastError(const QString &file)
{
    return ErrorOf({errno, std::generic_category()}, file);
}

} // namespace vellumo
