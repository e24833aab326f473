#include "support/run_tests.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <iostream>
#include <span>
#include <string>

namespace {

/// The names of the tests in NAME_test.cpp, a colon after each.
std::string TestsOf(const std::string &name)
{
    std::string names;
    const testing::UnitTest &tests = *testing::UnitTest::GetInstance();
    for (int i = 0; i < tests.total_test_suite_count(); ++i) {
        const testing::TestSuite &suite = *tests.GetTestSuite(i);
        for (int j = 0; j < suite.total_test_count(); ++j) {
            const testing::TestInfo &test = *suite.GetTestInfo(j);
            if (std::filesystem::path(test.file()).filename() == name + "_test.cpp")
                names += std::string(suite.name()) + '.' + test.name() + ':';
        }
    }
    return names;
}

int Missed(const std::string &what)
{
    std::cerr << "There is no test of " << what << ".\n";
    return 1;
}

} // namespace

int RunTests(int argc, char *argv[])
{
    testing::InitGoogleTest(&argc, argv);
    std::string &filter = testing::GTEST_FLAG(filter);
    const std::size_t leftOut = std::min(filter.find('-'), filter.size());
    const std::string named = filter.substr(0, leftOut);
    if (filter.empty() || (!named.empty() && named != "*"))
        return RUN_ALL_TESTS();

    std::string names;
    for (const std::string name : std::span(argv + 1, argv + argc)) {
        const std::string tests = TestsOf(name);
        if (tests.empty())
            return Missed(name + "_test.cpp");
        names += tests;
    }
    if (!names.empty())
        filter = names + filter.substr(leftOut);
    return RUN_ALL_TESTS();
}
