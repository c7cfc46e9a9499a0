#!/usr/bin/env bash
# Runs in a lab whose record is in the folder tmp of the root file system $1. Runs the rest of its
# arguments there, as a person without rights.
set -euo pipefail
root=$1
shift

exec env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin LC_ALL=C.UTF-8 HOME=/home/person \
    XDG_RUNTIME_DIR=/run/person KX_UNITS_RECORD="${KX_UNITS_RECORD#"$root"}" \
    chroot --userspec=nobody:nogroup "$root" "$@"
