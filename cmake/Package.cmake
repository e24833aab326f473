# What cpack makes of an installation: a package for Debian and an archive to unpack anywhere. What
# each has besides comes from packaging/finish_package.cmake.
set(CPACK_GENERATOR DEB TGZ)
set(CPACK_PACKAGE_NAME vellumo-designer)
set(CPACK_PACKAGE_CONTACT "The Vellumo Designer developers <developers@vellumo.example>")
set(CPACK_PACKAGE_HOMEPAGE_URL ${VELLUMO_SITE})
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "designer for data-collection forms on Palm OS handhelds")
set(CPACK_PACKAGE_DESCRIPTION_FILE ${CMAKE_SOURCE_DIR}/packaging/description.txt)
set(CPACK_RESOURCE_FILE_LICENSE ${CMAKE_SOURCE_DIR}/LICENSE)
set(CPACK_STRIP_FILES ON)
set(CPACK_VERBATIM_VARIABLES ON)
set(CPACK_PRE_BUILD_SCRIPTS ${CMAKE_SOURCE_DIR}/packaging/finish_package.cmake)
set(CPACK_POST_BUILD_SCRIPTS ${CMAKE_SOURCE_DIR}/packaging/repack.cmake)
set(CPACK_VELLUMO_PACKAGING ${CMAKE_SOURCE_DIR}/packaging)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_SECTION misc)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_CONTROL_EXTRA ${CMAKE_SOURCE_DIR}/packaging/debian/postrm)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
# All rules of installation belong to this component. Named, it has a list of its own: that of
# `cmake --install`, which may be root's, stays as it is.
set(CPACK_INSTALL_CMAKE_PROJECTS ${CMAKE_BINARY_DIR} ${PROJECT_NAME} Unspecified /)
include(CPack)
