#include "palmtools/build_prc/palm_time.h"

#include "palmtools/build_prc/local_zone.h"

#include <gtest/gtest.h>

namespace palmtools {
namespace {

constexpr std::uint32_t unixEpoch = 2082844800;

TEST(PalmTime, CountsFrom1904OnTheLocalClock)
{
    const struct {
        const char *what, *zone;
        std::time_t moment;
        std::int64_t offset; ///< of the local zone in seconds
    } rows[] = {
        {"universal time", "UTC0", 0, 0},
        {"a moment of our days", "UTC0", 1700000000, 0},
        {"east", "EAST-5:30", 1700000000, 19800},
        {"west", "WEST8", 1700000000, -28800},
        {"the day before", "WEST8", 0, -28800},
        {"winter", "CET-1CEST,M3.5.0,M10.5.0/3", 1700000000, 3600},
        {"summer", "CET-1CEST,M3.5.0,M10.5.0/3", 1690000000, 7200},
        {"29 February", "UTC0", 1709164800, 0},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.what);
        const LocalZone zone(row.zone);
        EXPECT_EQ(PalmTimeOf(row.moment),
                  static_cast<std::uint32_t>(row.moment + row.offset + unixEpoch));
    }
}

TEST(PalmTime, WrapsIn2040)
{
    const LocalZone zone("UTC0");
    const auto last = static_cast<std::time_t>(0xFFFFFFFF - unixEpoch);
    EXPECT_EQ(PalmTimeOf(last), 0xFFFFFFFFu);
    EXPECT_EQ(PalmTimeOf(last + 1), 0u);
}

} // namespace
} // namespace palmtools
