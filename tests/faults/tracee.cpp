#include "faults/tracee.h"

#include <fcntl.h>
#include <sys/ptrace.h>
#include <sys/uio.h>
#include <sys/user.h>

#include <array>
#include <bit>
#include <cstring>
#include <fstream>
#include <string>

namespace faults {
namespace {

user_regs_struct Registers(pid_t pid)
{
    user_regs_struct registers = {};
    ptrace(PTRACE_GETREGS, pid, nullptr, &registers);
    return registers;
}

using Register = decltype(user_regs_struct::rdi);

constexpr Register user_regs_struct::*arguments[] = {&user_regs_struct::rdi, &user_regs_struct::rsi,
                                                     &user_regs_struct::rdx, &user_regs_struct::r10,
                                                     &user_regs_struct::r8,  &user_regs_struct::r9};

void Set(pid_t pid, Register user_regs_struct::*which, Register value)
{
    user_regs_struct registers = Registers(pid);
    registers.*which = value;
    ptrace(PTRACE_SETREGS, pid, nullptr, &registers);
}

} // namespace

long Tracee::CallNumber() const
{
    return static_cast<long>(Registers(m_pid).orig_rax);
}

std::uint64_t Tracee::Argument(int index) const
{
    return Registers(m_pid).*arguments[index];
}

void Tracee::SetCallNumber(long number)
{
    Set(m_pid, &user_regs_struct::orig_rax, static_cast<Register>(number));
}

void Tracee::SetArgument(int index, std::uint64_t value)
{
    Set(m_pid, arguments[index], value);
}

void Tracee::SkipWith(int error)
{
    SetCallNumber(-1);
    ReturnError(error);
}

void Tracee::ReturnError(int error)
{
    Set(m_pid, &user_regs_struct::rax, static_cast<Register>(-error));
}

std::optional<std::pair<std::uint64_t, std::uint64_t>> Tracee::FirstPart() const
{
    for (std::uint64_t i = 0; i < Argument(2); ++i) {
        iovec part = {};
        if (Read(Argument(1) + i * sizeof part, &part, sizeof part) && part.iov_len > 0)
            return std::pair{reinterpret_cast<std::uint64_t>(part.iov_base), part.iov_len};
    }
    return std::nullopt;
}

std::filesystem::path Tracee::Path(int folderArgument, int pathArgument) const
{
    const std::string path = ReadText(Argument(pathArgument));
    const std::string process = "/proc/" + std::to_string(m_pid);
    constexpr std::string_view self = "/proc/self/";
    if (path.starts_with(self))
        return process + "/" + path.substr(self.size());
    const bool fromCurrent =
        folderArgument < 0 || static_cast<int>(Argument(folderArgument)) == AT_FDCWD;
    const auto folder =
        std::filesystem::path(fromCurrent ? process + "/cwd" : Descriptor(folderArgument).string());
    // The link stays in the path: what it leads to need not have a name.
    return path.starts_with('/') ? std::filesystem::path(path) : folder / path;
}

std::filesystem::path Tracee::Descriptor(int argument) const
{
    return "/proc/" + std::to_string(m_pid) + "/fd/" +
           std::to_string(static_cast<int>(Argument(argument)));
}

bool Tracee::IsWritable(int descriptorArgument) const
{
    std::ifstream info("/proc/" + std::to_string(m_pid) + "/fdinfo/" +
                       std::to_string(static_cast<int>(Argument(descriptorArgument))));
    for (std::string word; info >> word;)
        if (int flags = 0; word == "flags:" && info >> std::oct >> flags)
            return (flags & O_ACCMODE) != O_RDONLY;
    return false;
}

bool Tracee::Read(std::uint64_t address, void *to, std::size_t size) const
{
    const iovec here = {to, size};
    const iovec there = {std::bit_cast<void *>(address), size};
    return process_vm_readv(m_pid, &here, 1, &there, 1, 0) == static_cast<ssize_t>(size);
}

std::string Tracee::ReadText(std::uint64_t address) const
{
    std::string text;
    for (char c = 0; Read(address + text.size(), &c, 1) && c != 0;)
        text += c;
    return text;
}

} // namespace faults
