#!/usr/bin/env bash
# SIGTERM, SIGINT and SIGHUP end the program as Quit does: its status is 0, and it has put away its work. So
# they do while a person is asked for administrator rights, and while the alert is open. The dialog is taken
# back, and the command of the interrupted action is not sent.
#
# usage: a_signal_ends_the_program.sh PROBE KXCONFIG
set -euo pipefail
here=$(dirname -- "$(readlink -f -- "${BASH_SOURCE[0]}")")
# shellcheck source=Tests/lab/expectations.sh
source "$here/expectations.sh"
kxconfig=$2
export QT_QPA_PLATFORM=offscreen QT_QPA_GENERIC_PLUGINS=kxsteps QT_PLUGIN_PATH=$KX_BUILD_DIR/plugins

move='
    interface kx0
    discover 1
    unit 4B 58 00 00 00 01
    parameter internal IP address
    type 192.0.2.50
    keep alerts
    stay'

# usage: end_by SIGNAL CONDITION PERSON STEPS... ; the signal is sent when the condition of the shell holds
end_by() {
    local signal=$1 condition=$2 person=$3 steps=$4 status=0
    # The window's process is the parent of the shell that runs a step.
    KX_STEPS="$move
        last run echo put away
        run (until $condition; do sleep 0.05; done; sleep 1; kill -$signal \$PPID) &
        $steps" timeout 30 "$here/../linux/polkit/in_polkit.sh" --person "$person" -- "$kxconfig" \
        >"$report" 2>&1 || status=$?
    expect_equal "the status after $signal" 0 "$status"
    grep -q '^put away' "$report" || fail "the work was not put away after $signal: $(<"$report")"
    expect_equal "what was sent to the new address after $signal" 'packets 0' \
        "$(nft list table inet kx | grep -o 'packets [0-9]*')"
}

# The question who holds the address goes to the discard port.
nft 'add table inet kx { chain out { type filter hook output priority 0;
    ip daddr 192.0.2.50 udp dport != 9 counter; }; }'

report=$(mktemp)
trap 'rm -f -- "$report"' EXIT
# shellcheck disable=SC2016 # another shell expands it
dialog_was_open='[ -s "$KX_DIALOGS" ]'
for signal in TERM INT HUP; do
    end_by "$signal" true think ''
    end_by "$signal" "$dialog_was_open" think 'press applyButton'
    end_by "$signal" "$dialog_was_open" dismiss 'press applyButton'
done
