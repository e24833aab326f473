#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace palmtools {

/// The words after the program's name; in UTF-8 where the platform's are characters, else as they
/// are.
std::vector<std::string> ArgumentsOf(int argc, char *argv[]);

/// The path that such a word names. The library's own conversion would take it for the locale's.
std::filesystem::path PathOf(std::string_view word);

} // namespace palmtools
