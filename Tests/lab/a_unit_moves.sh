#!/usr/bin/env bash
set -euo pipefail
# shellcheck source=Tests/lab/expectations.sh
source "${BASH_SOURCE[0]%/*}/expectations.sh"
probe=$1

sender_and_length() {
    "$@" | cut -d ' ' -f 1,3
}

# One address is inside the link's network, and one is outside of it.
move() {
    local address=$1 hexadecimal=$2
    ip neigh replace "$address" lladdr 02:4b:58:00:00:01 nud permanent dev kx0
    expect_equal "the answer to the move, from $address" "$address 24" \
        "$(sender_and_length "$probe" "$address" 10000 "^^IdI$hexadecimal" 1)"

    # After this, the unit itself answers ARP for its new address.
    ip neigh del "$address" dev kx0
    expect_equal "the settings, read at $address" "$address 81" \
        "$(sender_and_length "$probe" "$address" 10000 '^^IdX' 1)"
}

move 192.0.2.50 C0000232
move 10.0.0.7 0A000007
ip neigh flush dev kx0
"$probe" 192.0.2.11 3520 '^^IdX' 0 >/dev/null || fail 'the unit still answers at its old address'
# The host keeps this request while it asks which host holds the address; this drops it.
ip neigh del 192.0.2.11 dev kx0

expect_equal 'a restored unit answers from its first address' '192.0.2.11 24' \
    "$(sender_and_length "$probe" 10.0.0.7 3520 '^^IdZ' 1)"
