#include "palmtools/build_prc/build_prc.h"

#include <iostream>

int main(int argc, char *argv[])
{
    return palmtools::RunBuildPrc({argv + 1, argv + argc}, std::cout, std::cerr);
}
