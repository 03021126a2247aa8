# What Windows shows of a program before it runs: icon, version, description; and the manifest.
enable_language(RC)
find_program(RSVG_CONVERT rsvg-convert REQUIRED)
find_program(ICOTOOL icotool REQUIRED)

set(icon ${CMAKE_BINARY_DIR}/tavelo.ico)
set(pictures)
foreach(side 16 20 24 32 40 48 64 128 256)
    set(picture ${CMAKE_BINARY_DIR}/tavelo_${side}.png)
    add_custom_command(OUTPUT ${picture} DEPENDS ${CMAKE_SOURCE_DIR}/packaging/tavelo.svg
        COMMAND ${RSVG_CONVERT} --width ${side} --height ${side} --output ${picture}
            ${CMAKE_SOURCE_DIR}/packaging/tavelo.svg)
    list(APPEND pictures ${picture})
endforeach()
add_custom_command(OUTPUT ${icon} DEPENDS ${pictures} COMMAND ${ICOTOOL} --create --output=${icon} ${pictures})

function(add_windows_resources target description)
    set(source ${CMAKE_CURRENT_BINARY_DIR}/${target}.rc)
    configure_file(${CMAKE_CURRENT_FUNCTION_LIST_DIR}/program.rc.in ${source} @ONLY)
    set_source_files_properties(${source} PROPERTIES
        OBJECT_DEPENDS "${icon};${CMAKE_CURRENT_FUNCTION_LIST_DIR}/tavelo.manifest")
    target_sources(${target} PRIVATE ${source} ${icon})
endfunction()
