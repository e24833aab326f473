#include "palmtools/common/arguments.h"

#include <filesystem>
#include <memory>

#include <windows.h>

#include <shellapi.h>

namespace palmtools {

std::vector<std::string> ArgumentsOf(int, char *[])
{
    // Those of main() are in the system's code page, which has not got every character of a name,
    // and with files in the place of what looks like a pattern.
    int count = 0;
    const std::unique_ptr<LPWSTR, decltype(&LocalFree)> words(
        CommandLineToArgvW(GetCommandLineW(), &count), LocalFree);
    std::vector<std::string> arguments;
    for (int i = 1; i < count; ++i)
        arguments.push_back(std::filesystem::path(words.get()[i]).string());
    return arguments;
}

} // namespace palmtools
