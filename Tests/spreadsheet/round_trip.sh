#!/usr/bin/env bash
# LibreOffice opens the export of 10,000 hostile units and saves it, in each dialect and in several
# languages. Planned at once, the table must change nothing; where the spreadsheet has damaged an address
# or a serial number, the reader must say so by the name of the damage.
#
# usage: round_trip.sh PROBE
#   PROBE   kxspreadsheet_probe
set -euo pipefail

readonly probe=${1:?usage: round_trip.sh PROBE} count=10000
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT

readonly filter='Text - txt - csv (StarCalc)' comma=44 semicolon=59 tab=9 utf8=76 utf16=65535
readonly english=1033 german=1031 japanese=1041

fail() { echo "FAILED: $*" >&2; exit 1; }

# usage: save FILE SEPARATOR ENCODING LANGUAGE    leaves $folder/saved/FILE
save() {
    rm -rf "$folder/saved"
    # Numbers, dates and amounts are recognized, and cells are saved as they are shown.
    soffice --headless "-env:UserInstallation=file://$folder/profile" \
        --infilter="$filter:$comma,34,$utf8,1,,$4,false,true" \
        --convert-to "csv:$filter:$2,34,$3,1,,$4,false,true" \
        --outdir "$folder/saved" "$folder/$1" >"$folder/log" 2>&1
    [ -s "$folder/saved/$1" ] || { cat "$folder/log" >&2; fail "nothing was saved"; }
}

plan() { "$probe" plan "$count" "$folder/saved/$1" >"$folder/plan"; tail -1 "$folder/plan"; }

# usage: only_damage NAME    the plan has complaints, all of this name, and no changes
only_damage() {
    ! grep -vE "^line [0-9]+, [a-z-]*: $1 |^[0-9]+ rows, " "$folder/plan" || fail "more than $1"
    grep -qE "^line .*: $1 " "$folder/plan" || fail "no $1"
    grep -q ", 0 to change$" "$folder/plan" || fail "a change beside $1"
}

"$probe" export "$count" "$folder/export.csv"
for separator in "$comma" "$semicolon" "$tab"; do
    for language in "$english" "$japanese"; do
        save export.csv "$separator" "$utf8" "$language"
        told=$(plan export.csv)
        echo "separator $separator, language $language: $told"
        [[ "$told" =~ ^$count\ rows,\ [1-9][0-9]*\ with\ a\ unit\ ID,\ 0\ complaints,\ 0\ to\ change$ ]] ||
            { head -20 "$folder/plan" >&2; fail "the export has changed"; }
    done
done

# Where a dot groups digits, an address such as 192.168.178.100 is taken for a number.
save export.csv "$comma" "$utf8" "$german"
echo "language $german: $(plan export.csv)"
only_damage lostDots

save export.csv "$comma" "$utf16" "$english"
echo "UTF-16: $(plan export.csv)"
only_damage utf16

# Serial numbers as one word of digits.
printf 'serial,unit-id\n004758000001,1\n004758000002,2\n' >"$folder/typed.csv"
save typed.csv "$comma" "$utf8" "$english"
echo "serial numbers that begin with zeros: $(plan typed.csv)"
only_damage lostZeros

echo "passed"
