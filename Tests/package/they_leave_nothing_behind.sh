#!/usr/bin/env bash
# Installs the packages in a fresh root file system, runs what they install, follows the installed help book,
# purges the packages again, and compares the file system with its state before. What is run of each package
# is in debian/tests.
#
# A package finds its dependencies there and those of the packages tried before it. So kxctl is first: what
# kxunits depends on besides would hide that kxctl needs it too.
#
# usage: they_leave_nothing_behind.sh FOLDER      needs root, and the machine's package mirror
#   FOLDER    has the three packages
set -euo pipefail
here=$(dirname -- "$(readlink -f -- "${BASH_SOURCE[0]}")")
# shellcheck source=Tests/lab/expectations.sh
source "$here/../lab/expectations.sh"

folder=$(readlink -f -- "$1")
lab=$(readlink -f -- "$here/../../scripts/lab")
scratch=$(mktemp -d)
root=$scratch/root
trap 'rm -rf --one-file-system -- "$scratch"' EXIT

readonly names=(kxctl kxconfig kxunits)

# Some of the files of the package NAME.
files_of() {
    case $1 in
    kxctl)
        printf '%s\n' usr/bin/kxctl usr/libexec/kxconfig/kxarp usr/share/man/man1/kxctl.1.gz \
            usr/share/polkit-1/actions/org.kxconfig.KXConfig.policy \
            usr/share/bash-completion/completions/kxctl \
            usr/share/fish/vendor_completions.d/kxctl.fish usr/share/zsh/vendor-completions/_kxctl \
            usr/share/kxconfig/json-schema/discover.json usr/share/kxconfig/wireshark/kxconfig.lua \
            usr/share/kxconfig/many-sites/library/kxctl.py
        ;;
    kxconfig)
        printf '%s\n' usr/bin/kxconfig usr/share/man/man1/kxconfig.1.gz \
            usr/share/applications/org.kxconfig.KXConfig.desktop \
            usr/share/metainfo/org.kxconfig.KXConfig.metainfo.xml \
            usr/share/icons/hicolor/scalable/apps/org.kxconfig.KXConfig.svg \
            usr/share/kxconfig/homepage/index.html usr/share/kxconfig/homepage/{de,es,fr,ja}/index.html
        ;;
    kxunits)
        printf '%s\n' usr/bin/kxunits usr/bin/kxunits-lab usr/share/man/man1/kxunits.1.gz \
            usr/share/man/man1/kxunits-lab.1.gz
        ;;
    esac
    printf 'usr/share/doc/%s/copyright\n' "$1"
}

# The file of the package NAME.
package_file() {
    local found=("$folder/$1"_*.deb)
    [[ ${#found[@]} == 1 && -s ${found[0]} ]] || fail "$folder has not one package $1"
    printf '%s' "${found[0]}"
}

# The packages of Debian on which the packages NAME... depend.
dependencies() {
    local name
    for name in "$@"; do
        dpkg-deb --field "$(package_file "$name")" Depends
    done | tr ',' '\n' | sed 's/|.*//; s/([^)]*)//; s/ //g' | sort --unique |
        grep -vxF "$(printf '%s\n' "${names[@]}")"
}

# Debian's essential packages and the package system, from the source of this machine's own packages. The file
# system also has our packages and what runs them.
make_root() {
    local suite name
    # shellcheck disable=SC1091
    suite=$(. /etc/os-release && printf '%s' "$VERSION_CODENAME")
    "$here/../../.ci/package-source" "$suite" "$scratch"
    mmdebstrap --quiet --variant=apt --aptopt="$scratch/apt.conf" --dpkgopt=force-unsafe-io \
        "$suite" "$root" "$scratch/sources" || fail 'the root file system was not made'
    inside apt-get update -qq
    # Sets the environment that a login gives a person.
    install -d -m 700 -o nobody -g nogroup "$root/home/person" "$root/run/person"
    mkdir "$root/packages"
    for name in "${names[@]}"; do
        cp -- "$(package_file "$name")" "$root/packages/$name.deb"
    done
    cp --recursive -- "$here/../../debian/tests" "$root/tests"
}

# Runs the rest of its arguments in the root file system.
inside() {
    # shellcheck disable=SC2016
    unshare --mount sh -euc '
        root=$1
        shift
        mount -t proc proc "$root/proc"
        exec env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin LC_ALL=C.UTF-8 DEBIAN_FRONTEND=noninteractive \
            chroot "$root" "$@"' inside "$root" "$@"
}

# Installs the dependencies of the packages NAME... and nothing else.
install_dependencies() {
    local packages
    mapfile -t packages < <(dependencies "$@")
    inside apt-get install -qq --yes --no-install-recommends --option Dpkg::Use-Pty=0 "${packages[@]}" >/dev/null
}

# Every entry with its kind, rights and owner, and every file with its checksum too. The package system's
# own records do not count as traces of the packages.
snapshot() {
    (
        cd "$root"
        find . -xdev \( -path ./proc -o -path ./sys -o -path ./dev -o -path './var/log/dpkg.log' \
            -o -path './var/lib/dpkg/status*' -o -path './var/lib/dpkg/lock*' \
            -o -path './var/lib/dpkg/triggers/Lock' -o -path './var/log/apt' \
            -o -path './var/lib/apt' -o -path './var/cache/apt' \
            -o -path './var/cache/debconf/tmp.ci' \) -prune \
            -o -printf '%p %y %m %U %G %l\n' -type f -exec sha256sum {} +
    ) | sort
}

# The version of each package is the version of the project, everywhere.
check_version() {
    local name=$1 version
    version=$(dpkg-deb --field "$(package_file "$name")" Version)
    expect_equal "version in the changelog of $name" "kxconfig ($version)" \
        "$(zcat "$root/usr/share/doc/$name/changelog.Debian.gz" | sed -n '1s/ unstable.*//p')"
    version=${version%-*}
    grep -qxF "    VERSION $version" "$here/../../CMakeLists.txt" ||
        fail "version $version is not that of project()"
    [[ $name != kxconfig ]] || grep -qF "<release version=\"$version\"" \
        "$root/usr/share/metainfo/org.kxconfig.KXConfig.metainfo.xml" ||
        fail "the metainfo does not name version $version"
}

check_installed() {
    local name file
    for name in "$@"; do
        for file in $(files_of "$name"); do
            [[ -s $root/$file ]] || fail "/$file is missing"
        done
        expect_equal "files that differ from the package $name" '' "$(inside dpkg --verify "$name")"
        check_version "$name"
    done
}

# The installed window asks the units of a lab, as a person without rights.
use_window() {
    KX_BUILD_DIR=$scratch/unpacked/usr "$lab" --units 3 --record "$root/tmp/heard" -- \
        "$here/in_the_root.sh" "$root" /tests/kxconfig
    rm -- "$root/tmp/heard"
}

# A person who has only the packages reads their help book and does what the book says.
follow_the_book() {
    KX_BUILD_DIR=$scratch/unpacked/usr KX_ROOT=$root KX_PROGRAM=$here/the_installed_application.sh \
        KX_BOOK=$root/usr/share/kxconfig/homepage PYTHONDONTWRITEBYTECODE=1 \
        "$lab" --units 3 -- "$here/../desktop/in_desktop.sh" -- \
        /usr/bin/python3 -W ignore:Atspi:DeprecationWarning -m unittest discover \
        --start-directory "$here/../desktop" --pattern by_the_help_book.py
}

# The single package that had everything, of the release before the three.
make_old_package() {
    mkdir "$scratch/unpacked/DEBIAN"
    printf '%s\n' 'Package: kxconfig' 'Version: 0.1.0-1' 'Architecture: all' \
        'Maintainer: nobody <nobody@kxconfig.invalid>' 'Description: all in one' \
        >"$scratch/unpacked/DEBIAN/control"
    dpkg-deb --root-owner-group --build "$scratch/unpacked" "$root/packages/old.deb" >/dev/null
    rm -r -- "$scratch/unpacked/DEBIAN"
}

# Installs packages as a person does, without what they recommend.
install_with_apt() {
    local files=("${@/#//packages/}")
    inside apt-get install -qq --yes --no-install-recommends --option Dpkg::Use-Pty=0 "${files[@]/%/.deb}"
}

kxctl_alone() {
    inside dpkg --install /packages/kxctl.deb
    check_installed kxctl
    inside /tests/kxctl
    [[ -z $(find "$root/usr/lib" -name 'libQt6Gui*') ]] || fail 'kxctl comes with a desktop library'
    inside dpkg --purge kxctl
}

kxunits_alone() {
    inside dpkg --install /packages/kxunits.deb
    check_installed kxunits
    inside /tests/kxunits
    inside dpkg --purge kxunits
}

# The window comes in the place of the single package, first without the units, then beside them.
all_of_them() {
    inside dpkg --install /packages/old.deb
    install_with_apt kxconfig kxctl
    check_installed kxctl kxconfig
    use_window
    follow_the_book
    install_with_apt kxunits
    check_installed "${names[@]}"
    inside /tests/kxctl
    inside /tests/kxunits
    inside /tests/kxconfig
    inside /tests/together
    # The window cannot go on without the program for administrator rights.
    ! inside dpkg --remove kxctl 2>/dev/null || fail 'kxctl can be removed below kxconfig'
    inside dpkg --remove "${names[@]}"
}

# usage: leaves_nothing_behind USE NAME...      USE is a function that uses the packages NAME...
leaves_nothing_behind() {
    printf '%s (%d s)\n' "$1" "$SECONDS"
    install_dependencies "${@:2}"
    snapshot >"$scratch/before"
    "$1"
    snapshot >"$scratch/after"
    diff -u "$scratch/before" "$scratch/after" || fail "$1: the packages leave traces"
}

for name in "${names[@]}"; do
    dpkg-deb --extract "$(package_file "$name")" "$scratch/unpacked"
done
make_root
leaves_nothing_behind kxctl_alone kxctl
leaves_nothing_behind kxunits_alone kxunits
make_old_package
leaves_nothing_behind all_of_them "${names[@]}"
