# Run by cpack over the files that it is about to pack: gives them the form that their system asks for.
cmake_minimum_required(VERSION 3.25)
set(root ${CPACK_TEMPORARY_INSTALL_DIRECTORY})

# put(FOLDER FILES...): readable by everybody, whoever packs.
function(put folder)
    file(COPY ${ARGN} DESTINATION ${folder}
        FILE_PERMISSIONS OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)
endfunction()

if(CPACK_GENERATOR STREQUAL "DEB")
    # Debian has the licence in a file of its own form, and knows changes and pages compressed.
    set(share ${root}${CPACK_PACKAGING_INSTALL_PREFIX}/share)
    set(documents ${share}/doc/${CPACK_PACKAGE_NAME})
    put(${documents} ${CPACK_VELLUMO_PACKAGING}/debian/changelog)
    configure_file(${CPACK_VELLUMO_PACKAGING}/debian/copyright.in ${documents}/copyright @ONLY
        FILE_PERMISSIONS OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)
    file(REMOVE ${documents}/LICENSE)
    file(MAKE_DIRECTORY ${share}/zsh/vendor-completions) # site-functions is for the machine's owner
    file(RENAME ${share}/zsh/site-functions/_vellumo ${share}/zsh/vendor-completions/_vellumo)
    file(REMOVE_RECURSE ${share}/zsh/site-functions)
    file(RENAME ${documents}/changelog ${documents}/changelog.Debian)
    file(RENAME ${documents}/CHANGELOG.md ${documents}/changelog)
    foreach(page ${documents}/README.md ${documents}/docs/README.md)
        file(READ ${page} text)
        string(REPLACE "(LICENSE)" "(copyright)" text "${text}")
        string(REPLACE "CHANGELOG.md)" "changelog.gz)" text "${text}")
        file(WRITE ${page} "${text}")
    endforeach()
    file(GLOB pages ${share}/man/man*/*)
    execute_process(COMMAND gzip -9n ${pages} ${documents}/changelog ${documents}/changelog.Debian
        COMMAND_ERROR_IS_FATAL ANY)
elseif(CPACK_GENERATOR STREQUAL "TGZ")
    file(COPY ${CPACK_VELLUMO_PACKAGING}/archive/install ${CPACK_VELLUMO_PACKAGING}/archive/uninstall
        DESTINATION ${root}
        FILE_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE
            WORLD_READ WORLD_EXECUTE)
endif()

file(CHMOD_RECURSE ${root} DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE
    GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
