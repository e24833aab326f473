#include "palmtools/build_prc/build_prc.h"
#include "palmtools/common/program.h"

int main(int argc, char *argv[])
{
    return palmtools::RunProgram(palmtools::RunBuildPrc, argc, argv);
}
