#include "palmtools/common/files.h"

#include <cerrno>
#include <cstdio>
#include <memory>
#include <string>
#include <system_error>

namespace palmtools {
namespace {

struct FileCloser {
    void operator()(std::FILE *file) const { std::fclose(file); }
};
using File = std::unique_ptr<std::FILE, FileCloser>;

std::string Reason(int code)
{
    return std::generic_category().message(code);
}

/// A file that did not exist before, open for writing.
struct NewFile {
    std::filesystem::path path;
    File file;
};

/// The name does not contain that of the target, which may already be as long as names can be.
Result<NewFile> CreateFileBeside(const std::filesystem::path &target)
{
    constexpr int mostAttempts = 1000;
    for (int attempt = 0; attempt < mostAttempts; ++attempt) {
        std::filesystem::path path = target;
        path.replace_filename("palmtools-" + std::to_string(attempt) + ".new");
        errno = 0;
        // "x" fails where the file exists, so two runs never write into the same one.
        File file(std::fopen(path.string().c_str(), "wbx"));
        if (file)
            return NewFile{std::move(path), std::move(file)};
        if (errno != EEXIST)
            return Error{"cannot be written: " + Reason(errno), target.string()};
    }
    return Error{"cannot be written: the folder is full of unfinished files", target.string()};
}

/// Writes and closes; the close counts, since some disks tell only then that they are full.
bool WriteAll(File file, std::string_view bytes)
{
    const bool written = std::fwrite(bytes.data(), 1, bytes.size(), file.get()) == bytes.size() &&
                         std::fflush(file.get()) == 0;
    const int reason = errno;
    const bool closed = std::fclose(file.release()) == 0;
    if (!written)
        errno = reason;
    return written && closed;
}

} // namespace

Result<Bytes> ReadFile(const std::filesystem::path &path)
{
    errno = 0;
    const File file(std::fopen(path.string().c_str(), "rb"));
    if (!file)
        return Error{"cannot be read: " + Reason(errno), path.string()};
    // Not by its size, which a pipe or a device does not have.
    constexpr std::size_t chunk = 1 << 16;
    Bytes bytes;
    for (std::size_t got = chunk; got == chunk;) {
        const std::size_t size = bytes.size();
        bytes.resize(size + chunk);
        got = std::fread(bytes.data() + size, 1, chunk, file.get());
        bytes.resize(size + got);
    }
    if (std::ferror(file.get()))
        return Error{"cannot be read: " + Reason(errno), path.string()};
    return bytes;
}

std::optional<Error> ReplaceFile(const std::filesystem::path &target, std::string_view bytes)
{
    auto created = CreateFileBeside(target);
    if (!created)
        return created.error();

    errno = 0;
    std::string reason;
    std::error_code failure;
    if (!WriteAll(std::move(created->file), bytes)) {
        reason = Reason(errno);
    } else {
        std::filesystem::rename(created->path, target, failure);
        if (!failure)
            return std::nullopt;
        reason = failure.message();
    }
    std::filesystem::remove(created->path, failure);
    return Error{"cannot be written: " + reason, target.string()};
}

} // namespace palmtools
