#pragma once

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

namespace palmtools {

inline std::string Repeated(std::string_view text, std::size_t times)
{
    std::string repeated;
    for (std::size_t i = 0; i < times; ++i)
        repeated += text;
    return repeated;
}

inline std::string Quoted(std::string_view text)
{
    return std::string("\"").append(text).append("\"");
}

/// Bytes from pairs of hexadecimal digits; blanks between them have no meaning.
inline std::string FromHex(std::string_view digits)
{
    std::string bytes;
    std::string pair;
    for (const char c : digits) {
        if (c != ' ')
            pair += c;
        if (pair.size() == 2) {
            bytes += static_cast<char>(std::stoi(pair, nullptr, 16));
            pair.clear();
        }
    }
    return bytes;
}

inline std::string ContentOf(const std::filesystem::path &path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

inline void WriteContent(const std::filesystem::path &path, std::string_view bytes)
{
    std::ofstream(path, std::ios::binary) << bytes;
}

/// A new empty folder that is the current one as long as this lives.
class TemporaryFolder
{
public:
    TemporaryFolder() : m_before(std::filesystem::current_path())
    {
        std::random_device random;
        m_path = std::filesystem::temp_directory_path() /
                 ("palmtools-test-" + std::to_string(random()) + std::to_string(random()));
        std::filesystem::create_directory(m_path);
        std::filesystem::current_path(m_path);
    }
    TemporaryFolder(const TemporaryFolder &) = delete;
    TemporaryFolder &operator=(const TemporaryFolder &) = delete;
    ~TemporaryFolder()
    {
        std::filesystem::current_path(m_before);
        std::filesystem::remove_all(m_path);
    }

    std::filesystem::path path() const { return m_path; }

    /// The names in the folder, in order, with a blank after each.
    std::string Names() const
    {
        std::vector<std::string> names;
        for (const auto &entry : std::filesystem::directory_iterator(m_path))
            names.push_back(entry.path().filename().string());
        std::sort(names.begin(), names.end());
        std::string listed;
        for (const std::string &name : names)
            listed += name + " ";
        return listed;
    }

private:
    std::filesystem::path m_before, m_path;
};

struct ToolRun {
    int status;
    std::string out, err;
};

using Tool = int (*)(const std::vector<std::string> &, std::ostream &, std::ostream &);

inline ToolRun RunTool(Tool tool, const std::vector<std::string> &arguments)
{
    std::ostringstream out, err;
    const int status = tool(arguments, out, err);
    return {status, out.str(), err.str()};
}

} // namespace palmtools
