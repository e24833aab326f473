#pragma once

#include <cstdlib>
#include <ctime>
#include <string>

namespace palmtools {

/// The local zone while it lives, in the form that POSIX gives to the variable TZ.
class LocalZone
{
public:
    explicit LocalZone(const std::string &zone)
    {
        if (const char *before = std::getenv("TZ"))
            m_before = before;
        Set(zone);
    }
    LocalZone(const LocalZone &) = delete;
    LocalZone &operator=(const LocalZone &) = delete;
    ~LocalZone() { Set(m_before); }

private:
    static void Set(const std::string &zone)
    {
#ifdef _WIN32
        _putenv_s("TZ", zone.c_str());
        _tzset();
#else
        if (zone.empty())
            unsetenv("TZ");
        else
            setenv("TZ", zone.c_str(), 1);
        tzset();
#endif
    }

    std::string m_before;
};

} // namespace palmtools
