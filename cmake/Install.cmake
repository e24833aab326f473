# What `cmake --install` puts where. The programs, their companions and the help file look for each
# other in one folder; the two that a person starts have a link where the shell looks.
include(GNUInstallDirs)
set(document_folder ${CMAKE_INSTALL_DOCDIR})
if("$CACHE{CMAKE_INSTALL_DOCDIR}" STREQUAL "") # else somebody asked for another one
    set(document_folder ${CMAKE_INSTALL_DATAROOTDIR}/doc/vellumo-designer)
endif()

# Programs of their own folder stand in lib wherever libraries of an architecture do.
set(application_folder lib/vellumo-designer)
install(TARGETS vellumo vellumo-designer pilrc build-prc RUNTIME DESTINATION ${application_folder})
install(FILES ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/Vellumo_Help.chm DESTINATION ${application_folder})

# Relative, so that they hold below DESTDIR and any prefix.
file(RELATIVE_PATH way ${CMAKE_INSTALL_FULL_BINDIR}
    ${CMAKE_INSTALL_PREFIX}/${application_folder})
file(MAKE_DIRECTORY ${CMAKE_BINARY_DIR}/links)
foreach(program vellumo vellumo-designer)
    file(CREATE_LINK ${way}/${program} ${CMAKE_BINARY_DIR}/links/${program} SYMBOLIC)
    install(FILES ${CMAKE_BINARY_DIR}/links/${program} DESTINATION ${CMAKE_INSTALL_BINDIR})
endforeach()

install(FILES ${CMAKE_BINARY_DIR}/manual/vellumo.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
install(FILES ${CMAKE_BINARY_DIR}/manual/vellumo.bash RENAME vellumo
    DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions)
install(FILES ${CMAKE_BINARY_DIR}/manual/_vellumo
    DESTINATION ${CMAKE_INSTALL_DATADIR}/zsh/site-functions)
install(FILES ${CMAKE_BINARY_DIR}/manual/vellumo.fish
    DESTINATION ${CMAKE_INSTALL_DATADIR}/fish/vendor_completions.d)

# As they lie in the source, so that their links hold, too.
install(FILES CHANGELOG.md CONTRIBUTING.md LICENSE README.md SECURITY.md
    DESTINATION ${document_folder})
install(DIRECTORY docs examples DESTINATION ${document_folder})
