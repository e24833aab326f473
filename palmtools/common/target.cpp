#include "palmtools/common/target.h"

#include <charconv>
#include <string>
#include <system_error>

#ifndef _WIN32
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace palmtools {
namespace {

namespace fs = std::filesystem;

constexpr int mostLinks = 40; ///< as many as the system follows

fs::path FolderOf(const fs::path &path)
{
    return path.has_parent_path() ? path.parent_path() : fs::path(".");
}

#ifdef _WIN32

bool MayFollow(const fs::path &)
{
    return true;
}

#else

/// Whether the user cannot but trust this one.
bool IsTrusted(uid_t owner)
{
    return owner == 0 || owner == geteuid();
}

bool MayFollow(const fs::path &link)
{
    struct stat ofLink = {}, ofFolder = {};
    if (lstat(link.c_str(), &ofLink) != 0 || stat(FolderOf(link).c_str(), &ofFolder) != 0)
        return false;
    const bool isShared = (ofFolder.st_mode & (S_IWGRP | S_IWOTH)) != 0;
    return IsTrusted(ofLink.st_uid) || (!isShared && IsTrusted(ofFolder.st_uid));
}

#endif

Error Refusal(const fs::path &path, const std::string &reason)
{
    return {"cannot be written: " + reason, path.string()};
}

/// What cannot be looked at is no link here; writing will tell why.
bool IsLink(const fs::path &path)
{
    std::error_code ignored;
    return fs::symlink_status(path, ignored).type() == fs::file_type::symlink;
}

/// Whether a link leads to something, but not by the path that it names. Only the system's own
/// links do; anybody's could be made to look so.
bool IsNameless(const fs::path &link, const fs::path &named)
{
    std::error_code ignored;
    const fs::path folder = fs::canonical(FolderOf(link), ignored);
    return folder.native().starts_with(fs::path("/proc/").native()) && fs::exists(link, ignored) &&
           !fs::exists(fs::symlink_status(named, ignored));
}

/// What is open there may have been opened to go on behind other bytes, which a new file would
/// lose.
int OwnDescriptorOf(const fs::path &link)
{
    std::error_code ignored;
    if (!fs::equivalent(FolderOf(link), "/dev/fd", ignored))
        return -1;
    int number = -1;
    const std::string name = link.filename().string();
    std::from_chars(name.data(), name.data() + name.size(), number);
    return number;
}

} // namespace

Result<Target> TargetOf(const fs::path &path)
{
    Target target = {path};
    for (int links = 0; IsLink(target.path); ++links) {
        if (links == mostLinks)
            return Refusal(path, "too many links follow each other");
        if (const int own = OwnDescriptorOf(target.path); own >= 0)
            return Target{.path = target.path, .ownDescriptor = own};
        if (!MayFollow(target.path))
            return Refusal(path, "the link is neither yours nor root's");
        std::error_code failure;
        const fs::path named = FolderOf(target.path) / fs::read_symlink(target.path, failure);
        if (failure)
            return Refusal(path, failure.message());
        if (IsNameless(target.path, named))
            return Target{.path = target.path, .isNameless = true};
        target.path = named;
    }
    return target;
}

} // namespace palmtools
