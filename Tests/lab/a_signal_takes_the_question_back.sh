#!/usr/bin/env bash
# kxctl moves a unit to a new address, and the person who is asked for administrator rights never answers. A
# signal takes the question back: kxctl ends with the status of the signal and tells that it changed nothing,
# nothing is sent, and no entry is made.
#
# usage: a_signal_takes_the_question_back.sh KXCTL
set -euo pipefail
here=$(dirname -- "$(readlink -f -- "${BASH_SOURCE[0]}")")
# shellcheck source=Tests/lab/expectations.sh
source "$here/expectations.sh"
kxctl=$1

# The question who holds the address is a parameter request; this counts the commands.
nft 'add table inet kx { chain out { type filter hook output priority 0;
    ip daddr 192.0.2.50 @th,64,40 0x5e5e496449 counter; }; }'

# The dialogs are those of the process that becomes kxctl.
# shellcheck disable=SC2016 # another shell expands it
move='
    (until [ -s "$KX_DIALOGS" ]; do sleep 0.05; done; echo asked; sleep 0.5; kill -"$1" $$) &
    exec "$0" set 4B5800000001 internal-ip=192.0.2.50'

for signal in INT TERM HUP; do
    wanted=143
    [[ $signal != INT ]] || wanted=130
    status=0
    report=$(timeout 40 "$here/../linux/polkit/in_polkit.sh" --person think -- \
        bash -c "$move" "$kxctl" "$signal" 2>&1) || status=$?
    grep -q '^asked$' <<<"$report" || fail "nobody was asked: $report"
    expect_equal "the status after $signal" "$wanted" "$status"
    grep -q '^internal-ip .* refused$' <<<"$report" || fail "what is told after $signal: $report"
    expect_equal "the ARP entries after $signal" '' "$(ip neigh show nud permanent)"
    expect_equal "the commands to the new address after $signal" 'packets 0' \
        "$(nft list table inet kx | grep -o 'packets [0-9]*')"
done
