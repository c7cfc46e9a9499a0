#!/usr/bin/env bash
# Makes the packages a second time, in another folder, another language and another time zone, with files
# that nobody else may read, more than a year later by the clock, and of sources with another age. The
# packages must be the same byte for byte.
#
# usage: a_second_build_is_the_same.sh FOLDER      FOLDER has the packages of this checkout
set -euo pipefail
here=$(dirname -- "$(readlink -f -- "${BASH_SOURCE[0]}")")
# shellcheck source=Tests/lab/expectations.sh
source "$here/../lab/expectations.sh"

folder=$(readlink -f -- "$1")
scratch=$(mktemp -d -p /var/tmp)
trap 'rm -rf -- "$scratch"' EXIT
second=$scratch/a-folder-with-another-name
mkdir "$second"
(cd "$here/../.." && tar --create --exclude=./build --exclude=./.git .) |
    tar --extract --directory "$second"
find "$second" -exec touch --date=2001-01-01 {} +

# In this language a small I has no dot where others have one, and lists are in another order.
mkdir "$scratch/locale"
localedef --inputfile=tr_TR --charmap=UTF-8 "$scratch/locale/tr_TR.UTF-8"
other=(LOCPATH="$scratch/locale" LC_ALL=tr_TR.UTF-8 LANG=tr_TR.UTF-8 TZ=Pacific/Kiritimati)
[[ $(env "${other[@]}" date --date=2001-01-01T12:00Z +%A%d) == Salı02 ]] ||
    fail 'the other language or time zone has no effect'

umask 077
env "${other[@]}" faketime -f +400d "$second/scripts/package" >"$scratch/log" 2>&1 ||
    fail "the second build: $(tail -n 20 "$scratch/log")"

count=0
for package in "$folder"/*.deb; do
    again=$second/build/package/${package##*/}
    cmp -- "$package" "$again" || fail "$(diff \
        <(dpkg-deb --fsys-tarfile "$package" | tar --list --verbose --full-time) \
        <(dpkg-deb --fsys-tarfile "$again" | tar --list --verbose --full-time))"
    count=$((count + 1))
done
expect_equal 'packages' 3 "$count"
