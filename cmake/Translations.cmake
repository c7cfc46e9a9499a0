# The catalogues of Resources/translations, compiled and embedded in the program, so that it finds them
# wherever it is installed.

function(kx_embed_translations TARGET)
    find_program(KX_LRELEASE NAMES lrelease lrelease-qt6 REQUIRED
        HINTS "${QT6_INSTALL_PREFIX}/${QT6_INSTALL_BINS}"
        DOC "Compiles Qt Linguist's catalogues; Debian's package qt6-l10n-tools has it")
    set(compiled_dir "${PROJECT_BINARY_DIR}/translations")
    file(MAKE_DIRECTORY "${compiled_dir}")
    file(GLOB catalogues CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/Resources/translations/*.ts")
    set(compiled)
    foreach(catalogue IN LISTS catalogues)
        cmake_path(GET catalogue STEM name)
        add_custom_command(OUTPUT "${compiled_dir}/${name}.qm"
            COMMAND "${KX_LRELEASE}" -silent "${catalogue}" -qm "${compiled_dir}/${name}.qm"
            DEPENDS "${catalogue}"
            COMMENT "Compiling ${name}.ts"
            VERBATIM)
        list(APPEND compiled "${compiled_dir}/${name}.qm")
    endforeach()
    qt_add_resources(${TARGET} translations
        PREFIX /translations BASE "${compiled_dir}" FILES ${compiled})
endfunction()
