#!/usr/bin/env bash
# Runs with 200 unsolicited replies a second.
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

# The probe asks for one reply and reports failure, because more replies come.
if replies=$("$probe" 192.0.2.11 3520 '^^IdX' 1); then
    fail 'no reply came that was not asked for'
fi
[[ $(cut -d ' ' -f 1 <<<"$replies" | sort -u | wc -l) == 3 ]] ||
    fail 'the flood does not come from every unit'
