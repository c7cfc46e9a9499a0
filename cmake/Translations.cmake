# The catalogues of Resources/translations as a table in the program, so that it finds them wherever it is installed.

function(kx_translations TARGET)
    find_package(Python3 REQUIRED COMPONENTS Interpreter)
    file(GLOB catalogues CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/Resources/translations/*.ts")
    set(script "${PROJECT_SOURCE_DIR}/scripts/translations")
    set(table "${PROJECT_BINARY_DIR}/translations.cpp")
    add_custom_command(OUTPUT "${table}"
        COMMAND "${Python3_EXECUTABLE}" "${script}" --table "${table}"
        DEPENDS ${catalogues} "${script}"
        COMMENT "Making the table of translations"
        VERBATIM)
    target_sources(${TARGET} PRIVATE "${table}")
endfunction()
