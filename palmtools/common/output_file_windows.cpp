#include "palmtools/common/output_file.h"

#include <string>

#include <fcntl.h>
#include <io.h>
#include <sys/stat.h>

namespace palmtools {

std::FILE *OpenFile(const std::filesystem::path &path, const char *mode)
{
    return _wfopen(path.c_str(), std::filesystem::path(mode).c_str());
}

std::error_code OutputFile::Create(const std::filesystem::path &path)
{
    // Not a mode of fopen(): the older C libraries know none that makes a new file alone.
    constexpr int newFile = _O_WRONLY | _O_CREAT | _O_EXCL | _O_BINARY | _O_NOINHERIT;
    const int descriptor = _wopen(path.c_str(), newFile, _S_IREAD | _S_IWRITE);
    return descriptor < 0 ? LastError() : Take(_fdopen(descriptor, "wb"));
}

std::error_code OutputFile::CreateLike(const std::filesystem::path &path,
                                       const std::filesystem::path &)
{
    return Create(path); // it inherits its rights from the folder, as the old one did
}

std::error_code OutputFile::OpenExisting(const std::filesystem::path &path, bool)
{
    return Take(OpenFile(path, "r+b"));
}

std::error_code OutputFile::OpenOwn(int)
{
    return std::make_error_code(std::errc::not_supported); // none has a path here
}

std::error_code OutputFile::Sync()
{
    return _commit(_fileno(m_file.get())) == 0 ? std::error_code() : LastError();
}

std::error_code SyncFolder(const std::filesystem::path &)
{
    return {};
}

std::error_code CheckMayWrite(const std::filesystem::path &)
{
    return {}; // a file that may not be written cannot be renamed over either
}

} // namespace palmtools
