#include "palmtools/common/arguments.h"

#include "palmtools/support.h"

#include <gtest/gtest.h>

namespace palmtools {
namespace {

TEST(Arguments, NameFilesInEveryAlphabet)
{
    const TemporaryFolder folder;
    for (const char8_t *name : {u8"plain.rcp", u8"Größe.rcp", u8"Жук.rcp", u8"form 你好.rcp"}) {
        const std::u8string text(name);
        const std::string word(text.begin(), text.end());
        WriteContent(std::filesystem::path(text), word);
        EXPECT_EQ(ContentOf(PathOf(word)), word);
    }
}

#ifndef _WIN32 // where they are those of the process

TEST(Arguments, AreTheWordsAfterTheName)
{
    char program[] = "pilrc", option[] = "-ro", name[] = "\xFF.rcp";
    char *words[] = {program, option, name, nullptr};
    EXPECT_EQ(ArgumentsOf(3, words), (std::vector<std::string>{"-ro", "\xFF.rcp"}));
    EXPECT_TRUE(ArgumentsOf(1, words).empty());
}

#endif

} // namespace
} // namespace palmtools
