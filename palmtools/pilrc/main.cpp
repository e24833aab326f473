#include "palmtools/pilrc/pilrc.h"

#include <iostream>

int main(int argc, char *argv[])
{
    return palmtools::RunPilrc({argv + 1, argv + argc}, std::cout, std::cerr);
}
