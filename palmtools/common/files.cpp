#include "palmtools/common/files.h"

#include "palmtools/common/held_signals.h"
#include "palmtools/common/target.h"
#include "palmtools/common/unfinished_file.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <memory>
#include <system_error>

namespace palmtools {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t chunk = 1 << 16;

struct FileCloser {
    void operator()(std::FILE *file) const { std::fclose(file); }
};
using File = std::unique_ptr<std::FILE, FileCloser>;

Error ReadError(const std::string &reason, const fs::path &path)
{
    return {"cannot be read: " + reason, path.string()};
}

std::string Reason(int code)
{
    return std::generic_category().message(code);
}

/// Writes part by part, so that a signal need not wait for all of them.
std::error_code WriteWhileNoneWaits(UnfinishedFile &file, std::string_view bytes,
                                    const HeldSignals &signals)
{
    std::error_code failure;
    while (!bytes.empty() && !failure && !signals.OneWaits()) {
        failure = file.Write(bytes.substr(0, chunk));
        bytes.remove_prefix(std::min(chunk, bytes.size()));
    }
    return failure;
}

std::error_code WriteAnew(const fs::path &target, std::string_view bytes)
{
    const HeldSignals signals;
    UnfinishedFile file(target);
    if (const auto failure = file.Create())
        return failure;
    if (const auto failure = WriteWhileNoneWaits(file, bytes, signals))
        return failure;
    if (const auto failure = file.Close())
        return failure;
    if (signals.OneWaits())
        return std::make_error_code(std::errc::interrupted);
    return file.Finish();
}

std::error_code Open(OutputFile &file, const Target &target)
{
    if (target.ownDescriptor >= 0)
        return file.OpenOwn(target.ownDescriptor);
    return file.OpenExisting(target.path, target.isNameless);
}

std::error_code WriteInto(const Target &target, std::string_view bytes)
{
    OutputFile file;
    if (const auto failure = Open(file, target))
        return failure;
    if (const auto failure = file.Write(bytes))
        return failure;
    if (const auto failure = file.Sync())
        return failure;
    return file.Close();
}

bool IsFolder(const Target &target)
{
    std::error_code ignored; // whoever writes meets it again
    return fs::is_directory(target.path, ignored);
}

/// A descriptor may be open to a file, but has its place in it.
bool IsWrittenInto(const Target &target)
{
    std::error_code ignored;
    return target.ownDescriptor >= 0 || fs::is_other(target.path, ignored);
}

std::error_code Write(const Target &target, std::string_view bytes)
{
    if (IsFolder(target))
        return std::make_error_code(std::errc::is_a_directory);
    return IsWrittenInto(target) ? WriteInto(target, bytes) : WriteAnew(target.path, bytes);
}

} // namespace

Result<Bytes> ReadFile(const fs::path &path)
{
    errno = 0;
    const File file(OpenFile(path, "rb"));
    if (!file)
        return ReadError(Reason(errno), path);
    // Not by its size, which a pipe or a device does not have.
    Bytes bytes;
    for (std::size_t got = chunk; got == chunk && bytes.size() <= largestFile;) {
        const std::size_t size = bytes.size();
        bytes.resize(size + chunk);
        got = std::fread(bytes.data() + size, 1, chunk, file.get());
        bytes.resize(size + got);
    }
    if (std::ferror(file.get()))
        return ReadError(Reason(errno), path);
    if (bytes.size() > largestFile)
        return ReadError("it is larger than 64 MiB", path);
    return bytes;
}

std::optional<Error> ReplaceFile(const fs::path &path, std::string_view bytes)
{
    const auto target = TargetOf(path);
    if (!target)
        return target.error();
    if (const auto failure = Write(*target, bytes))
        return Error{"cannot be written: " + failure.message(), path.string()};
    return std::nullopt;
}

bool IsWrittenInto(const fs::path &path)
{
    const auto target = TargetOf(path);
    return target && !IsFolder(*target) && IsWrittenInto(*target);
}

} // namespace palmtools
