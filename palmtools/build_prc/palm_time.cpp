#include "palmtools/build_prc/palm_time.h"

#include <chrono>

namespace palmtools {
namespace {

std::tm LocalTime(std::time_t moment)
{
    std::tm local{};
#ifdef _WIN32
    localtime_s(&local, &moment);
#else
    localtime_r(&moment, &local);
#endif
    return local;
}

} // namespace

std::uint32_t PalmTimeOf(std::time_t moment)
{
    // The handheld knows no zones, so its clock and this one are taken for the same.
    using namespace std::chrono;
    constexpr sys_days epoch = 1904y / January / 1;

    const std::tm local = LocalTime(moment);
    const sys_days day = year(local.tm_year + 1900) / (local.tm_mon + 1) / local.tm_mday;
    const seconds sinceEpoch =
        day - epoch + hours(local.tm_hour) + minutes(local.tm_min) + seconds(local.tm_sec);
    return static_cast<std::uint32_t>(sinceEpoch.count());
}

} // namespace palmtools
