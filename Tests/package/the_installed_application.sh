#!/usr/bin/env bash
# Runs the application of the root file system KX_ROOT on the desktop of the caller, whose sockets are in
# /tmp. The application can write to no other folder.
set -euo pipefail

# shellcheck disable=SC2016
exec unshare --mount --propagation private sh -euc '
    mount --bind "$KX_ROOT" "$KX_ROOT"
    mount -o remount,bind,ro "$KX_ROOT"
    mount --bind /tmp "$KX_ROOT/tmp"
    exec chroot "$KX_ROOT" /usr/bin/kxconfig'
