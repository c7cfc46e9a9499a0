#!/usr/bin/env bash
# The system bus and polkit end while the real window of an ordinary user runs. The window says that
# nobody can give rights, and goes on. When the bus is back, rights are given and the ARP entry is made.
set -euo pipefail
here=$(dirname -- "$(readlink -f -- "${BASH_SOURCE[0]}")")
# shellcheck source=Tests/lab/expectations.sh
source "$here/expectations.sh"

# --- Faults of the host: "SCRIPT fault FUNCTION" ---

bus_answers() {
    dbus-send --system --print-reply --dest=org.freedesktop.DBus / \
        org.freedesktop.DBus.GetNameOwner string:org.freedesktop.PolicyKit1 >/dev/null 2>&1
}
bus_is_silent() {
    ! bus_answers
}
end_bus() {
    printf 'end\n' >"$KX_HOST"
    eventually bus_is_silent
}
start_bus() {
    printf 'start\n' >"$KX_HOST"
    eventually bus_answers
}
if [[ $1 == fault ]]; then
    "$2"
    exit
fi

# --- A person's actions, and the window's answers ---

kxconfig=$2
fault="run ${BASH_SOURCE[0]} fault"
move='
    discover 1
    unit 4B 58 00 00 00 01
    parameter internal IP address
    type 192.0.2.50
    press applyButton
    logs Send to: 192.0.2.50 command: ^^IdIC0000232'
export KX_STEPS="
    log
    interface kx0
    $fault end_bus
    $move
    line No ARP entry was made for 192.0.2.50: administrator rights were not given
    interfaces
    $fault start_bus
    $move
    logs Stuff ARP cache with MAC 02:4B:58:00:00:01 for IP 192.0.2.50
    shows internal IP address: 192.0.2.50"
export QT_QPA_PLATFORM=offscreen QT_QPA_GENERIC_PLUGINS=kxsteps QT_PLUGIN_PATH=$KX_BUILD_DIR/plugins

report=$("$here/../linux/polkit/in_polkit.sh" --rule yes -- "$kxconfig") || fail "the visit failed: $report"
expect_equal 'the alerts' \
    'Alert: KXConfig: Authentication was not completed, some features may not be available.' \
    "$(grep '^Alert: ' <<<"$report")"
expect_equal 'what the list of interfaces offered without a bus' \
    'Interfaces: Ethernet (kx0); Loopback (lo)' "$(grep '^Interfaces: ' <<<"$report")"
expect_equal 'the neighbour of the new address' \
    '192.0.2.50 dev kx0 lladdr 02:4b:58:00:00:01 PERMANENT' \
    "$(ip neigh show 192.0.2.50 | sed 's/ *$//')"
