#pragma once

#include <sys/resource.h>

#include <csignal>

/// While it lives, no file can grow beyond a size, as on a disk that is full.
class FullDisk
{
public:
    explicit FullDisk(rlim_t size)
    {
        std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit limit = {size, m_before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FullDisk() { setrlimit(RLIMIT_FSIZE, &m_before); }
    FullDisk(const FullDisk &) = delete;
    FullDisk &operator=(const FullDisk &) = delete;

private:
    rlimit m_before = {};
};
