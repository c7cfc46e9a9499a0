#!/usr/bin/env bash
# The command line needs no library of a desktop and none of the window's toolkit, so that a machine
# without a display installs it alone.
#
# usage: Tests/commands/no_desktop.sh PROGRAM
set -euo pipefail

libraries=$(ldd "$1")
grep -q libnl-route <<<"$libraries" || {
    printf 'failed: %s does not link what it is known to link\n' "$1" >&2
    exit 1
}
if grep -E 'libQt|libX11|libwayland|lib(Open)?GL|libicu' <<<"$libraries"; then
    printf 'failed: %s links a library of a desktop\n' "$1" >&2
    exit 1
fi
