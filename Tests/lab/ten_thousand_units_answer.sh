#!/usr/bin/env bash
set -euo pipefail
# shellcheck source=Tests/lab/expectations.sh
source "${BASH_SOURCE[0]%/*}/expectations.sh"
probe=$1

received_frames() {
    awk '$1 == "kx0:" { print $3 }' /proc/net/dev
}

# The replies are counted at the link, where none is lost, because the reader decides how many a socket
# can hold.
before=$(received_frames)
replies=$("$probe" 10.0.255.255 3520 '^^IdX' 10000) || true
arrived=$(($(received_frames) - before))
((arrived >= 10000)) || fail "only $arrived replies arrived over the link"
(($(cut -d ' ' -f 1 <<<"$replies" | sort -u | wc -l) > 250)) ||
    fail 'the probe read fewer replies than the smallest socket buffer holds'

# A single unit is still found at once.
expect_equal 'the last unit answers for itself' '10.0.39.26 81' \
    "$("$probe" 10.0.39.26 3520 '^^IdX' 1 | cut -d ' ' -f 1,3)"
