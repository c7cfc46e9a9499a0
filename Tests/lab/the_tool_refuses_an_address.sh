#!/usr/bin/env bash
# An address that the ARP tool would read otherwise than everybody else is refused by the program that has
# the rights. The window says so beforehand, and afterwards in the words of that program.
set -euo pipefail
here=$(dirname -- "$(readlink -f -- "${BASH_SOURCE[0]}")")
# shellcheck source=Tests/lab/expectations.sh
source "$here/expectations.sh"
kxconfig=$2
export KX_STEPS='
    log
    interface kx0
    discover 1
    unit 4B 58 00 00 00 01
    parameter internal IP address
    type 192.0.2.050
    line Apply asks for administrator rights, but no ARP entry will be made for “192.0.2.050”: An address is four decimal numbers without leading zeros, as in 192.0.2.7.
    press applyButton
    logs Stuff ARP cache with MAC 02:4B:58:00:00:01 for IP 192.0.2.050
    line No ARP entry was made for 192.0.2.050: An address is four decimal numbers without leading zeros, as in 192.0.2.7.
    print'
export QT_QPA_PLATFORM=offscreen QT_QPA_GENERIC_PLUGINS=kxsteps QT_PLUGIN_PATH=$KX_BUILD_DIR/plugins

report=$("$here/../linux/polkit/in_polkit.sh" --rule yes -- "$kxconfig") || fail "the visit failed: $report"
expect_equal 'the ARP entries' '' "$(ip neigh show nud permanent)"
expect_equal 'the alerts' '' "$(grep '^Alert: ' <<<"$report" || true)"
