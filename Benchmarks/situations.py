#!/usr/bin/env python3
"""What other programs say in the twelve situations in which Tests/lab/kxctl/situations.py judges kxctl,
as a table.

usage: Benchmarks/situations.py

It needs the right to make network namespaces, kxunits in KX_BUILD_DIR (build/dev without it), and
programs of these Debian packages: arp-scan, dbus-daemon, iproute2, iputils-arping, network-manager.

Each program runs as it is, with its own option for machines where it has one. It is judged three times, as
kxctl is: the exit code tells the situation from a success, standard output parses, and its keys are
those of a success. An empty output is no document. A situation that a program cannot be in, because
it does nothing alike, has a dash.
"""

import contextlib
import json
import os
import pathlib
import re
import subprocess
import sys
import tempfile

from measuring import PRIVATE_HOST, network_manager

ROOT = pathlib.Path(__file__).resolve().parents[1]
LAB = str(ROOT / "scripts/lab")
MANY = 10000
SITUATIONS = ("no unit", "port taken", "no link", "send refused", "one of two silent", "wrong value",
              "half done", "unknown command", "zero results", "one result", "hostile unit ID",
              "10,000 units")
SUCCESSES = SITUATIONS[9:]
HOSTILE = "a:b\"\n\x1b["
FREE, HELD = "192.0.2.200", "192.0.2.11"


def run(*words):
    subprocess.run(words, check=True, capture_output=True)


# --- What is planted ---

@contextlib.contextmanager
def no_link():
    run("ip", "link", "set", "kx0", "down")
    try:
        yield
    finally:
        run("ip", "link", "set", "kx0", "up")


@contextlib.contextmanager
def batch(*lines):
    with tempfile.NamedTemporaryFile("w") as file:
        file.write("\n".join(lines) + "\n")
        file.flush()
        yield file.name


@contextlib.contextmanager
def neighbours(count):
    """So many entries in the neighbour table, and no other."""
    run("ip", "link", "set", "kx0", "arp", "off")  # empties the table
    run("ip", "link", "set", "kx0", "arp", "on")
    lines = [f"neigh replace 10.0.{i // 250}.{i % 250 + 2} lladdr 02:4b:58:00:{i >> 8:02x}:{i & 255:02x} "
             "dev kx0 nud permanent" for i in range(count)]
    with batch(*lines) as file:
        run("ip", "-batch", file)
    yield


@contextlib.contextmanager
def hostile_alias():
    run("ip", "link", "set", "kx0", "alias", HOSTILE)
    yield


@contextlib.contextmanager
def hostile_profile():
    run("nmcli", "connection", "add", "type", "ethernet", "ifname", "kx8", "con-name", HOSTILE)
    yield


# --- How each program's output parses: what stands for its keys, or an error ---

def keys_of_json(text):
    return sorted(json.loads(text)[0]) if json.loads(text) else []


def keys_of_terse(text):
    """nmcli: a name and a value on each line, or the values of the fields that were asked for."""
    rows = [re.split(r"(?<!\\):", line) for line in text.splitlines()]
    if not rows or any(len(row) != 2 for row in rows):
        raise ValueError(text)
    return [row[0] for row in rows] if rows[0][0].startswith("connection.") else len(rows[0])


def keys_of_columns(text):
    rows = [line.split("\t") for line in text.splitlines()]
    if not rows or any(len(row) != 2 for row in rows):
        raise ValueError(text)
    return 2


def keys_of_prose(text):
    raise ValueError(text)


# --- Each program's situations: what is planted, its words, and the success that has the keys. A
# function makes words of what the context gives. What ends a success stands last. ---

def nmcli():
    show = ["nmcli", "-t", "-f", "connection.id,connection.type", "connection", "show"]
    listing = ["nmcli", "-t", "-f", "NAME,TYPE", "connection", "show"]
    plain = contextlib.nullcontext
    run("nmcli", "connection", "add", "type", "ethernet", "ifname", "kx9", "con-name", "x")
    return keys_of_terse, {
        "no unit": (plain, [*show, "missing"], "one result"),
        "no link": (no_link, ["nmcli", "-t", "device", "connect", "kx1"], "one result"),
        "one of two silent": (plain, [*show, "x", "missing"], "one result"),
        "wrong value": (plain, ["nmcli", "connection", "modify", "x", "ipv4.addresses",
                                "192.0.2.999/24"], "one result"),
        "unknown command": (plain, ["nmcli", "-t", "frobnicate"], "one result"),
        "zero results": (plain, ["nmcli", "-t", "-f", "SSID,BSSID", "device", "wifi", "list"],
                         "a profile that is there"),
        "one result": (plain, [*show, "x"], "one result"),
        "hostile unit ID": (hostile_profile, listing, "a profile that is there"),
        "a profile that is there": (plain, listing, "a profile that is there"),
        "half done": (plain, ["nmcli", "-t", "connection", "delete", "x", "missing"], "one result"),
    }


def ip():
    command = ["ip", "-json"]
    table = [*command, "neigh", "show", "dev", "kx0"]
    plain = contextlib.nullcontext
    return keys_of_json, {
        "no unit": (plain, [*command, "neigh", "get", FREE, "dev", "kx0"], "one result"),
        "no link": (no_link, [*command, "route", "get", HELD], "one result"),
        "wrong value": (plain, [*command, "address", "add", "192.0.2.999/24", "dev", "kx0"],
                        "one result"),
        "half done": (lambda: batch("address add 198.51.100.7/24 dev kx0",
                                    "address add 198.51.100.999/24 dev kx0"),
                      lambda file: [*command, "-batch", file], "one result"),
        "unknown command": (plain, [*command, "frobnicate"], "one result"),
        "zero results": (lambda: neighbours(0), table, "one result"),
        "one result": (lambda: neighbours(1), table, "one result"),
        "hostile unit ID": (hostile_alias, [*command, "link", "show", "kx0"], "hostile unit ID"),
        "10,000 units": (lambda: neighbours(MANY), table, "one result"),
    }


def arping():
    command = ["arping", "-c", "1", "-w", "1", "-I", "kx0"]
    plain = contextlib.nullcontext
    return keys_of_prose, {
        "no unit": (plain, [*command, FREE], "one result"),
        "no link": (no_link, [*command, HELD], "one result"),
        "wrong value": (plain, [*command, "192.0.2.999"], "one result"),
        "unknown command": (plain, ["arping", "--frobnicate"], "one result"),
        "one result": (plain, [*command, HELD], "one result"),
    }


def arp_scan():
    command = ["arp-scan", "-I", "kx0", "--plain", "--retry=2", "--format=${ip}\\t${mac}"]
    plain = contextlib.nullcontext
    return keys_of_columns, {
        "no unit": (plain, [*command, FREE], "one result"),
        "no link": (no_link, [*command, HELD], "one result"),
        "one of two silent": (plain, [*command, HELD, FREE], "one result"),
        "wrong value": (plain, [*command, "192.0.2.999"], "one result"),
        "unknown command": (plain, ["arp-scan", "--frobnicate"], "one result"),
        "zero results": (plain, [*command, "192.0.2.240/29"], "one result"),
        "one result": (plain, [*command, HELD], "one result"),
        "10,000 units": (plain, [*command, "--bandwidth=20M", "10.0.0.0/18"], "one of many"),
        "one of many": (plain, [*command, "10.0.0.11"], "one of many"),
    }


PROGRAMS = {"nmcli -t": nmcli, "ip -json": ip, "arping": arping, "arp-scan --plain": arp_scan}


def result_of(situation):
    planted, words, _ = situation
    with planted() as given:
        ended = subprocess.run(words(given) if callable(words) else words, capture_output=True,
                               text=True, errors="surrogateescape", check=False)
    return ended.returncode, ended.stdout


def keys_in(output, keys_of):
    """None for an output that does not parse."""
    try:
        return keys_of(output)
    except (ValueError, KeyError, TypeError):
        return None


def judge(program, names):
    """Prints a line of JSON with the verdicts of these situations."""
    keys_of, situations = PROGRAMS[program]()
    verdicts = {}
    for name, situation in situations.items():
        if name in names:
            wanted = keys_in(result_of(situations[situation[2]])[1], keys_of)
            status, output = result_of(situation)
            keys = keys_in(output, keys_of)
            verdicts[name] = ((status == 0) == (name in SUCCESSES), keys is not None,
                              keys is not None and keys == wanted)
    print(json.dumps(verdicts), flush=True)


def inside(program, kind):
    names = SITUATIONS[11:] if kind == "many" else SITUATIONS[:11]
    if program == "nmcli -t":
        with network_manager():
            judge(program, names)
    else:
        judge(program, names)


def verdicts_of(program):
    own = [sys.executable, __file__, "--inside", program]
    if program == "nmcli -t":
        runs = [[str(PRIVATE_HOST), *own, "few"]]
    else:
        runs = [[LAB, "--", *own, "few"],
                [LAB, "--units", str(MANY), "--network", "10.0.0.0/16", "--", *own, "many"]]
    verdicts = {}
    for words in runs:
        output = subprocess.run(words, check=True, capture_output=True, text=True).stdout
        verdicts |= json.loads(output.splitlines()[-1])
    return verdicts


def main():
    if sys.argv[1:2] == ["--inside"]:
        inside(*sys.argv[2:])
        return
    found = {program: verdicts_of(program) for program in PROGRAMS}
    print("| Situation | " + " | ".join(PROGRAMS) + " |")
    print("|---|" + "---|" * len(PROGRAMS))
    for name in SITUATIONS:
        cells = [" ".join("yes" if each else "no" for each in found[program][name])
                 if name in found[program] else "–" for program in PROGRAMS]
        print(f"| {name} | " + " | ".join(cells) + " |")
    print("| of 36 | " + " | ".join(
        str(sum(sum(each) for each in found[program].values())) for program in PROGRAMS) + " |")


if __name__ == "__main__":
    os.environ.setdefault("KX_BUILD_DIR", str(ROOT / "build/dev"))
    os.environ["LC_ALL"] = "C.UTF-8"
    main()
