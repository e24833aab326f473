#include "platform/files.h"

#include <QFile>

#include <cerrno>
#include <filesystem>
#include <fstream>
#include <system_error>

namespace vellumo {
namespace {

FileFault Fault(const std::error_code &code)
{
    const bool denied = code == std::errc::permission_denied ||
                        code == std::errc::operation_not_permitted ||
                        code == std::errc::read_only_file_system;
    return {QString::fromLocal8Bit(code.message()), denied};
}

} // namespace

std::optional<FileFault> WriteNewFile(const QString &path, const QByteArray &bytes)
{
    // Not QFile: it does not tell a denied permission from other reasons.
    errno = 0;
    std::ofstream file(QFile(path).filesystemFileName(), std::ios::binary | std::ios::trunc);
    file.write(bytes.constData(), bytes.size());
    file.close();
    if (file)
        return std::nullopt;
    return Fault({errno, std::generic_category()});
}

std::optional<FileFault> RemoveFile(const QString &path)
{
    std::error_code code;
    std::filesystem::remove(QFile(path).filesystemFileName(), code);
    if (!code)
        return std::nullopt;
    return Fault(code);
}

} // namespace vellumo
