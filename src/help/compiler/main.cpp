#include "help/compiler/make_help.h"

#include <QCoreApplication>

#include <iostream>

using namespace vellumo;

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    return MakeHelp(application.arguments().sliced(1), std::cerr);
}
