// Stands in for an external tool. Its arguments are orders: "print TEXT" and "complain TEXT" write
// to standard output and standard error, "write FILE TEXT" makes a file in the current folder,
// "accent" writes a letter of UTF-8 and "flood" 8 MB to standard error, "fail STATUS" ends it,
// "crash" kills it, "hang" keeps it from ending. All arguments are first written to arguments.txt.
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <string>
#include <thread>
#include <vector>

#ifdef _WIN32
#include <fcntl.h>
#include <io.h>
#endif

namespace {

/// Lines end as their orders say.
void WriteBytesAsTheyAre()
{
#ifdef _WIN32
    _setmode(_fileno(stdout), _O_BINARY);
    _setmode(_fileno(stderr), _O_BINARY);
#endif
}

void Crash()
{
#ifdef _WIN32
    std::_Exit(static_cast<int>(0xC0000005)); // what a fault of memory ends with
#else
    std::raise(SIGKILL);
#endif
}

} // namespace

int main(int argc, char *argv[])
{
    WriteBytesAsTheyAre();
    const std::vector<std::string> orders(argv + 1, argv + argc);
    std::ofstream record("arguments.txt", std::ios::binary);
    for (const std::string &order : orders)
        record << order << '\n';
    record.close();

    for (size_t i = 0; i < orders.size(); ++i) {
        if (orders[i] == "print")
            std::cout << orders[++i] << std::endl;
        else if (orders[i] == "complain")
            std::cerr << orders[++i] << std::endl;
        else if (orders[i] == "accent")
            std::cerr << "caf\xC3\xA9" << std::endl;
        else if (orders[i] == "fail")
            return std::atoi(orders[++i].c_str());
        else if (orders[i] == "crash")
            Crash();
        else if (orders[i] == "flood")
            std::cerr << std::string(8'000'000, 'x');
        else if (orders[i] == "hang")
            std::this_thread::sleep_for(std::chrono::hours(1));
        else if (orders[i] == "write") {
            std::ofstream(orders[i + 1], std::ios::binary) << orders[i + 2];
            i += 2;
        }
    }
    return 0;
}
