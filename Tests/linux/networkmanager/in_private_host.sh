#!/usr/bin/env bash
# Runs a command with empty folders of NetworkManager of its own and without processes that outlive it,
# or says that this system does not allow it. KX_PRIVATE_HOST names the folders.
set -euo pipefail
here=$(dirname -- "$(readlink -f -- "${BASH_SOURCE[0]}")")
# shellcheck source=Tests/lab/expectations.sh
source "$here/../../lab/expectations.sh"
PATH=$PATH:/usr/sbin:/sbin

if [[ -z ${KX_PRIVATE_HOST:-} ]]; then
    skip_without_namespaces
    KX_PRIVATE_HOST=$(mktemp -d)
    export KX_PRIVATE_HOST
    trap 'rm -rf -- "$KX_PRIVATE_HOST"' EXIT
    namespaces=(--net --mount --pid --fork --kill-child --mount-proc)
    ((EUID == 0)) || namespaces+=(--user --map-root-user)
    unshare "${namespaces[@]}" -- "$0" "$@"
    exit
fi

for folder in /etc/NetworkManager /var/lib/NetworkManager /run; do
    mkdir -p "$KX_PRIVATE_HOST$folder"
    mount --bind "$KX_PRIVATE_HOST$folder" "$folder"
done
exec "$@"
