#!/usr/bin/env bash
# An ordinary user changes a unit's address with the real window, under a real polkit daemon. The first
# argument is the answer to the question for administrator rights: allow, refuse, dismiss, or nobody when
# there is no person to ask.
set -euo pipefail
here=$(dirname -- "$(readlink -f -- "${BASH_SOURCE[0]}")")
# shellcheck source=Tests/lab/expectations.sh
source "$here/expectations.sh"
answer=$1 kxconfig=$2
in_polkit=$here/../linux/polkit/in_polkit.sh

person=()
[[ $answer == nobody ]] || person=(--person "$answer")
common='
    press logDrawerButton
    interface kx0
    discover 1
    unit 4B 58 00 00 00 01
    parameter internal IP address
    type 192.0.2.50
    press applyButton
    logs Send to: 192.0.2.50 command: ^^IdIC0000232'
neighbour=''
if [[ $answer == allow ]]; then
    KX_STEPS="$common
        shows internal IP address: 192.0.2.50
        parameter destination Port number
        type 3523
        press applyButton
        shows destination Port number: 3523
        parameter internal IP address
        type 192.0.2.51
        press applyButton
        shows internal IP address: 192.0.2.51
        print
        read KX_DIALOGS"
    neighbour='192.0.2.50 dev kx0 lladdr 02:4b:58:00:00:01 PERMANENT'
else
    KX_STEPS="$common
        line No ARP entry was made for 192.0.2.50: administrator rights were not given
        print
        read KX_DIALOGS"
fi
export KX_STEPS
export QT_QPA_PLATFORM=offscreen QT_QPA_GENERIC_PLUGINS=kxsteps QT_PLUGIN_PATH=$KX_BUILD_DIR/plugins

report=$("$in_polkit" "${person[@]}" -- "$kxconfig") || fail "the visit failed: $report"

expect_equal 'the neighbour of the new address' "$neighbour" \
    "$(ip neigh show 192.0.2.50 nud permanent | sed 's/ *$//')"

if [[ $answer == allow ]]; then
    expect_equal 'the neighbour of the second address' \
        '192.0.2.51 dev kx0 lladdr 02:4b:58:00:00:01 PERMANENT' "$(ip neigh show 192.0.2.51 | sed 's/ *$//')"
else
    # The command went out anyway: the host asked which host has the new address, and none answered.
    expect_equal 'what became of the command' '  UDP server did send data.' \
        "$(grep -A 1 'Send to: 192.0.2.50 ' <<<"$report" | tail -n 1)"
    asked=$(ip neigh show 192.0.2.50 | sed 's/ *$//')
    [[ $asked == '192.0.2.50 dev kx0 '@(INCOMPLETE|FAILED) ]] || fail "the neighbour of the new address: $asked"
fi

alerts=$(grep '^Alert: ' <<<"$report" || true)
stuffed=$(grep 'Stuff ARP cache' <<<"$report" || true)
if [[ $answer == allow ]]; then
    expect_equal 'the alerts' '' "$alerts"
    expect_equal 'the entries in the ARP cache' \
        '  Stuff ARP cache with MAC 02:4B:58:00:00:01 for IP 192.0.2.50
  Stuff ARP cache with MAC 02:4B:58:00:00:01 for IP 192.0.2.51' "$stuffed"
else
    expect_equal 'the alerts' \
        'Alert: KXConfig: Authentication was not completed, some features may not be available.' "$alerts"
    expect_equal 'the entries in the ARP cache' '' "$stuffed"
fi
questions=1
[[ $answer != nobody ]] || questions=0
expect_equal 'how often a person was asked' "$questions" "$(grep -c '^Read: ' <<<"$report" || true)"
