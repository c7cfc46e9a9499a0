# The Debian package. cpack makes it in a build folder; scripts/package does all the steps.
#
# Depends lists the packages that the libraries need, found by dpkg-shlibdeps, and net-tools, whose arp
# makes a unit reachable at its new address. Recommends lists packages without which a person can still
# work: polkit asks for the administrator's password (root needs none), xdg-utils opens the help pages on
# a desktop, and Qt's packages let it run on Wayland and show translations; without them Qt uses X11 and
# English.

set(KX_MAINTAINER "KXConfig maintainers <maintainers@kxconfig.invalid>" CACHE STRING
    "Who answers for the package, as NAME <ADDRESS>")

string(TIMESTAMP KX_RELEASE_TIME "%a, %d %b %Y %H:%M:%S +0000" UTC)
string(TIMESTAMP KX_RELEASE_YEAR "%Y" UTC)
set(KX_PACKAGE_RELEASE 1)

set(debian_dir "${CMAKE_INSTALL_DATADIR}/doc/kxconfig")
configure_file("${PROJECT_SOURCE_DIR}/Resources/debian/copyright.in"
    "${generated_dir}/copyright" @ONLY)
configure_file("${PROJECT_SOURCE_DIR}/Resources/debian/changelog.in"
    "${generated_dir}/changelog.Debian" @ONLY)
configure_file("${PROJECT_SOURCE_DIR}/CHANGELOG.md" "${generated_dir}/changelog" COPYONLY)
kx_compress("${generated_dir}/changelog.Debian" "${generated_dir}/changelog")
install(FILES "${generated_dir}/copyright" "${generated_dir}/changelog.Debian.gz"
        "${generated_dir}/changelog.gz"
    DESTINATION "${debian_dir}" COMPONENT debian EXCLUDE_FROM_ALL)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME kxconfig)
set(CPACK_PACKAGE_CONTACT "${KX_MAINTAINER}")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "find and configure small networked units over UDP")
set(CPACK_PACKAGE_DESCRIPTION
"KXConfig finds small networked units on the local IPv4 network, lists them by
serial number, and shows the parameters of the one that is picked. Each of
them can be changed, the unit's own IP address included; the window says
beforehand what will be sent. Option commands and the return to factory
settings are there too.
.
An event log shows everything that is sent and received. A help book explains
every control, parameter and line of the log, and what to check when no unit
answers. The package also holds kxunits, which plays units for tests, and a
Wireshark dissector of the units' protocol.")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_INSTALL_CMAKE_PROJECTS
    "${PROJECT_BINARY_DIR};KXConfig;ALL;/"
    "${PROJECT_BINARY_DIR};KXConfig;debian;/")
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_STRIP_FILES ON)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE "${KX_PACKAGE_RELEASE}")
set(CPACK_DEBIAN_PACKAGE_SECTION net)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS net-tools)
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS
    "pkexec, polkitd, qt6-translations-l10n, qt6-wayland, xdg-utils")
set(CPACK_DEBIAN_PACKAGE_SUGGESTS "iproute2, network-manager, wireshark | tshark")

include(CPack)
