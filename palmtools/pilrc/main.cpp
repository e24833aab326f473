#include "palmtools/common/program.h"
#include "palmtools/pilrc/pilrc.h"

int main(int argc, char *argv[])
{
    return palmtools::RunProgram(palmtools::RunPilrc, argc, argv);
}
