#!/usr/bin/env bash
# A link that comes up while the real program runs is offered when the list is opened, even when the list
# was empty before.
set -euo pipefail
# shellcheck source=Tests/lab/expectations.sh
source "${BASH_SOURCE[0]%/*}/expectations.sh"
kxconfig=$1
export QT_QPA_PLATFORM=offscreen QT_QPA_GENERIC_PLUGINS=kxtour QT_PLUGIN_PATH=$KX_BUILD_DIR/plugins
scratch=$(mktemp -d)
trap 'rm -rf -- "$scratch"' EXIT

program_listens() {
    ss --udp --listening --numeric 'sport = 3520' | grep -q 3520
}

# This namespace has only the loopback, which is up only when its flags contain the word "up".
report_with_late_link() {
    [[ $1 != up ]] || ip link set lo up
    KX_TOUR_INTERFACE=late0 KX_TOUR_UNITS=0 "$kxconfig" >"$scratch/report" &
    local pid=$! status=0
    eventually program_listens || fail 'the program does not listen'
    ip link add late0 type veth peer name late1
    ip address add 203.0.113.1/25 broadcast + dev late0
    ip link set late1 up
    # Names of links and the links that are up are read one after the other, which takes a while in an
    # instrumented program. A list that falls between the two has another name for the link.
    sleep 0.5
    ip link set late0 up
    wait "$pid" || status=$?
    ip link del late0
    ip link set lo down
    expect_equal 'exit status of the tour' 0 "$status"
    cat "$scratch/report"
}

for loopback in down up; do
    report=$(report_with_late_link "$loopback")
    expect_equal "the chosen title with the loopback $loopback" 'Interface: Ethernet (late0)' \
        "$(grep '^Interface: ' <<<"$report")"
    grep -qx '  Request unit parameters with address: 203.0.113.127' <<<"$report" ||
        fail "no directed broadcast in the log: $report"
done
