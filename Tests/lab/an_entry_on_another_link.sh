#!/usr/bin/env bash
# Two links are in one subnet. The ARP tool puts the entry of a new address on the link of the first route,
# while the command leaves by the link on which the unit was heard. The window says so, and it says
# nothing when the routes lead to the unit's link.
set -euo pipefail
# shellcheck source=Tests/lab/expectations.sh
source "${BASH_SOURCE[0]%/*}/expectations.sh"
kxconfig=$2
export QT_QPA_PLATFORM=offscreen QT_QPA_GENERIC_PLUGINS=kxsteps QT_PLUGIN_PATH=$KX_BUILD_DIR/plugins

visit() {
    KX_STEPS=$1 "$kxconfig" || fail 'the visit failed'
}
link_of_entry() {
    ip neigh show "$1" nud permanent | sed -n 's/^.* dev \([^ ]*\) .*$/\1/p'
}

# The units of the second link are in another subnet, to which there is no route now.
ip address flush dev kx2
ip address add 192.0.2.2/24 broadcast + dev kx2
ip route flush default

visit 'interface kx2
    discover 1
    unit 4B 58 00 00 00 02
    parameter internal IP address
    type 192.0.2.50
    press applyButton
    line The ARP entry for 192.0.2.50 is not on the interface by which the command left, so the unit may not have heard it.'
expect_equal 'the link of the entry' kx0 "$(link_of_entry 192.0.2.50)"

ip route add 192.0.2.60/32 dev kx2
visit 'interface kx2
    discover 1
    unit 4B 58 00 00 00 02
    parameter internal IP address
    type 192.0.2.60
    press applyButton
    shows internal IP address: 192.0.2.60
    line The unit now shows 192.0.2.60 as its internal IP address'
expect_equal 'the link of the entry' kx2 "$(link_of_entry 192.0.2.60)"
