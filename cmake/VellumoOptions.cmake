# What every target of the project is compiled with; targets link vellumo_options for it.
add_library(vellumo_options INTERFACE)
target_compile_features(vellumo_options INTERFACE cxx_std_20)
# What a later Qt calls outdated need have no successor in 6.4.
target_compile_definitions(vellumo_options INTERFACE QT_WARN_DEPRECATED_UP_TO=0x060400)
set(CMAKE_CXX_EXTENSIONS OFF)

if(MSVC)
    target_compile_options(vellumo_options INTERFACE /W4 /utf-8 /permissive-)
else()
    target_compile_options(vellumo_options INTERFACE
        -Wall -Wextra -Wpedantic -Wconversion -Wnon-virtual-dtor)
    # Where files are compiled together, one's local names shadow what another has, and to GCC a source
    # is a header, whose types should not build on what is in an unnamed namespace.
    set(together $<BOOL:$<TARGET_PROPERTY:UNITY_BUILD>>)
    target_compile_options(vellumo_options INTERFACE
        $<$<NOT:${together}>:-Wshadow>
        $<$<CXX_COMPILER_ID:GNU>:-Wunused-const-variable=1> # other than those of headers
        $<$<AND:${together},$<CXX_COMPILER_ID:GNU>>:-Wno-subobject-linkage>)
endif()

if(VELLUMO_WARNINGS_ARE_ERRORS)
    set(CMAKE_COMPILE_WARNING_AS_ERROR ON)
endif()

# Only the fuzz targets have the fuzzer's main(); all else merely tells it where it has been.
if(VELLUMO_FUZZ)
    target_compile_options(vellumo_options INTERFACE -fsanitize=fuzzer-no-link)
    target_link_options(vellumo_options INTERFACE -fsanitize=fuzzer-no-link)
endif()

if(VELLUMO_SANITIZE)
    target_compile_options(vellumo_options INTERFACE
        -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(vellumo_options INTERFACE -fsanitize=address,undefined)
endif()

# What tells a debugger where things are tells it without the folder of the build.
if(CMAKE_BUILD_TYPE STREQUAL "RelWithDebInfo" AND NOT MSVC AND NOT VELLUMO_SANITIZE)
    target_compile_options(vellumo_options INTERFACE
        -ffile-prefix-map=${CMAKE_SOURCE_DIR}=. -ffile-prefix-map=${CMAKE_BINARY_DIR}=build)
endif()

if(VELLUMO_HARDEN)
    include(Hardening)
endif()
