#include "platform/terminal.h"

#include <cstdio>

#ifdef _WIN32
#include <fcntl.h>
#include <io.h>
#else
#include <unistd.h>
#endif

namespace vellumo {

#ifdef _WIN32

bool StandardErrorIsTerminal()
{
    return _isatty(_fileno(stderr)) != 0;
}

void TakeStreamsAsBytes()
{
    _setmode(_fileno(stdin), _O_BINARY);
    _setmode(_fileno(stdout), _O_BINARY);
}

#else

bool StandardErrorIsTerminal()
{
    return isatty(fileno(stderr)) != 0;
}

void TakeStreamsAsBytes() {}

#endif

} // namespace vellumo
