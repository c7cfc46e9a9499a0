#!/usr/bin/env bash
set -euo pipefail
# shellcheck source=Tests/lab/expectations.sh
source "${BASH_SOURCE[0]%/*}/expectations.sh"
probe=$1

for address in 255.255.255.255 192.0.2.255; do
    replies=$("$probe" "$address" 3520 '^^IdX' 3)
    senders=$(cut -d ' ' -f 1-3 <<<"$replies" | sort)
    expect_equal "who answers a request to $address" \
        $'192.0.2.11 3520 81\n192.0.2.12 3520 81\n192.0.2.13 3520 81' "$senders"
done

# The whole reply of the first unit, written by hand: the header, then the eight items.
wanted=5E5E3C553E0000000000013C533E4B580000000124
wanted+=3C4D3E024B58000001
wanted+=3C493EC000020B
wanted+=3C443EC0000201
wanted+=3C543E0DC0
wanted+=3C503E2710
wanted+=3C553E000000000001
wanted+=3C433E020000000001
wanted+=3C533E4B5800000001
expect_equal 'the first unit answers with its factory settings' "$wanted" \
    "$(sort <<<"$replies" | head -n 1 | cut -d ' ' -f 4)"
