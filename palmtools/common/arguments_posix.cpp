#include "palmtools/common/arguments.h"

namespace palmtools {

std::vector<std::string> ArgumentsOf(int argc, char *argv[])
{
    return {argv + 1, argv + argc};
}

} // namespace palmtools
