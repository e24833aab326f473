// NAME_replay FILE|FOLDER...: runs a fuzz target once on every file, in the place of the fuzzer.

#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <string>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size);

namespace {

using Paths = std::set<std::filesystem::path>;

void AddFiles(Paths &files, const std::filesystem::path &path)
{
    if (!std::filesystem::is_directory(path)) {
        files.insert(path);
        return;
    }
    for (const auto &entry : std::filesystem::recursive_directory_iterator(path))
        if (entry.is_regular_file())
            files.insert(entry.path());
}

bool Replay(const std::filesystem::path &path)
{
    std::ifstream file(path, std::ios::binary);
    if (!file)
        return false;
    // Exactly as large as the file, so that a sanitizer sees a step beyond its end.
    const std::string bytes{std::istreambuf_iterator<char>(file), {}};
    const std::vector<std::uint8_t> data(bytes.begin(), bytes.end());
    LLVMFuzzerTestOneInput(data.data(), data.size());
    return true;
}

} // namespace

int main(int argc, char *argv[])
{
    Paths files;
    for (int i = 1; i < argc; ++i)
        AddFiles(files, argv[i]);
    for (const auto &file : files) {
        // Told first, so that it is known where a target ends the program.
        std::printf("%s\n", file.c_str());
        std::fflush(stdout);
        if (!Replay(file)) {
            std::printf("It cannot be read.\n");
            return 1;
        }
    }
    std::printf("%zu files replayed\n", files.size());
    return files.empty() ? 1 : 0;
}
