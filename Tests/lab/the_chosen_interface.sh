#!/usr/bin/env bash
# The real program broadcasts only on the interface that is chosen in its window.
set -euo pipefail
here=$(dirname -- "$(readlink -f -- "${BASH_SOURCE[0]}")")
# shellcheck source=Tests/lab/expectations.sh
source "$here/expectations.sh"
skip_without_namespaces
kxconfig=$1
lab=$here/../../scripts/lab
scratch=$(mktemp -d)
trap 'rm -rf -- "$scratch"' EXIT
record=$scratch/record
readonly request=5E5E496458

export QT_QPA_PLATFORM=offscreen QT_QPA_GENERIC_PLUGINS=kxtour QT_PLUGIN_PATH=$KX_BUILD_DIR/plugins

# The tour's report with an interface chosen; the lab's options follow.
report_with() {
    local interface=$1 units=$2
    shift 2
    KX_TOUR_INTERFACE=$interface KX_TOUR_UNITS=$units \
        "$lab" --record "$record" "$@" -- "$kxconfig" || fail "the tour with $interface failed"
}

# The serial numbers of the units that heard a parameter request at an address.
who_heard() {
    sed -n "s/^\([0-9A-F]*\) ${1//./\\.} 3520 $request\$/\1/p" "$record" | sort | tr '\n' ' '
}

expect_logged() {
    grep -qx "  Request unit parameters with address: $1" <<<"$report" ||
        fail "no request to $1 in the log: $report"
}

report=$(report_with kx0 3 --units 3)
expect_equal 'the chosen title' 'Interface: Ethernet (kx0)' "$(grep '^Interface: ' <<<"$report")"
expect_logged 192.0.2.255
expect_equal 'who heard the directed broadcast' '4B5800000001 4B5800000002 4B5800000003 ' \
    "$(who_heard 192.0.2.255)"

# At launch no interface is chosen, so the units on the first link hear that broadcast, and their replies
# may still arrive. The later requests are for the second link alone.
report=$(report_with kx2 2 --units 2 --links 2)
expect_logged 198.51.100.255
expect_equal 'who heard the broadcast of the second link' '4B5800000003 4B5800000004 ' \
    "$(who_heard 198.51.100.255)"
expect_equal 'who heard the broadcast of the first link' '' "$(who_heard 192.0.2.255)"
for unit in 3 4; do
    grep -q "Received command: ^^<U> .* serial:4B 58 00 00 00 0$unit" <<<"$report" ||
        fail "no reply of unit $unit in the log: $report"
done
