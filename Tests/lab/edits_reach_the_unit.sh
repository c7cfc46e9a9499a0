#!/usr/bin/env bash
# The real window changes a unit's IP address to one that the unit does not hold yet, then changes the
# port at the new address, sends an option, and restores the unit's factory settings.
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
    logs Request unit parameters with address: 192.0.2.11
    print'

report=$("$kxconfig") || fail "the visit failed: $report"

expect_equal 'the neighbour of the new address' \
    '192.0.2.50 dev kx0 lladdr 02:4b:58:00:00:01 PERMANENT' \
    "$(ip neigh show 192.0.2.50 | sed 's/ *$//')"

# The datagrams that the unit heard, as text.
heard() {
    sed -n 's/^4B5800000001 //p' "$record" | while read -r address port bytes; do
        printf '%s %s %b\n' "$address" "$port" "$(sed 's/../\\x&/g' <<<"$bytes")"
    done | tr -d '\r'
}
expect_equal 'what the unit heard but for the requests for its parameters' '192.0.2.50 10000 ^^IdIC0000232
192.0.2.50 10000 ^^IdT0DC3
192.0.2.50 10000 ^^IdV
192.0.2.50 10000 ^^IdZ' "$(heard | grep -v '\^\^IdX$')"

# After the restore the program asks the unit twice: at once at its old address, because the unit said
# "ok", and a second later at its new address.
requests_after_restore() {
    heard | sed '1,/\^\^IdZ$/d' | grep '\^\^IdX$'
}
was_asked_twice() {
    (($(requests_after_restore | wc -l) == 2))
}
eventually was_asked_twice || true
expect_equal 'the requests for its parameters after the restore' '192.0.2.50 10000 ^^IdX
192.0.2.11 10000 ^^IdX' "$(requests_after_restore)"
