# font_widths(target): makes font_widths.inc from resources/font-widths.csv in the build folder of
# the room that calls it: the rows of a table, each a font and the widths of its 256 codes.
function(font_widths target)
    set(csv ${PROJECT_SOURCE_DIR}/resources/font-widths.csv)
    set(script ${PROJECT_SOURCE_DIR}/cmake/write_font_widths.cmake)
    set(table ${CMAKE_CURRENT_BINARY_DIR}/font_widths.inc)
    add_custom_command(OUTPUT ${table}
        COMMAND ${CMAKE_COMMAND} -D CSV=${csv} -D TABLE=${table} -P ${script}
        DEPENDS ${csv} ${script} VERBATIM)
    target_sources(${target} PRIVATE ${table})
endfunction()
