#!/usr/bin/env bash
set -euo pipefail
# shellcheck source=Tests/lab/expectations.sh
source "${BASH_SOURCE[0]%/*}/expectations.sh"
probe=$1

senders() {
    "$probe" "$1" 3520 '^^IdX' 2 | cut -d ' ' -f 1 | sort | tr '\n' ' '
}

expect_equal 'who is on the first link' '192.0.2.11 192.0.2.12 ' "$(senders 192.0.2.255)"
expect_equal 'who is on the second link' '198.51.100.13 198.51.100.14 ' "$(senders 198.51.100.255)"
