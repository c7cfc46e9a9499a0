#!/usr/bin/env bash
# Runs with 200 replies a second that nobody asked for.
set -euo pipefail
# shellcheck source=Tests/lab/expectations.sh
source "${BASH_SOURCE[0]%/*}/expectations.sh"
probe=$1

received_frames() {
    awk '$1 == "kx0:" { print $3 }' /proc/net/dev
}

before=$(received_frames)
sleep 0.5
expect_equal 'frames from the units before the first command' "$before" "$(received_frames)"

# One reply was asked for; the probe reports failure because more come.
if replies=$("$probe" 192.0.2.11 3520 '^^IdX' 1); then
    fail 'no reply came that was not asked for'
fi
[[ $(cut -d ' ' -f 1 <<<"$replies" | sort -u | wc -l) == 3 ]] ||
    fail 'the flood does not come from every unit'
