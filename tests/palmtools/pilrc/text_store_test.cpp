#include "palmtools/pilrc/text_store.h"

#include <gtest/gtest.h>

#include <utility>
#include <vector>

namespace palmtools {
namespace {

TEST(TextStore, KeepsTextsOfAnySizeWhereTheyAre)
{
    TextStore store;
    std::vector<std::pair<std::string, std::string_view>> texts;
    for (const std::size_t size : {0u, 1u, 65535u, 1u, 65536u, 2u, 65537u, 200000u, 40000u, 40000u})
        for (char c = 'a'; c <= 'e'; ++c)
            texts.emplace_back(std::string(size, c), "");
    for (auto &[text, kept] : texts)
        kept = store.Keep(text);
    for (const auto &[text, kept] : texts)
        EXPECT_EQ(kept, text);
}

} // namespace
} // namespace palmtools
