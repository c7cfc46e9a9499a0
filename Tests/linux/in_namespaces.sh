#!/usr/bin/env bash
# Runs a command with the right to make network namespaces, or says that this system gives none.
set -euo pipefail
here=$(dirname -- "$(readlink -f -- "${BASH_SOURCE[0]}")")
# shellcheck source=Tests/lab/expectations.sh
source "$here/../lab/expectations.sh"
PATH=$PATH:/usr/sbin:/sbin

skip_without_namespaces
namespaces=(--net)
((EUID == 0)) || namespaces=(--user --map-root-user --net)
exec unshare "${namespaces[@]}" -- "$@"
