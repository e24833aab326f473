# Run by cpack over what it has packed: packs it again, so that nothing of who packs is in it, such as
# their name, their mask, the order in which their disk has files and what it takes for folders.
cmake_minimum_required(VERSION 3.25)

# set_installed_size(FOLDER): in KiB as Debian counts it, each file by itself, all else as one.
function(set_installed_size folder)
    execute_process(COMMAND find . -mindepth 1 -path ./DEBIAN -prune -o -printf "%y %s;"
        WORKING_DIRECTORY ${folder} OUTPUT_VARIABLE entries COMMAND_ERROR_IS_FATAL ANY)
    set(size 0)
    foreach(entry ${entries})
        set(bytes 1)
        if(entry MATCHES "^f (.*)")
            set(bytes ${CMAKE_MATCH_1})
        endif()
        math(EXPR size "${size} + (${bytes} + 1023) / 1024")
    endforeach()
    file(READ ${folder}/DEBIAN/control control)
    string(REGEX REPLACE "Installed-Size: [0-9]+" "Installed-Size: ${size}" control "${control}")
    file(WRITE ${folder}/DEBIAN/control "${control}")
endfunction()

set(open_to_all OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

function(repack_deb package folder)
    execute_process(COMMAND dpkg-deb --raw-extract ${package} ${folder} COMMAND_ERROR_IS_FATAL ANY)
    set_installed_size(${folder})
    file(CHMOD ${folder} ${folder}/DEBIAN PERMISSIONS ${open_to_all})
    execute_process(COMMAND dpkg-deb --root-owner-group -Zgzip --build ${folder} ${package}
        OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
endfunction()

function(repack_tgz package folder)
    execute_process(COMMAND tar --version OUTPUT_VARIABLE version)
    if(NOT version MATCHES "GNU tar")
        message(STATUS "Without GNU's tar, the archive tells who packed it.")
        return()
    endif()
    file(MAKE_DIRECTORY ${folder})
    execute_process(COMMAND tar -xpf ${package} -C ${folder} COMMAND_ERROR_IS_FATAL ANY)
    file(CHMOD ${folder}/${CPACK_PACKAGE_FILE_NAME} PERMISSIONS ${open_to_all})
    set(times "")
    if(DEFINED ENV{SOURCE_DATE_EPOCH})
        set(times --clamp-mtime --mtime=@$ENV{SOURCE_DATE_EPOCH})
    endif()
    execute_process(
        COMMAND tar --sort=name --owner=root:0 --group=root:0 ${times} -I "gzip -9n"
            -cf ${package} -C ${folder} ${CPACK_PACKAGE_FILE_NAME}
        COMMAND_ERROR_IS_FATAL ANY)
endfunction()

string(TOLOWER repack_${CPACK_GENERATOR} repack)
if(COMMAND ${repack}) # packages of other kinds stay as they are
    foreach(package ${CPACK_PACKAGE_FILES})
        cmake_language(CALL ${repack} ${package} ${package}.unpacked)
        file(REMOVE_RECURSE ${package}.unpacked)
    endforeach()
endif()
