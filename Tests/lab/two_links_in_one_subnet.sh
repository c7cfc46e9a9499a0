#!/usr/bin/env bash
# Two links are in one subnet. Broadcasts leave by the one that is chosen and by no other, also when it
# is down. Commands leave by the one on which the unit was heard, without a route to it.
set -euo pipefail
# shellcheck source=Tests/lab/expectations.sh
source "${BASH_SOURCE[0]%/*}/expectations.sh"
kxconfig=$2
readonly discoveries=100 request=5E5E496458
export QT_QPA_PLATFORM=offscreen QT_QPA_GENERIC_PLUGINS=kxsteps QT_PLUGIN_PATH=$KX_BUILD_DIR/plugins

visit() {
    KX_STEPS=$1 "$kxconfig" || fail 'the visit failed'
}

# How many times the unit of this serial number heard a parameter request at the subnet's broadcast
# address since the record was emptied.
times_heard() {
    grep -c "^$1 192\.0\.2\.255 3520 $request\$" "$KX_UNITS_RECORD" || true
}

# The units of the second link are in another subnet, to which there is no route now.
ip address flush dev kx2
ip address add 192.0.2.2/24 broadcast + dev kx2
ip route flush default

visit "interface kx2
    presses $discoveries discoverButton"
expect_equal 'requests heard on the first link' 0 "$(times_heard 4B5800000001)"
expect_equal 'requests heard on the chosen link' "$discoveries" "$(times_heard 4B5800000002)"

visit 'press logDrawerButton
    interface kx2
    discover 1
    shows internal IP address: 198.51.100.12
    parameter destination Port number
    type 3521
    press applyButton
    shows destination Port number: 3521
    logs Send to: 198.51.100.12 command: ^^IdT0DC1
    run ip link set kx2 down
    press discoverButton
    logs Request unit parameters with address: 192.0.2.255
    logs UDP failed to send data.
    logs Network is unreachable
    finding The interface kx2 has no link.'
expect_equal 'requests that went another way' 0 "$(times_heard 4B5800000001)"
