#include "cli/vellumo.h"
#include "platform/arguments.h"
#include "platform/signals.h"
#include "platform/terminal.h"
#include "platform/toolkit_words.h"

#include <QCoreApplication>

#include <iostream>

using namespace vellumo;

int main(int argc, char *argv[])
{
    TakeStreamsAsBytes();
    KeepToolkitQuiet("vellumo", "The program cannot start", 0);
    // Knows the program's folder, and the words as text.
    const QCoreApplication application(argc, argv);
    const SignalWatch watch(BrokenPipe::Ends, EndBySignal);
    return RunVellumo(application.arguments().sliced(1),
                      {.in = std::cin,
                       .out = std::cout,
                       .err = std::cerr,
                       .showProgress = StandardErrorIsTerminal()},
                      CheckArguments(argc, argv));
}
