#!/usr/bin/env bash
# An ordinary user can run the lab. Root runs this test as the user nobody.
set -euo pipefail
here=$(dirname -- "$(readlink -f -- "${BASH_SOURCE[0]}")")
# shellcheck source=Tests/lab/expectations.sh
source "$here/expectations.sh"
probe=$1

as_user=()
((EUID != 0)) || as_user=(setpriv --reuid nobody --regid nogroup --clear-groups --)

if ! reason=$("${as_user[@]}" unshare --user --map-root-user --net true 2>&1); then
    printf 'skipped: no user namespaces for an ordinary user here (%s)\n' "$reason"
    exit 77
fi
if ! "${as_user[@]}" test -x "$probe"; then
    printf 'skipped: an ordinary user cannot reach %s\n' "$probe"
    exit 77
fi
exec "${as_user[@]}" "$here/../../scripts/lab" -- "$here/a_unit_moves.sh" "$probe"
