#pragma once

#include <sys/types.h>

#include <cstdint>
#include <filesystem>
#include <optional>
#include <utility>

namespace faults {

/// Tells one file from another, whatever its names.
using FileId = std::pair<dev_t, ino_t>;

/// A traced process that stands before a system call, or has just returned from one.
class Tracee
{
public:
    explicit Tracee(pid_t pid) : m_pid(pid) {}

    long CallNumber() const;
    std::uint64_t Argument(int index) const;

    void SetCallNumber(long number);
    void SetArgument(int index, std::uint64_t value);
    /// The call is not made and gives this error.
    void SkipWith(int error);
    /// The call was made and gives this error all the same.
    void ReturnError(int error);

    /// The first part of a writev() or pwritev() that is not empty: address and size.
    std::optional<std::pair<std::uint64_t, std::uint64_t>> FirstPart() const;

    /// The path in two arguments, the folder's descriptor being optional (-1), as this process can
    /// use it: the tracee's current folder and /proc/self are told by its number.
    std::filesystem::path Path(int folderArgument, int pathArgument) const;
    /// The path under which this process finds an open file of the tracee.
    std::filesystem::path Descriptor(int argument) const;
    /// Whether a descriptor was opened so that it can be written to.
    bool IsWritable(int descriptorArgument) const;

private:
    bool Read(std::uint64_t address, void *to, std::size_t size) const;
    std::string ReadText(std::uint64_t address) const;

    pid_t m_pid;
};

} // namespace faults
