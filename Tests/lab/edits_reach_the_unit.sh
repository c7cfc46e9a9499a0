#!/usr/bin/env bash
# The real window changes a unit: its IP address to one that it does not hold yet, then its port at
# the new address, sends it an option, and restores what it left the factory with.
set -euo pipefail
# shellcheck source=Tests/lab/expectations.sh
source "${BASH_SOURCE[0]%/*}/expectations.sh"
kxconfig=$2 record=$KX_RECORD

export QT_QPA_PLATFORM=offscreen QT_QPA_GENERIC_PLUGINS=kxsteps QT_PLUGIN_PATH=$KX_BUILD_DIR/plugins
export KX_STEPS='
    press logDrawerButton
    interface kx0
    discover 3
    unit 4B 58 00 00 00 01
    parameter internal IP address
    type 192.0.2.50
    press applyButton
    logs Stuff ARP cache with MAC 02:4B:58:00:00:01 for IP 192.0.2.50
    logs Send to: 192.0.2.50 command: ^^IdIC0000232
    shows internal IP address: 192.0.2.50
    parameter destination Port number
    type 3523
    press applyButton
    shows destination Port number: 3523
    press sendOptionButton
    logs simulated unit 1.0
    press restoreButton
    shows internal IP address: 192.0.2.11
    shows destination Port number: 3520
    print'

report=$("$kxconfig") || fail "the visit failed: $report"

expect_equal 'the neighbour of the new address' \
    '192.0.2.50 dev kx0 lladdr 02:4b:58:00:00:01 PERMANENT' \
    "$(ip neigh show 192.0.2.50 | sed 's/ *$//')"

# What the unit heard, as text, but for the requests for its parameters.
heard=$(sed -n 's/^4B5800000001 //p' "$record" | while read -r address port bytes; do
    printf '%s %s %b\n' "$address" "$port" "$(sed 's/../\\x&/g' <<<"$bytes")"
done | tr -d '\r' | grep -v '\^\^IdX$')
expect_equal 'what the unit heard' '192.0.2.50 10000 ^^IdIC0000232
192.0.2.50 10000 ^^IdT0DC3
192.0.2.50 10000 ^^IdV
192.0.2.50 10000 ^^IdZ' "$heard"
