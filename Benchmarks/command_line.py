#!/usr/bin/env python3
"""Measures kxctl beside other programs, in the lab, and prints tables.

usage: Benchmarks/command_line.py [SECTION...]

Sections: start, interfaces, addresses, discover, many, set, losses, apply, apply-10, apply-30,
apply-1000, apply-10000. Without one, all of them.
It needs the right to make network namespaces, and programs of these Debian packages to compare with:
arp-scan, dbus-daemon, iproute2, iputils-arping, network-manager. KX_BUILD_DIR names the build folder;
without it build/release.

Both sides of a comparison run in one go, interleaved in random order, nine rounds. A ratio is that of
one round; the table has the median, the least and the most.
"""

import json
import os
import pathlib
import random
import socket
import subprocess
import sys
import tempfile
import time

from measuring import (BUILD, KXCTL, PRIVATE_HOST, ROOT, ROUNDS, LastReply, Run, compare, heading, last_reply_of,
                       mebibytes, milliseconds, network_manager, program, ratio, row, successful)

UNIT = "4B5800000001"


# --- The sections. Each runs in a private network. ---

def start():
    compare("Start to end", [("kxctl --version", [KXCTL, "--version"]),
                             ("a program that does nothing", [program("kxnothing")])],
            {"a program that does nothing": "1.2"})


def interfaces():
    with network_manager():
        compare("The interfaces", [("kxctl interfaces", [KXCTL, "interfaces"]),
                                   ("nmcli device", ["nmcli", "device"]),
                                   ("ip -json address", ["ip", "-json", "address"])],
                {"nmcli device": "below 1", "ip -json address": "3"})


def addresses():
    compare("Who holds an address (held)",
            [("kxctl check", [KXCTL, "check", "192.0.2.11"]),
             ("arping -c 1", ["arping", "-q", "-c", "1", "-I", "kx0", "192.0.2.11"]),
             ("arp-scan", ["arp-scan", "-q", "-I", "kx0", "192.0.2.11"])],
            repeats=1, statuses=(0, 1))  # kxctl ends with 1, because somebody holds it


def discover():
    expect = ["--expect", "200", "--json"]
    compare("200 units", [("kxctl discover --expect 200", [KXCTL, "discover", *expect]),
                          ("a bare loop", [program("kxbarediscovery"), "192.0.2.255", "200"]),
                          ("arp-scan of the subnet, for information",
                           ["arp-scan", "-q", "-I", "kx0", "192.0.2.0/24"])],
            {"a bare loop": "1.5"}, repeats=3)


def discovery_of_many():
    listener = LastReply()
    run = Run([KXCTL, "discover", "--expect", "10000", "--wait", "5", "--json"])
    listener.end()
    units = len(json.loads(run.output)["units"])
    return units, run.memory, run.ended - listener.time


def many():
    runs = [discovery_of_many() for _ in range(ROUNDS)]
    heading("10,000 units: kxctl discover --expect 10000")
    row("units listed", [units for units, _, _ in runs], str, "10000")
    row("peak memory", [memory for _, memory, _ in runs], mebibytes, "64 MiB")
    row("end after the last reply", [rest for _, _, rest in runs], milliseconds, "50 ms")
    with tempfile.NamedTemporaryFile() as same:
        document = successful([KXCTL, "show", "--all", "--json"]).output
        same.write(document)
        same.flush()
        compare(f"kxctl show --all --json of 10,000 units ({len(document):,} bytes), into a pipe, "
                "from the first byte to the last",
                [("kxctl show --all --json", [KXCTL, "show", "--all", "--json"]),
                 ("cat of the same bytes", ["cat", same.name])],
                {"cat of the same bytes": "10"}, measure=lambda run: run.writing, repeats=1)


def answer_time():
    """How long a unit takes to answer one request, asked by hand."""
    with socket.socket(socket.AF_INET, socket.SOCK_DGRAM) as asker:
        asker.bind(("", 3520))
        asker.settimeout(2)
        began = time.perf_counter()
        asker.sendto(b"^^IdX", ("192.0.2.11", 10000))
        asker.recv(1024)
        return time.perf_counter() - began


def set_value():
    # To find the unit, for the command and to read it back.
    exchanges = 3
    whole, more = [], []
    for index in range(10 * ROUNDS):
        port = 3521 + index % 2
        successful([KXCTL, "set", UNIT, "destination-port=3520"])
        own = exchanges * answer_time()
        seconds = successful([KXCTL, "set", UNIT, f"destination-port={port}"]).seconds
        whole.append(seconds)
        more.append(seconds - own)
    successful([KXCTL, "set", UNIT, "destination-port=3520"])
    heading("kxctl set of one value")
    row("from start to verified", whole, milliseconds)
    row("more than the unit's own answer times", more, milliseconds, "20 ms")


def losses():
    counts = [len(json.loads(Run([KXCTL, "discover", "--json"]).output)["units"])
              for _ in range(20)]
    heading("200 units that lose 30 %: kxctl discover")
    row("units found in 20 runs", counts, str, "200")
    print(f"\nAll 200 in {counts.count(200)} of 20 runs.")


# --- Tables of units ---

EDITS = 3
IN_FLIGHT = 8


def serial_of(number):
    return f"4B5800{number:06X}"


def write_table(folder, count, letter):
    """A table with three edits for each unit, other ones for each letter."""
    path = folder / f"{letter}.csv"
    with open(path, "w", encoding="utf-8") as file:
        file.write("serial,unit-id,destination-port,destination-mac\n")
        file.writelines(f"{serial_of(n)},{letter}{n:05},{3521 + ord(letter) % 3},"
                        f"02:00:00:00:00:{ord(letter):02X}\n" for n in range(1, count + 1))
    return path


def applied(path, count):
    """One run of kxctl apply that does every row."""
    for journal in path.parent.glob("*.jsonl"):
        journal.unlink()
    run = successful([KXCTL, "apply", str(path), "--yes", "--json", "--quiet", "--journal",
                      str(path.parent / "run.jsonl")])
    done = json.loads(run.output)["sums"]["done"]
    if done != count:
        sys.exit(f"command_line.py: {done} of {count} rows are done")
    return run


def letters():
    """Neighbours ask for different values."""
    while True:
        yield from "ABCDEFGHIJKLMNOPQRSTUVWXYZ"


def apply_table():
    """Each round changes every unit twice, once by each side."""
    count = 200
    ours, bare = [], []
    with tempfile.TemporaryDirectory() as name:
        choose = letters()
        for _ in range(ROUNDS):
            for side in random.sample(["kxctl", "bare"], 2):
                letter = next(choose)
                path = write_table(pathlib.Path(name), count, letter)
                if side == "kxctl":
                    ours.append(applied(path, count).seconds)
                else:
                    words = [program("kxbareedits"), "192.0.2.255", str(count), letter]
                    bare.append(successful(words).seconds)
    heading("200 units, three edits each")
    row("kxctl apply", ours, milliseconds)
    row("a bare loop with eight in flight", bare, milliseconds)
    row("kxctl apply, beside a bare loop", [a / b for a, b in zip(ours, bare)], ratio, "2")


def time_of_edit(lost, chance):
    """How long one edit takes by the waits of its retries alone, when answers take no time."""
    def arrives():
        return chance.random() >= lost
    elapsed = 0
    while True:
        accepted = arrives()
        if accepted and arrives():
            return elapsed
        for number, at in enumerate((0.2, 0.6, 1.2, 2.0), 1):
            sends = 0 if accepted or number > 2 else 1
            asked = 1 if number == 1 else 2
            if sends and arrives():
                accepted = True
                asked += 1
            if any([arrives() for _ in range(asked)]):
                return elapsed + at
        elapsed += 3.0


def waits_of_retries(count, lost, chance):
    """The time of a run in which nothing takes time but the retries: one unit alone, and then eight at
    once. The next unit begins when one has ended."""
    def time_of_unit():
        return sum(time_of_edit(lost, chance) for _ in range(EDITS))
    free = [time_of_unit()] * IN_FLIGHT
    for _ in range(count - 1):
        free.sort()
        free[0] += time_of_unit()
    return max(free)


def apply_with_losses(percent):
    count = 200
    chance = random.Random(1)
    waits = [waits_of_retries(count, percent / 100, chance) for _ in range(500)]
    with tempfile.TemporaryDirectory() as name:
        choose = letters()
        runs = [applied(write_table(pathlib.Path(name), count, next(choose)), count)
                for _ in range(ROUNDS)]
    heading(f"200 units that lose {percent} % of their answers, three edits each")
    row("kxctl apply, all of them done", [run.seconds for run in runs], milliseconds, "the waits")
    row("the waits of its retries alone, computed", waits, milliseconds)


def apply_many(count):
    seconds, memory, plans = [], [], []
    with tempfile.TemporaryDirectory() as name:
        choose = letters()
        for _ in range(3):
            path = write_table(pathlib.Path(name), count, next(choose))
            plan, rest = last_reply_of([KXCTL, "plan", str(path), "--json"])
            if json.loads(plan.output)["sums"]["planned"] != count:
                sys.exit("command_line.py: the plan does not have every unit")
            plans.append(rest)
            run = applied(path, count)
            seconds.append(run.seconds)
            memory.append(run.memory)
    heading(f"{count:,} units, three edits each")
    row("kxctl apply, all of them done", seconds, milliseconds)
    row("its peak memory", memory, mebibytes, "128 MiB" if count == 10_000 else "")
    row("kxctl plan: end after the last reply", plans, milliseconds, "3 s" if count == 10_000 else "")


LAB = [str(ROOT / "scripts/lab")]
MANY = ["--units", "10000", "--network", "10.0.0.0/16"]
SECTIONS = {
    "start": (start, [*LAB, "--units", "1", "--"]),
    "interfaces": (interfaces, [str(PRIVATE_HOST)]),
    "addresses": (addresses, [*LAB, "--units", "40", "--"]),
    "discover": (discover, [*LAB, "--units", "200", "--"]),
    "many": (many, [*LAB, *MANY, "--"]),
    "set": (set_value, [*LAB, "--units", "1", "--"]),
    "apply": (apply_table, [*LAB, "--units", "200", "--"]),
    "apply-10": (lambda: apply_with_losses(10),
                 [*LAB, "--units", "200", "--units-options", "--lose 10", "--"]),
    "apply-30": (lambda: apply_with_losses(30),
                 [*LAB, "--units", "200", "--units-options", "--lose 30", "--"]),
    "apply-1000": (lambda: apply_many(1000),
                   [*LAB, "--units", "1000", "--network", "10.0.0.0/16", "--"]),
    "apply-10000": (lambda: apply_many(10_000), [*LAB, *MANY, "--"]),
    "losses": (losses, [*LAB, "--units", "200", "--units-options", "--lose 30", "--"]),
}


def main():
    names = sys.argv[1:]
    if names[:1] == ["--inside"]:
        SECTIONS[names[1]][0]()
        return
    if any(name not in SECTIONS for name in names):
        sys.exit(__doc__)
    for name in names or SECTIONS:
        prefix = SECTIONS[name][1]
        subprocess.run([*prefix, sys.executable, __file__, "--inside", name], check=True,
                       env={**os.environ, "KX_BUILD_DIR": str(BUILD)})


if __name__ == "__main__":
    main()
