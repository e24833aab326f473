#include "palmtools/common/output_file.h"

#include <cerrno>

namespace palmtools {

std::error_code LastError()
{
    return {errno, std::generic_category()};
}

std::error_code OutputFile::Take(std::FILE *file)
{
    if (!file)
        return LastError();
    m_file.reset(file);
    // A buffer would fail late, and once more when the file is closed.
    std::setvbuf(file, nullptr, _IONBF, 0);
    return {};
}

std::error_code OutputFile::Write(std::string_view bytes)
{
    if (std::fwrite(bytes.data(), 1, bytes.size(), m_file.get()) == bytes.size())
        return {};
    return LastError();
}

/// Some disks tell only now that they are full.
std::error_code OutputFile::Close()
{
    return std::fclose(m_file.release()) == 0 ? std::error_code() : LastError();
}

} // namespace palmtools
