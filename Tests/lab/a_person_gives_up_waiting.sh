#!/usr/bin/env bash
# The person at the dialog never answers. The window of an ordinary user is painted meanwhile and takes
# Escape, which takes the question back: the dialog closes, and the window goes on as after a refusal. The
# same when polkit hangs while it asks.
set -euo pipefail
here=$(dirname -- "$(readlink -f -- "${BASH_SOURCE[0]}")")
# shellcheck source=Tests/lab/expectations.sh
source "$here/expectations.sh"
kxconfig=$2

# Waits for the open dialog, as a program beside the window, and lets polkit hang for a while then.
# shellcheck disable=SC2016 # another shell expands it
hang='run (until [ -s "$KX_DIALOGS" ]; do sleep 0.05; done; echo stop >"$KX_HOST"; sleep 4; echo continue >"$KX_HOST") &'
move='
    parameter internal IP address
    type 192.0.2.50
    cancel
    watch
    press applyButton
    waited 1000
    line No ARP entry was made for 192.0.2.50: administrator rights were not given
    logs Send to: 192.0.2.50 command: ^^IdIC0000232'
export QT_QPA_PLATFORM=offscreen QT_QPA_GENERIC_PLUGINS=kxsteps QT_PLUGIN_PATH=$KX_BUILD_DIR/plugins

visit() {
    KX_STEPS="
        log
        interface kx0
        discover 1
        unit 4B 58 00 00 00 01
        $1
        $move
        run until grep -q 'taken back' \"\$KX_MESSAGES\"; do sleep 0.05; done
        read KX_MESSAGES
        discover 1" timeout 50 "$here/../linux/polkit/in_polkit.sh" --person think -- "$kxconfig" ||
        fail "the visit failed"
}

for hindrance in '' "$hang"; do
    report=$(visit "$hindrance") || fail "$report"
    expect_equal 'what was waited for' 'Waiting: Waiting for administrator rights.' \
        "$(grep '^Waiting: ' <<<"$report")"
    expect_equal 'the alerts' \
        'Alert: KXConfig: Authentication was not completed, some features may not be available.' \
        "$(grep '^Alert: ' <<<"$report")"
    expect_equal 'the end of the dialog' 'Read: taken back' "$(grep '^Read: ' <<<"$report" | tail -n 1)"
    grep -q '^Read: .*kxarp -s 192.0.2.50 02:4B:58:00:00:01$' <<<"$report" || fail "the dialog's text: $report"
    expect_equal 'the ARP entries' '' "$(ip neigh show nud permanent)"
done
