# Adds to vellumo_options what makes a fault of memory end a program before it can be made use of.
# Debug builds go without, as the checks of the library's functions need optimisation.
include(CheckCXXCompilerFlag)
include(CheckCXXSourceCompiles)
include(CheckLinkerFlag)
include(CheckPIESupported)

# The third level knows more sizes than the second, where compiler and library have it.
function(find_fortify_level result)
    set(CMAKE_REQUIRED_FLAGS "-O2 -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=3")
    check_cxx_source_compiles([[
        #include <cstdio>
        #if !defined(__USE_FORTIFY_LEVEL) || __USE_FORTIFY_LEVEL < 3
        #error
        #endif
        int main() {}
        ]] VELLUMO_HAS_FORTIFY_3)
    if(VELLUMO_HAS_FORTIFY_3)
        set(${result} 3 PARENT_SCOPE)
    else()
        set(${result} 2 PARENT_SCOPE)
    endif()
endfunction()

# Addresses that nobody can foretell; Qt asks for -fPIC anyway.
check_pie_supported(LANGUAGES CXX)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)

find_fortify_level(level)
# Some compilers bring a level of their own, which would be a warning.
target_compile_options(vellumo_options INTERFACE -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=${level})
target_compile_definitions(vellumo_options INTERFACE _GLIBCXX_ASSERTIONS)

check_cxx_compiler_flag(-fstack-protector-strong VELLUMO_HAS_STACK_PROTECTOR)
if(VELLUMO_HAS_STACK_PROTECTOR)
    target_compile_options(vellumo_options INTERFACE -fstack-protector-strong)
    # Where the C library has not got what both call, the linker brings it for this option.
    target_link_options(vellumo_options INTERFACE -fstack-protector-strong)
endif()

# All addresses of other libraries are found at the start, and are then read-only.
check_linker_flag(CXX -Wl,-z,relro,-z,now VELLUMO_HAS_FULL_RELRO)
if(VELLUMO_HAS_FULL_RELRO)
    target_link_options(vellumo_options INTERFACE -Wl,-z,relro,-z,now)
endif()
