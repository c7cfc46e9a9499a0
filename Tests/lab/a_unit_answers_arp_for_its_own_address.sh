#!/usr/bin/env bash
set -euo pipefail
# shellcheck source=Tests/lab/expectations.sh
source "${BASH_SOURCE[0]%/*}/expectations.sh"
probe=$1

neighbour() {
    ip neigh show "$1" dev kx0
}

"$probe" 192.0.2.12 3520 '^^IdX' 1 >/dev/null
[[ $(neighbour 192.0.2.12) == *'lladdr 02:4b:58:00:00:02'* ]] ||
    fail "the second unit's hardware address is not known: $(neighbour 192.0.2.12)"

"$probe" 192.0.2.99 3520 '^^IdX' 0 >/dev/null
[[ $(neighbour 192.0.2.99) != *lladdr* ]] ||
    fail "somebody answered for 192.0.2.99: $(neighbour 192.0.2.99)"

# The unit's announcement updates the neighbour entry to its new hardware address.
"$probe" 192.0.2.12 10000 '^^IdM0200000000AA' 1 >/dev/null
[[ $(neighbour 192.0.2.12) == *'lladdr 02:00:00:00:00:aa'* ]] ||
    fail "the host still has the old hardware address: $(neighbour 192.0.2.12)"
"$probe" 192.0.2.12 10000 '^^IdX' 1 >/dev/null
