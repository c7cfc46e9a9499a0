#!/usr/bin/env bash
# The command line needs no library of a desktop, so that a machine without a display installs it alone.
#
# usage: Tests/commands/no_desktop.sh PROGRAM
set -euo pipefail

libraries=$(ldd "$1")
grep -q libQt6Core <<<"$libraries" || {
    printf 'failed: %s does not link what it is known to link\n' "$1" >&2
    exit 1
}
if grep -E 'libQt6(Gui|Widgets)|libX11|libwayland|lib(Open)?GL' <<<"$libraries"; then
    printf 'failed: %s links a library of a desktop\n' "$1" >&2
    exit 1
fi
