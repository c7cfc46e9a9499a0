#!/usr/bin/env bash
# The texts of the system's errors are in the user's language where the user's locale is in UTF-8. In a
# locale of another character set they are English, so that what kxctl writes stays UTF-8.
#
# usage: Tests/commands/locale_of_user.sh PROGRAM
set -euo pipefail

program=$1
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
localedef --inputfile=de_DE --charmap=UTF-8 "$folder/de_DE.utf8"
localedef --inputfile=de_DE --charmap=ISO-8859-1 "$folder/de_DE.iso88591"

# What the program says in a locale when its disk is full.
said_in() {
    { LOCPATH=$folder LANGUAGE=de LC_ALL=$1 "$program" interfaces >/dev/full || true; } 2>&1
}

check() {
    local said
    said=$(said_in "$1")
    [ "$said" = "$2" ] || {
        printf 'failed: in %s it says "%s" and not "%s"\n' "$1" "$said" "$2" >&2
        exit 1
    }
}

readonly start='kxctl: Die Standardausgabe ist nicht beschreibbar:'
check de_DE.UTF-8 "$start Auf dem Gerät ist kein Speicherplatz mehr verfügbar."
check de_DE.ISO-8859-1 "$start No space left on device."
