#!/usr/bin/env bash
#
# in_polkit.sh - run a command as an ordinary user under a polkit daemon of its own
#
# SYNOPSIS
#   Tests/linux/polkit/in_polkit.sh [option]... [--] command [argument]...
#
# DESCRIPTION
#   Starts the host's own message bus and polkit daemon anew, with a private /run, and runs the
#   command there as the user kx-user, who is in no administrator's group. The daemon knows the
#   application's actions, from Resources/, and those of polkit itself; the program that they name
#   is installed where they name it. A person may sit at the dialogs of the command; their
#   administrator is root.
#
#   It needs root, because a program that changes its user does not do so for anybody else's
#   namespaces. The mounts and processes are its own, the network is the caller's: run it inside
#   scripts/lab for a private one with units. Nothing of it is left when the command has ended.
#
#   The command finds
#     HOME           a folder of its own
#     KX_DIALOGS     a file with one line for each question that the person was asked, the
#                    action's name
#     KX_MESSAGES    a file with one line for each of these questions, the text of the dialog; and
#                    a line "taken back" for each dialog that the daemon closes again
#     KX_HOST        a pipe: the line "end" in it ends the bus and the daemon, "start" starts
#                    them anew, "stop" stops the daemon as a hanging one is stopped, "continue"
#                    lets it go on, and "leave" ends the person's agent
#
# OPTIONS
#   --person ANSWER  who sits at the dialogs: one who will allow, refuse (by a wrong password),
#                    dismiss, or think without an end; without this option nobody does
#   --password TEXT  the password of root, for an agent that asks for it; without this option none is right
#   --after SECONDS  how long the person takes for each answer; default 0
#   --rule RESULT    what the host's rules say of the user's questions, before any dialog: yes or
#                    no; without this option what the actions themselves say
#   --without PART   what the host lacks: "action", the application's own, "tool", the program that
#                    they name, "launcher", the program that runs tools, "polkit", the daemon, or
#                    "bus", which means the daemon too
#   --root           run the command as root
#   --help           this text
#
# ENVIRONMENT
#   KX_BUILD_DIR     where kxperson and kxarp were built, in bin/; default build/dev
#
# EXIT STATUS
#   The command's own, 128 and the signal's number when a signal ended it; 125 when this script
#   itself failed, 2 when it was called wrongly, 77 without the rights that it needs.
#
# EXAMPLE
#   scripts/lab -- Tests/linux/polkit/in_polkit.sh --person allow -- build/dev/bin/kxconfig

set -euo pipefail
PATH=$PATH:/usr/sbin:/sbin

readonly failed=125 usage_failed=2 skipped=77
readonly seconds_to_ready=20
readonly user=kx-user user_id=54321

die() {
    local status=$1
    shift
    printf 'in_polkit: %s\n' "$*" >&2
    exit "$status"
}

print_help() {
    sed -n '3,/^$/{s/^# \{0,1\}//;p}' "$script"
}

# Copies a file or folder and mounts the copy over it, so that it can be changed only here.
mount_copy() {
    local copy=$scratch/${1//\//_}
    cp -a -- "$1" "$copy"
    mount --bind -- "$copy" "$1"
}

set_password() {
    local proof='!' others
    if [[ -n $password ]]; then
        proof=$(perl -e 'print crypt($ARGV[0], q($6$salt$))' -- "$password")
    fi
    others=$(grep -v '^root:' /etc/shadow)
    printf 'root:%s:19000:0:99999:7:::\n%s\n' "$proof" "$others" >/etc/shadow
}

add_user() {
    mount_copy /etc/passwd
    mount_copy /etc/group
    mount_copy /etc/shadow
    printf '%s:x:%d:%d::%s:/bin/bash\n' "$user" "$user_id" "$user_id" "$home" >>/etc/passwd
    printf '%s:x:%d:\n' "$user" "$user_id" >>/etc/group
    printf '%s:!:19000:0:99999:7:::\n' "$user" >>/etc/shadow
    set_password
    install -d -m 700 -o "$user_id" -g "$user_id" "$home"
}

install_actions() {
    local actions=/usr/share/polkit-1/actions
    install -d -m 755 "$scratch/actions"
    cp -- "$actions/org.freedesktop.policykit.policy" "$scratch/actions"
    [[ $without == action ]] || cp -- "$top"/Resources/*.policy "$scratch/actions"
    mount --bind -- "$scratch/actions" "$actions"
}

install_rules() {
    local rules=/etc/polkit-1/rules.d
    install -d -m 755 "$scratch/rules"
    {
        printf 'polkit.addAdminRule(function(action, subject) { return ["unix-user:root"]; });\n'
        if [[ -n $rule ]]; then
            printf 'polkit.addRule(function(action, subject) {\n'
            printf '    return subject.user == "%s" ? polkit.Result.%s : null;\n});\n' \
                "$user" "${rule^^}"
        fi
    } >"$scratch/rules/10-test.rules"
    mount --bind -- "$scratch/rules" "$rules"
}

# Beside what the folder holds already.
install_tool() {
    local folder=/usr/libexec
    install -d -m 755 "$scratch/libexec" "$scratch/libexec-here"
    mount --rbind -- "$folder" "$scratch/libexec"
    install -D -m 755 -- "$kxarp" "$scratch/libexec-here/kxconfig/kxarp"
    find "$scratch/libexec" -mindepth 1 -maxdepth 1 ! -name kxconfig \
        -exec ln -s -t "$scratch/libexec-here" -- {} +
    mount --bind -- "$scratch/libexec-here" "$folder"
}

# The folder of the project may be below a folder that is closed to other users. Then the rest of that
# folder is hidden, so that the way to the project can be opened.
open_way_to_project() {
    as_user test -r "$script" && return
    local closed=/${top#/}
    while ! as_user test -x "${closed%/*}/" && [[ ${closed%/*} != '' ]]; do
        closed=${closed%/*}
    done
    install -d "$scratch/project"
    mount --rbind -- "$top" "$scratch/project"
    mount -t tmpfs -o mode=755 tmpfs "$closed"
    mkdir -p -- "$top"
    mount --rbind -- "$scratch/project" "$top"
    as_user test -r "$script" || die "$failed" "$top is closed to other users"
}

# Reads the first line that a program writes to the descriptor $2 when the program is ready.
await() {
    read -r -t "$seconds_to_ready" -u "$2" || {
        cat -- "$scratch"/bus "$scratch"/polkitd >&2 2>/dev/null || true
        die "$failed" "$1 did not start"
    }
}

has_daemon() {
    dbus-send --system --print-reply --dest=org.freedesktop.DBus / \
        org.freedesktop.DBus.GetNameOwner string:org.freedesktop.PolicyKit1 >/dev/null 2>&1
}

start_bus() {
    exec {ready}< <(exec dbus-daemon --system --nofork --nopidfile --nosyslog --print-address \
        2>"$scratch/bus")
    bus=$!
    await 'the bus' "$ready"
}

start_daemon() {
    /usr/lib/polkit-1/polkitd --no-debug >"$scratch/polkitd" 2>&1 &
    daemon=$!
    local end=$((SECONDS + seconds_to_ready))
    until has_daemon; do
        ((SECONDS < end)) || die "$failed" "polkit did not start: $(<"$scratch/polkitd")"
        sleep 0.02
    done
}

# Reads the words in KX_HOST and carries them out.
obey() {
    local word
    while read -r word; do
        case $word in
        end) kill "$bus" "$daemon" ;;
        stop) kill -STOP "$daemon" ;;
        continue) kill -CONT "$daemon" ;;
        leave) kill -KILL "$(<"$scratch/agent")" ;;
        start)
            start_bus
            start_daemon
            ;;
        esac
    done <>"$host"
}

seat_person() {
    exec {ready}< <(exec "$kxperson" "$command_pid" "$person" "$seconds" "$dialogs" "$messages")
    printf '%s\n' "$!" >"$scratch/agent"
    await 'the person' "$ready"
}

as_user() {
    setpriv --reuid "$user_id" --regid "$user_id" --clear-groups -- "$@"
}

# Waits for the line that says that everything is ready, and then becomes the command.
become_command() {
    read -r <"$scratch/go"
    local identity=(--reuid "$user_id" --regid "$user_id" --clear-groups)
    if $as_root; then
        identity=()
    fi
    exec setpriv "${identity[@]}" -- env --default-signal=INT,QUIT \
        HOME="$home" USER="$user" LOGNAME="$user" KX_DIALOGS="$dialogs" KX_MESSAGES="$messages" \
        KX_HOST="$host" "$@"
}

run_inside() {
    set -E
    trap 'exit "$failed"' ERR
    umask 022
    # A folder for the bus and for all other files, so that there is nothing to clean up.
    mount -t tmpfs -o mode=755 tmpfs /run
    scratch=/run/kx
    install -d -m 755 /run/dbus "$scratch"
    home=$scratch/home dialogs=$scratch/dialogs messages=$scratch/messages host=$scratch/host
    : >"$dialogs"
    : >"$messages"
    mkfifo -- "$scratch/go"
    mkfifo -m 622 -- "$host"

    add_user
    open_way_to_project
    # The bus must not start any services by itself.
    mount -t tmpfs -o mode=755 tmpfs /usr/share/dbus-1/system-services
    if [[ $without != tool ]]; then
        install_tool
    fi
    if [[ $without != bus ]]; then
        start_bus
    fi
    if [[ $without == launcher ]]; then
        mount --bind /dev/null /usr/bin/pkexec
    fi
    if [[ $without != @(polkit|bus) ]]; then
        install_actions
        install_rules
        start_daemon
        obey &
    fi

    become_command "$@" <&0 &
    local command_pid=$!
    if [[ -n $person ]]; then
        seat_person
    fi
    printf 'go\n' >"$scratch/go"
    trap - ERR
    local status=0
    wait "$command_pid" || status=$?
    exit "$status"
}

script=$(readlink -f -- "${BASH_SOURCE[0]}")
top=${script%/Tests/linux/polkit/in_polkit.sh}
kxperson=${KX_BUILD_DIR:-$top/build/dev}/bin/kxperson
kxarp=${KX_BUILD_DIR:-$top/build/dev}/bin/kxarp

options=() person='' password='' seconds=0 rule='' without='' as_root=false inside=false
while (($# > 0)); do
    case $1 in
    --help)
        print_help
        exit 0
        ;;
    --inside) inside=true ;;
    --root)
        as_root=true
        options+=("$1")
        ;;
    --person | --password | --after | --rule | --without)
        (($# > 1)) || die "$usage_failed" "$1 needs a value"
        case $1 in
        --person) person=$2 ;;
        --password) password=$2 ;;
        --after) seconds=$2 ;;
        --rule) rule=$2 ;;
        --without) without=$2 ;;
        esac
        options+=("$1" "$2")
        shift
        ;;
    --)
        shift
        break
        ;;
    -*) die "$usage_failed" "unknown option $1; see --help" ;;
    *) break ;;
    esac
    shift
done
(($# > 0)) || die "$usage_failed" 'no command; see --help'
[[ $person =~ ^(allow|refuse|dismiss|think|)$ ]] ||
    die "$usage_failed" '--person needs allow, refuse, dismiss or think'
[[ $seconds =~ ^[0-9]+$ ]] || die "$usage_failed" '--after needs a number of seconds'
[[ $rule =~ ^(yes|no|)$ ]] || die "$usage_failed" '--rule needs yes or no'
[[ $without =~ ^(action|tool|launcher|polkit|bus|)$ ]] ||
    die "$usage_failed" '--without needs action, tool, launcher, polkit or bus'

if $inside; then
    run_inside "$@"
fi
# In a namespace whose root is another user outside, there is no other user to become.
if ! reason=$(unshare --mount --pid --fork setpriv --reuid "$user_id" true 2>&1); then
    printf 'skipped: no right to a private system bus here (%s)\n' "$reason"
    exit "$skipped"
fi
for program in "$kxperson" "$kxarp"; do
    [[ -x $program ]] || die "$failed" "no program $program; build it, or set KX_BUILD_DIR"
done
# Everything ends with the process that made the namespaces, and this process does not outlive its
# parent. It would ignore a plain request to end.
setpriv --pdeathsig KILL unshare --mount --pid --fork --kill-child --mount-proc -- \
    "$script" --inside ${options[@]+"${options[@]}"} -- "$@" <&0 &
namespaces=$!
trap 'kill -KILL "$namespaces"; exit 129' HUP
trap 'kill -KILL "$namespaces"; exit 130' INT
trap 'kill -KILL "$namespaces"; exit 143' TERM
status=0
wait "$namespaces" || status=$?
exit "$status"
