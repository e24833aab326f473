# What the system has to bring. All that is missing is told in one go, each in a sentence: what it is,
# how Debian calls it, and what it is for. README.md has the names of other systems.
function(vellumo_missing name package purpose)
    message(SEND_ERROR "${name} (in Debian the package ${package}) is missing: ${purpose}.")
endfunction()

# vellumo_library(VARIABLE header library package purpose): sets VARIABLE_INCLUDE_DIR and
# VARIABLE_LIBRARY.
function(vellumo_library variable header library package purpose)
    find_path(${variable}_INCLUDE_DIR ${header})
    find_library(${variable}_LIBRARY ${library})
    if(NOT ${variable}_INCLUDE_DIR OR NOT ${variable}_LIBRARY)
        vellumo_missing(lib${library} ${package} ${purpose})
    endif()
endfunction()

find_package(Qt6 6.4 QUIET COMPONENTS Core Gui Widgets Network)
if(NOT Qt6_FOUND)
    vellumo_missing("Qt 6.4 or later" qt6-base-dev "everything but the two tools stands on it")
    return() # its commands configure the rest
endif()
find_package(Qt6 6.4 QUIET COMPONENTS Svg)
if(NOT TARGET Qt6::Svg)
    vellumo_missing(Qt6Svg qt6-svg-dev "the windows draw their pictures with it")
endif()
find_package(EXPAT QUIET)
if(NOT EXPAT_FOUND)
    vellumo_missing(expat libexpat1-dev "projects are read with it")
endif()
if(VELLUMO_TESTS)
    find_package(GTest QUIET)
    find_package(Qt6 6.4 QUIET COMPONENTS Test)
    if(NOT GTest_FOUND)
        vellumo_missing(GoogleTest libgtest-dev "the tests are written with it; -DVELLUMO_TESTS=OFF goes without")
    endif()
    if(NOT TARGET Qt6::Test)
        vellumo_missing(Qt6Test qt6-base-dev "the tests of the windows use it; -DVELLUMO_TESTS=OFF goes without")
    endif()
endif()
