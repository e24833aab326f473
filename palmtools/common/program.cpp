#include "palmtools/common/program.h"

#include "palmtools/common/arguments.h"

#include <csignal>
#include <iostream>

namespace palmtools {

int RunProgram(Tool tool, int argc, char *argv[])
{
#ifdef SIGXFSZ
    std::signal(SIGXFSZ, SIG_IGN);
#endif
    return tool(ArgumentsOf(argc, argv), std::cout, std::cerr);
}

} // namespace palmtools
