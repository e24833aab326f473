// careless HOW TARGET: writes a file as programs should not, so that the judge has something to
// find.

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <csignal>
#include <cstdio>
#include <string>

namespace {

const std::string text(8192, 'x');

bool WriteOnce(const std::string &path)
{
    const int file = open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0666);
    const bool written = write(file, text.data(), text.size()) >= 0;
    return close(file) == 0 && written;
}

bool WriteWhole(int file)
{
    for (std::size_t done = 0; done < text.size();) {
        const ssize_t more = write(file, text.data() + done, text.size() - done);
        if (more <= 0)
            return false;
        done += static_cast<std::size_t>(more);
    }
    return true;
}

/// As it should be, but for what is asked to be left out.
bool WriteBeside(const std::string &target, bool syncs, bool listens, bool tidies)
{
    const std::string path = target + ".new";
    const int file = open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0666);
    const bool written = WriteWhole(file);
    const bool synced = !syncs || fsync(file) == 0 || !listens;
    const bool closed = close(file) == 0;
    if (written && synced && closed && rename(path.c_str(), target.c_str()) == 0)
        return true;
    if (tidies)
        unlink(path.c_str());
    return false;
}

} // namespace

int main(int argc, char *argv[])
{
    const std::string how = argc == 3 ? argv[1] : "";
    sigset_t ending;
    sigemptyset(&ending);
    sigaddset(&ending, SIGTERM);
    if (how != "in_place")
        sigprocmask(SIG_BLOCK, &ending, nullptr);
    bool done = false;
    if (how == "in_place")
        done = WriteOnce(argv[2]);
    else if (how == "unsynced")
        done = WriteBeside(argv[2], false, true, true);
    else if (how == "deaf")
        done = WriteBeside(argv[2], true, false, true);
    else if (how == "untidy")
        done = WriteBeside(argv[2], true, true, false);
    else if (how == "careful" || how == "silent")
        done = WriteBeside(argv[2], true, true, true);
    if (!done && how != "silent")
        std::fputs("careless: not written\n", stderr);
    return done ? 0 : 1;
}
