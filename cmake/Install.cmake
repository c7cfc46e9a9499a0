# The places of all installed files, relative to the prefix.
#
#   bin/                        the programs, and scripts/lab as kxunits-lab
#   libexec/kxconfig/           the program that runs with administrator rights
#   share/applications, share/metainfo, share/icons, share/man
#                               files that a desktop reads
#   share/polkit-1/actions      the actions that ask for administrator rights; they name the program
#                               by its full path, and the daemon looks there, below a prefix of /usr
#                               only
#   share/bash-completion, share/zsh, share/fish
#                               completions of kxctl
#   share/kxconfig/             the help pages, the dissector, the JSON Schemas of kxctl's documents
#
# The version comes from project(), and the day comes from the clock or from SOURCE_DATE_EPOCH.

include(GNUInstallDirs)

set(KX_PICTURES_URL "" CACHE STRING
    "Where docs/pictures is published, for the software centres; empty when it is not")

set(data_dir "${CMAKE_INSTALL_DATADIR}/kxconfig")
set(generated_dir "${PROJECT_BINARY_DIR}/install")
string(TIMESTAMP KX_RELEASE_DAY "%Y-%m-%d" UTC)

# Writes FILE.gz beside each file.
function(kx_compress)
    find_program(KX_GZIP gzip REQUIRED)
    execute_process(COMMAND "${KX_GZIP}" -9nkf ${ARGN} COMMAND_ERROR_IS_FATAL ANY)
endfunction()

# The manual page PAGE, compressed.
function(kx_install_manual PAGE)
    configure_file("${PROJECT_SOURCE_DIR}/Resources/man/${PAGE}.in" "${generated_dir}/${PAGE}" @ONLY)
    kx_compress("${generated_dir}/${PAGE}")
    install(FILES "${generated_dir}/${PAGE}.gz" DESTINATION "${CMAKE_INSTALL_MANDIR}/man1")
endfunction()

# Software centres load pictures only from the web.
function(kx_set_screenshots VARIABLE)
    set(${VARIABLE} "" PARENT_SCOPE)
    if(KX_PICTURES_URL)
        set(${VARIABLE} "  <screenshots>
    <screenshot type=\"default\">
      <caption>The main window after a discovery, with the event log open</caption>
      <image type=\"source\">${KX_PICTURES_URL}/window-log.png</image>
    </screenshot>
  </screenshots>
" PARENT_SCOPE)
    endif()
endfunction()

install(TARGETS kxconfig kxctl kxunits RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}")
install(PROGRAMS "${PROJECT_SOURCE_DIR}/scripts/lab" RENAME kxunits-lab
    DESTINATION "${CMAKE_INSTALL_BINDIR}")
install(TARGETS kxarp RUNTIME DESTINATION "${CMAKE_INSTALL_LIBEXECDIR}/kxconfig")
kx_install_manual(kxconfig.1)
kx_install_manual(kxunits.1)
kx_install_manual(kxunits-lab.1)

# What the build has made of the table of commands.
set(kxctl_dir "${PROJECT_BINARY_DIR}/share/kxctl")
install(CODE "execute_process(COMMAND \"${KX_GZIP}\" -9nkf \"${kxctl_dir}/kxctl.1\"
    COMMAND_ERROR_IS_FATAL ANY)")
install(FILES "${kxctl_dir}/kxctl.1.gz" DESTINATION "${CMAKE_INSTALL_MANDIR}/man1")
install(FILES "${kxctl_dir}/kxctl.bash" RENAME kxctl
    DESTINATION "${CMAKE_INSTALL_DATADIR}/bash-completion/completions")
install(FILES "${kxctl_dir}/_kxctl" DESTINATION "${CMAKE_INSTALL_DATADIR}/zsh/vendor-completions")
install(FILES "${kxctl_dir}/kxctl.fish"
    DESTINATION "${CMAKE_INSTALL_DATADIR}/fish/vendor_completions.d")
install(DIRECTORY "${PROJECT_SOURCE_DIR}/docs/json-schema" "${PROJECT_SOURCE_DIR}/docs/many-sites"
    DESTINATION "${data_dir}")

install(FILES "${PROJECT_SOURCE_DIR}/Resources/org.kxconfig.KXConfig.desktop"
    DESTINATION "${CMAKE_INSTALL_DATADIR}/applications")
install(FILES "${PROJECT_SOURCE_DIR}/Resources/org.kxconfig.KXConfig.policy"
    DESTINATION "${CMAKE_INSTALL_DATADIR}/polkit-1/actions")
kx_set_screenshots(KX_SCREENSHOTS)
configure_file("${PROJECT_SOURCE_DIR}/Resources/org.kxconfig.KXConfig.metainfo.xml.in"
    "${generated_dir}/org.kxconfig.KXConfig.metainfo.xml" @ONLY)
install(FILES "${generated_dir}/org.kxconfig.KXConfig.metainfo.xml"
    DESTINATION "${CMAKE_INSTALL_DATADIR}/metainfo")
set(icons_dir "${CMAKE_INSTALL_DATADIR}/icons/hicolor")
install(FILES "${PROJECT_SOURCE_DIR}/Resources/icons/org.kxconfig.KXConfig.svg"
    DESTINATION "${icons_dir}/scalable/apps")
foreach(size 16 24 32 48 64 128)
    install(FILES "${PROJECT_SOURCE_DIR}/Resources/icons/org.kxconfig.KXConfig-${size}.png"
        DESTINATION "${icons_dir}/${size}x${size}/apps" RENAME org.kxconfig.KXConfig.png)
endforeach()
install(FILES "${PROJECT_SOURCE_DIR}/Resources/icons/org.kxconfig.KXConfig-symbolic.svg"
    DESTINATION "${icons_dir}/symbolic/apps")

install(FILES "${PROJECT_SOURCE_DIR}/Resources/wireshark/kxconfig.lua"
    DESTINATION "${data_dir}/wireshark")
install(DIRECTORY "${PROJECT_BINARY_DIR}/share/kxconfig/homepage" DESTINATION "${data_dir}")
