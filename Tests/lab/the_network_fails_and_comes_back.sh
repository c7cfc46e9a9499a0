#!/usr/bin/env bash
# A route is missing, a link goes down, an address is removed or exchanged, an interface is gone, or a
# send buffer is full. The event log of the real program tells each of these, earlier replies are kept,
# and the program goes on when the network is back.
set -euo pipefail
# shellcheck source=Tests/lab/expectations.sh
source "${BASH_SOURCE[0]%/*}/expectations.sh"

# --- Faults of the host: "SCRIPT fault FUNCTION ARGUMENT..." ---

three_replies_wait() {
    # Datagrams that the program has not read yet; a small datagram takes some 768 bytes of the buffer.
    [[ $(ss --udp --listening --numeric --no-header 'sport = 3520' | awk '{print $2}') -gt 2000 ]]
}
link_goes_down_behind_the_replies() {
    eventually three_replies_wait && ip link set kx0 down
}
put_up_link() {
    ip address replace 192.0.2.1/24 broadcast + dev kx0
    ip link set kx0 up
}
exchange_address() {
    ip address add "$2" broadcast + dev kx0
    ip address del "$1" dev kx0
}
take_interface_away() {
    ip link set kx0 netns "$elsewhere"
}
bring_interface_back() {
    nsenter --net="/proc/$elsewhere/ns/net" ip link set kx0 netns "$here"
    put_up_link
}
# Nobody tells the host where the first unit is. So the host keeps the datagrams for this unit, and they
# are many more than one program may have on their way.
units_stand_still() {
    grep -q '^State:.*stopped' "/proc/$units/status"
}
unit_falls_silent() {
    printf '10000000\n' >/proc/sys/net/ipv4/neigh/kx0/unres_qlen_bytes
    printf '100\n' >/proc/sys/net/ipv4/neigh/kx0/mcast_solicit
    kill -STOP "$units" && eventually units_stand_still && ip neigh flush dev kx0
}
unit_is_reached() {
    [[ $(ip neigh show 192.0.2.11 dev kx0) == *REACHABLE* ]]
}
unit_speaks_again() {
    kill -CONT "$units" && eventually unit_is_reached
}
if [[ $1 == fault ]]; then
    "${@:2}"
    exit
fi

kxconfig=$2 record=$KX_RECORD
read -ra children <"/proc/$PPID/task/$PPID/children" || true # the file has no line end
for child in "${children[@]}"; do
    [[ $(<"/proc/$child/comm") != kxunits ]] || units=$child
done
here=$$
unshare --net sleep 1000 &
elsewhere=$!
trap 'kill "$elsewhere"' EXIT
is_elsewhere() {
    [[ $(readlink "/proc/$elsewhere/ns/net") != "$(readlink "/proc/$here/ns/net")" ]]
}
eventually is_elsewhere || fail 'there is no other network'
export units here elsewhere

# --- A person's actions, and the window's answers ---

fault="run ${BASH_SOURCE[0]} fault"
everyone_answers='
    logs serial:4B 58 00 00 00 01
    logs serial:4B 58 00 00 00 02
    logs serial:4B 58 00 00 00 03'
discover="
    press discoverButton
    $everyone_answers"
KX_STEPS="
    log
    run ip route del default dev kx0
    press discoverButton
    logs Network is unreachable
    run ip route add default dev kx0
    $discover
    interface kx0
    $discover

    press discoverButton
    $fault link_goes_down_behind_the_replies
    $everyone_answers
    discover 3
    logs UDP failed to send data.
    logs Network is unreachable
    unit 4B 58 00 00 00 01
    parameter destination Port number
    type 3523
    press applyButton
    line Not sent: Network is unreachable.
    $fault put_up_link
    press applyButton
    shows destination Port number: 3523
    $discover

    run ip address del 192.0.2.1/24 dev kx0
    press discoverButton
    logs Network is unreachable
    finding The interface kx0 has lost the address
    $fault put_up_link
    $discover
    $fault exchange_address 192.0.2.1/24 203.0.113.1/24
    interface kx0
    press discoverButton
    logs Request unit parameters with address: 203.0.113.255
    $everyone_answers
    $fault exchange_address 203.0.113.1/24 192.0.2.1/24
    interface kx0
    discover 3

    $fault take_interface_away
    press discoverButton
    logs No such device
    $fault bring_interface_back
    discover 3
    $everyone_answers

    unit 4B 58 00 00 00 01
    $fault unit_falls_silent
    presses 400 reloadButton
    logs Resource temporarily unavailable
    $fault unit_speaks_again
    print
    discover 3
    $discover"
export KX_STEPS
export QT_QPA_PLATFORM=offscreen QT_QPA_GENERIC_PLUGINS=kxsteps QT_PLUGIN_PATH=$KX_BUILD_DIR/plugins

report=$("$kxconfig") || fail "the visit failed: $report"

# Between two broadcasts, there are more requests than at any other time.
requests_sent=$(grep -A 1 'Request unit parameters with address: 192.0.2.11$' <<<"$report" |
    grep -c 'did send data' || true)
requests_heard() {
    awk '$1 != "4B5800000001" { next }
         $2 == "192.0.2.255" { count = 0 }
         $2 == "192.0.2.11" && $4 == "5E5E496458" { if (++count > most) most = count }
         END { print most + 0 }' "$record"
}
all_were_heard() {
    ((requests_sent > 0 && $(requests_heard) == requests_sent))
}
eventually all_were_heard ||
    fail "of $requests_sent requests that were sent the unit heard $(requests_heard)"
