#include "palmtools/common/program.h"

#include <csignal>
#include <iostream>

namespace palmtools {

int RunProgram(Tool tool, int argc, char *argv[])
{
#ifdef SIGXFSZ
    std::signal(SIGXFSZ, SIG_IGN);
#endif
    return tool({argv + 1, argv + argc}, std::cout, std::cerr);
}

} // namespace palmtools
