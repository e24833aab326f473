#include "cli/vellumo.h"
#include "platform/terminal.h"

#include <QCoreApplication>

#include <iostream>

using namespace vellumo;

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    return RunVellumo(application.arguments().sliced(1),
                      {.in = std::cin,
                       .out = std::cout,
                       .err = std::cerr,
                       .showProgress = StandardErrorIsTerminal()});
}
