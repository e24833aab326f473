#include "cli/vellumo.h"

#include <QCoreApplication>

#include <iostream>

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    return RunVellumo(application.arguments().sliced(1), {std::cout, std::cerr});
}
