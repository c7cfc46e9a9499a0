#!/usr/bin/env bash
# Installs the package in a fresh root file system, runs both programs there, follows the installed help
# book, removes the package again, and compares the file system with its state before.
#
# usage: it_leaves_nothing_behind.sh PACKAGE      needs root, and the machine's package mirror
set -euo pipefail
here=$(dirname -- "$(readlink -f -- "${BASH_SOURCE[0]}")")
# shellcheck source=Tests/lab/expectations.sh
source "$here/../lab/expectations.sh"

package=$(readlink -f -- "$1")
lab=$(readlink -f -- "$here/../../scripts/lab")
scratch=$(mktemp -d)
root=$scratch/root
trap 'rm -rf --one-file-system -- "$scratch"' EXIT

# The names of the packages on which it depends, separated by commas.
dependencies() {
    dpkg-deb --field "$package" Depends | sed 's/ *([^)]*)//g; s/ *|[^,]*//g; s/, */,/g'
}

# Debian's essential packages and the dependencies, from the source of this machine's own packages.
make_root() {
    local suite
    # shellcheck disable=SC1091
    suite=$(. /etc/os-release && printf '%s' "$VERSION_CODENAME")
    "$here/../../.ci/package-source" "$suite" "$scratch"
    mmdebstrap --quiet --variant=essential --include="$(dependencies)" \
        --aptopt="$scratch/apt.conf" "$suite" "$root" "$scratch/sources" ||
        fail 'the root file system was not made'
    # Sets the environment that a login gives a person.
    install -d -m 700 -o nobody -g nogroup "$root/home/person" "$root/run/person"
}

# Runs the rest of its arguments in the root file system.
inside() {
    env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin LC_ALL=C.UTF-8 chroot "$root" "$@"
}

# Every entry with its kind, rights and owner, and every file with its checksum too. The package system's
# own records do not count as traces of the package.
snapshot() {
    (
        cd "$root"
        find . -xdev \( -path ./proc -o -path ./sys -o -path ./dev -o -path './var/log/dpkg.log' \
            -o -path './var/lib/dpkg/status*' -o -path './var/lib/dpkg/lock*' \
            -o -path './var/lib/dpkg/triggers/Lock' \) -prune \
            -o -printf '%p %y %m %U %G %l\n' -type f -exec sha256sum {} +
    ) | sort
}

check_installed_files() {
    local file
    for file in usr/bin/kxconfig usr/bin/kxctl usr/bin/kxunits usr/share/man/man1/kxctl.1.gz \
        usr/share/bash-completion/completions/kxctl usr/libexec/kxconfig/kxarp usr/sbin/arp \
        usr/share/applications/org.kxconfig.KXConfig.desktop \
        usr/share/metainfo/org.kxconfig.KXConfig.metainfo.xml \
        usr/share/icons/hicolor/scalable/apps/org.kxconfig.KXConfig.svg \
        usr/share/kxconfig/wireshark/kxconfig.lua usr/share/doc/kxconfig/copyright; do
        [[ -s $root/$file ]] || fail "/$file is missing"
    done
    expect_equal 'files that differ from the package' '' "$(inside dpkg --verify kxconfig)"
}

# The version of the package is the version of the project, everywhere.
check_version() {
    local version
    version=$(dpkg-deb --field "$package" Version)
    version=${version%-*}
    expect_equal 'version in the changelog' "kxconfig ($version-1)" \
        "$(zcat "$root/usr/share/doc/kxconfig/changelog.Debian.gz" | sed -n '1s/ unstable.*//p')"
    grep -qF "<release version=\"$version\"" \
        "$root/usr/share/metainfo/org.kxconfig.KXConfig.metainfo.xml" ||
        fail "the metainfo does not name version $version"
    grep -qxF "    VERSION $version" "$here/../../CMakeLists.txt" ||
        fail "version $version is not that of project()"
}

# The installed units hear the installed application.
run_programs() {
    grep -q '^Usage: kxunits ' <<<"$(inside kxunits --help)" || fail 'kxunits does not run'
    KX_BUILD_DIR=$root/usr "$lab" --units 3 --record "$scratch/heard" -- \
        "$here/the_application_asks.sh" "$root" "$scratch/heard"
}

# A person who has only the package reads its help book and does what the book says.
follow_the_book() {
    KX_BUILD_DIR=$root/usr KX_ROOT=$root KX_PROGRAM=$here/the_installed_application.sh \
        KX_BOOK=$root/usr/share/kxconfig/homepage PYTHONDONTWRITEBYTECODE=1 \
        "$lab" --units 3 -- "$here/../desktop/in_desktop.sh" -- \
        /usr/bin/python3 -W ignore:Atspi:DeprecationWarning -m unittest discover \
        --start-directory "$here/../desktop" --pattern by_the_help_book.py
}

make_root
snapshot >"$scratch/before"
cp -- "$package" "$root/package.deb"
inside dpkg --install /package.deb
rm -- "$root/package.deb"
check_installed_files
check_version
run_programs
follow_the_book
inside dpkg --purge kxconfig
snapshot >"$scratch/after"
diff -u "$scratch/before" "$scratch/after" || fail 'the package leaves traces'
