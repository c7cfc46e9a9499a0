#!/usr/bin/env bash
# Runs with replies that are 300 ms late, doubled and cut to 30 bytes.
set -euo pipefail
# shellcheck source=Tests/lab/expectations.sh
source "${BASH_SOURCE[0]%/*}/expectations.sh"
probe=$1

begin=${EPOCHREALTIME/[.,]/}
lengths=$("$probe" 192.0.2.12 3520 '^^IdX' 2 | cut -d ' ' -f 3 | tr '\n' ' ')
# The probe itself waits 300 ms for more replies after the last one that it wants.
milliseconds=$(((${EPOCHREALTIME/[.,]/} - begin) / 1000))

expect_equal 'the lengths of both replies' '30 30 ' "$lengths"
((milliseconds >= 600)) || fail "the replies came early, the probe took $milliseconds ms"
