#!/usr/bin/env bash
# The shells themselves complete what the generated scripts tell them.
#
# usage: Tests/commands/completions.sh FOLDER, where the build has written the scripts
set -euo pipefail
folder=$1

fail() {
    printf 'failed: %s\n' "$*" >&2
    exit 1
}

expect_equal() {
    [[ $3 == "$2" ]] || fail "$(printf '%s\n  wanted: %s\n  found:  %s' "$1" "$2" "$3")"
}

# What bash offers for the words of a command line; the last one is being typed.
offered_by_bash() {
    COMP_WORDS=("$@")
    COMP_CWORD=$(($# - 1))
    COMPREPLY=()
    _kxctl 2>/dev/null
    printf '%s ' "${COMPREPLY[@]}"
}

# shellcheck source=/dev/null
source "$folder/kxctl.bash"
compopt() { :; } # works inside a completion only
expect_equal 'bash: commands' 'set show ' "$(offered_by_bash kxctl s | tr ' ' '\n' | sort | xargs printf '%s ')"
expect_equal 'bash: options of a command' '--expect ' "$(offered_by_bash kxctl discover --ex)"
expect_equal 'bash: general options behind a command' '--json ' "$(offered_by_bash kxctl show --js)"
expect_equal 'bash: parameters' 'destination-port= ' "$(offered_by_bash kxctl set id:1 destination-p)"
expect_equal 'bash: ports' 'auto ' "$(offered_by_bash kxctl --port a)"
expect_equal 'bash: interfaces' 'lo ' "$(offered_by_bash kxctl -i l)"
expect_equal 'bash: nothing for a number' ' ' "$(offered_by_bash kxctl discover --wait '')"

cd "$folder"
expect_equal 'bash: files' 'kxctl.bash ' "$(offered_by_bash kxctl compare kxctl.b)"
expect_equal 'bash: no files for a unit' ' ' "$(offered_by_bash kxctl show kxctl.b)"

zsh -n "$folder/_kxctl" || fail 'zsh cannot read its completion'
expect_equal 'zsh: what it completes' '#compdef kxctl' "$(head -n 1 "$folder/_kxctl")"
# The functions of the shell tell what they are given.
told=$(zsh -fc '
    _arguments() { print -rl -- "$@"; line=(set); state=argument }
    _values() { print -rl -- "$@" }
    source "$1"' zsh "$folder/_kxctl")
for part in '--json[print one JSON document]' '--dry-run[tell what would be changed, and change nothing]' \
    'destination-port='; do
    [[ $told == *"$part"* ]] || fail "zsh does not tell $part"
done

offered_by_fish() {
    HOME=$scratch XDG_CONFIG_HOME=$scratch fish --no-config -c "source '$folder/kxctl.fish'; complete -C '$1'" |
        cut -f 1 | sort | xargs printf '%s '
}
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
expect_equal 'fish: commands' 'set show ' "$(offered_by_fish 'kxctl s')"
expect_equal 'fish: options of a command' '--expect ' "$(offered_by_fish 'kxctl discover --ex')"
expect_equal 'fish: parameters' 'destination-port= ' "$(offered_by_fish 'kxctl set id:1 destination-p')"
expect_equal 'fish: files' 'kxctl.bash ' "$(offered_by_fish 'kxctl compare kxctl.b')"
expect_equal 'fish: ports' 'auto ' "$(offered_by_fish 'kxctl --port a')"
