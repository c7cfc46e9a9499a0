#!/usr/bin/env bash
# Units ignore a broadcast for another subnet than theirs. An address in their subnet helps only when it
# is the first one of the interface, and when the interface is chosen again.
set -euo pipefail
# shellcheck source=Tests/lab/expectations.sh
source "${BASH_SOURCE[0]%/*}/expectations.sh"
kxconfig=$2
export QT_QPA_PLATFORM=offscreen QT_QPA_GENERIC_PLUGINS=kxsteps QT_PLUGIN_PATH=$KX_BUILD_DIR/plugins

ip address flush dev kx0
ip address add 192.168.1.20/24 broadcast + dev kx0
ip address add 10.0.0.1/24 broadcast + dev kx0
ip route flush default # otherwise the request of the launch would reach the units

KX_STEPS='press logDrawerButton
    interface kx0
    discover 0
    logs Request unit parameters with address: 192.168.1.255
    finding
    run ip address delete 192.168.1.20/24 dev kx0
    run ip address add 192.168.1.20/24 broadcast + dev kx0
    press discoverButton
    finding The address and mask of the interface kx0 are out of date
    logs Request unit parameters with address: 192.168.1.255
    interface kx0
    discover 3
    finding
    logs Request unit parameters with address: 10.0.0.255
    shows internal IP address: 10.0.0.11' "$kxconfig" || fail 'the visit failed'
expect_equal 'addresses of the requests that units took' 10.0.0.255 \
    "$(cut -d ' ' -f 2 "$KX_UNITS_RECORD" | sort -u)"
