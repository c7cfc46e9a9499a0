#!/usr/bin/env bash
# The summary and the marks of each datagram of the table, in the list of packets.
set -euo pipefail
# shellcheck source=Tests/wireshark/dissection.sh
source "${BASH_SOURCE[0]%/*}/dissection.sh"

write_capture "$scratch/capture"
wanted=$(table | sed 's/^.* | \(.* |\)/\1/')
expect_equal 'summaries and marks' "$wanted" "$(summaries_and_marks "$scratch/capture")"
expect_no_failure "$scratch/capture"

# Every mark needs a datagram that has it. The mark of a capture has its own test.
for mark in $(all_marks | grep -vx capture); do
    grep -qE "\|.* $mark( |\$)" <<<"$wanted" || fail "no datagram of the table has the mark $mark"
done

# The application's message about a datagram that it abandons, with the name of the field.
fields_of "$scratch/capture" -Y kxconfig.expert.cut_short -e _ws.expert.message \
    >"$scratch/messages"
for field in 'unit ID' 'serial number' 'device port number' 'internal IP address'; do
    grep -q "^The $field is cut short; the application abandons the datagram\$" \
        "$scratch/messages" || fail "no message about the $field that is cut short"
done
