#!/usr/bin/env bash
# The real program has no descriptor left. It cannot run the tool, start the listener or list the
# interfaces, and it says so. When there are descriptors again, all three work.
set -euo pipefail
# shellcheck source=Tests/lab/expectations.sh
source "${BASH_SOURCE[0]%/*}/expectations.sh"
kxconfig=$2

move="
    unit 4B 58 00 00 00 01
    parameter internal IP address
    type 192.0.2.50
    press applyButton"
# A running listener goes on; only the next one gets no socket. A change of a link makes the store read
# the links again.
export KX_STEPS="
    log
    interface kx0
    discover 3
    descriptors 4
    $move
    logs Stuff ARP cache result: -60031
    logs Send to: 192.0.2.50 command: ^^IdIC0000232
    logs UDP server did send data.
    lacks internal IP address
    run ip link set lo down
    interfaces
    discover 3
    logs UDP did stop with error.
    logs Too many open files
    press reloadButton
    logs The UDP listener is not running.

    descriptors all
    interfaces
    discover 3
    logs Request unit parameters with address: 192.0.2.255
    logs serial:4B 58 00 00 00 03
    $move
    logs Stuff ARP cache with MAC 02:4B:58:00:00:01 for IP 192.0.2.50
    shows internal IP address: 192.0.2.50"
export QT_QPA_PLATFORM=offscreen QT_QPA_GENERIC_PLUGINS=kxsteps QT_PLUGIN_PATH=$KX_BUILD_DIR/plugins

errors=$(mktemp)
trap 'rm -f -- "$errors"' EXIT
report=$("$kxconfig" 2>"$errors") || fail "the visit failed: $report $(<"$errors")"
expect_equal 'what the list of interfaces offered' \
    'Interfaces: No configured interfaces
Interfaces: Ethernet (kx0)' "$(grep '^Interfaces: ' <<<"$report")"
# The addresses of this host are looked for several times.
expect_equal 'the system log' 'Could not open /dev/null: Too many open files
serviceIDForInterface: open session for System Configuration failed' \
    "$(sed -n 's/^kxconfig\[[0-9]*\]: //p' "$errors" | uniq)"
