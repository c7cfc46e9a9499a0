#!/usr/bin/env bash
# Runs in the lab with units whose replies are damaged. Every reply of at least one byte is dissected,
# and its faults are marked.
set -euo pipefail
# shellcheck source=Tests/wireshark/dissection.sh
source "${BASH_SOURCE[0]%/*}/dissection.sh"
probe=$1

count=1000

# The probe ends with 1, because more replies come than it wants.
start_flood() {
    "$probe" 255.255.255.255 3520 '^^IdX' 1 &>"$scratch/replies" || true
}
flood=$scratch/flood
capture "$flood" "$count" start_flood
expect_no_failure "$flood"
expect_equal 'packets that are not dissected' 0 \
    "$(count_of "$flood" 'udp.length > 8 && !kxconfig')"

for mark in short foreign cut_short unknown_tag; do
    (($(count_of "$flood" "kxconfig.expert.$mark") > 0)) || fail "no packet has the mark $mark"
done
(($(count_of "$flood" 'kxconfig && !_ws.expert') > 0)) || fail 'every packet is marked'
