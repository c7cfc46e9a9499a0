#!/usr/bin/env bash
# Somebody sends the record of a unit that does not exist, a person selects it, and hundreds of
# acknowledgements come in its name. The program does not become a reflector: twenty requests follow, and
# one more at the end of the second.
set -euo pipefail
here=$(dirname -- "$(readlink -f -- "${BASH_SOURCE[0]}")")
# shellcheck source=Tests/lab/expectations.sh
source "$here/expectations.sh"
kxconfig=$2
export QT_QPA_PLATFORM=offscreen QT_QPA_GENERIC_PLUGINS=kxsteps QT_PLUGIN_PATH=$KX_BUILD_DIR/plugins
scratch=$(mktemp -d)
trap 'rm -rf -- "$scratch"' EXIT

# The forger is a host of its own at the units' end of the link, and so is its victim.
at_far_end() {
    nsenter --target "$KX_UNITS_PIDS" --net -- "$@"
}
at_far_end ip address add 192.0.2.66/24 broadcast + dev kx1
at_far_end ip address add 192.0.2.77/24 broadcast + dev kx1

# The number of datagrams that follow so many acknowledgements; further arguments name the victim.
datagrams_after() {
    mkfifo "$scratch/orders"
    at_far_end python3 "$here/forged_acknowledgements.py" 192.0.2.1 000000000001 "$@" \
        <>"$scratch/orders" >"$scratch/count" &
    local forger=$!
    KX_STEPS="press logDrawerButton
        interface kx0
        discover 1
        run echo record >$scratch/orders
        logs serial:00 00 00 00 00 01
        discover 2
        unit 00 00 00 00 00 01
        run echo acknowledge >$scratch/orders
        logs DONE" "$kxconfig" >"$scratch/report" || fail "the visit failed: $(<"$scratch/report")"
    wait "$forger" || fail 'the forger failed'
    rm "$scratch/orders"
    cat "$scratch/count"
}

expect_equal 'datagrams to the victim' 21 "$(datagrams_after 500 192.0.2.77 53)"
expect_equal 'broadcasts' 21 "$(datagrams_after 200)"
