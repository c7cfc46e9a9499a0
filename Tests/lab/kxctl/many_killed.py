"""Runs over many units that are killed at random moments, and applied again.

usage: many_killed.py RUNS [SEED]

In each run a table of its own asks every unit of the lab for other values: for some of them also for
another address, hardware address, device port or serial number. `kxctl apply` is killed (SIGKILL) at a
random moment, and then applied again, until it ends with 0. The simulated units' own word then tells
whether they are as the table says. Whatever is told to be done or unchanged on the way is compared too.
"""

import os
import pathlib
import random
import subprocess
import sys
import tempfile
import time

from program import commands_heard, end_of, heard, restore_units, start
from tables import serial_of, unit_states

UNITS = 6
MOST_TRIES = 12
COLUMNS = ("serial", "unit-id", "destination-ip", "destination-port", "device-port", "internal-mac",
           "internal-ip", "new-serial")


def random_row(number, chance):
    """One row as a dictionary. What is absent stays as it is."""
    row = {"serial": serial_of(number), "unit-id": f"R{chance.randrange(10_000):04}",
           "destination-ip": f"192.0.2.{chance.randrange(2, 9)}",
           "destination-port": str(chance.randrange(3520, 3524))}
    if chance.random() < 0.4:
        row["device-port"] = str(chance.randrange(4000, 9000))
    if chance.random() < 0.3:
        row["internal-mac"] = f"02:4B:58:01:{chance.randrange(256):02X}:{number:02X}"
    if chance.random() < 0.3:
        row["internal-ip"] = f"192.0.2.{100 + 10 * number + chance.randrange(10)}"
    if chance.random() < 0.3:
        row["new-serial"] = f"4B 58 00 00 {1 + chance.randrange(255):02X} {number:02X}"
    return row


def random_table(chance):
    """Rows, of which two may hand an address on."""
    rows = [random_row(number, chance) for number in range(1, UNITS + 1)]
    giver, taker = chance.sample(range(UNITS), 2)
    if "internal-ip" in rows[giver]:
        rows[taker]["internal-ip"] = f"192.0.2.{11 + giver}"
    return rows


def differences(row, state):
    """What a unit shows otherwise than its row says."""
    wanted = {"unit-id": row["unit-id"].encode().hex().upper().ljust(12, "0"),
              "destination": row["destination-ip"], "destination-port": row["destination-port"],
              "device-port": row.get("device-port"), "hardware": row.get("internal-mac"),
              "address": row.get("internal-ip")}
    return {key: (value, state.get(key)) for key, value in wanted.items()
            if value is not None and state.get(key) != value}


def wrong_rows(rows, told):
    """The rows that are told to be done and are not, by the units' own word."""
    states = unit_states(UNITS)
    by_serial = {row["serial"]: row for row in rows}
    wrong = []
    for serial, state in told.items():
        row = by_serial[serial]
        unit = states.get(row.get("new-serial", serial), {})
        if state in ("done", "unchanged") and (not unit or differences(row, unit)):
            wrong.append((serial, state, differences(row, unit)))
    return wrong


def apply_killed(moment):
    """Whether the run was killed before it had ended by itself. `moment` tells of each instant
    whether it is the one, by the seconds and the commands since the beginning."""
    before = len(heard())
    began = time.monotonic()
    process = start("apply", "rack.csv", "--yes", "--json", "--journal", "rack.jsonl",
                    stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    while process.poll() is None:
        if moment(time.monotonic() - began, len(commands_heard(before))):
            process.kill()
            process.wait()
            return True
        time.sleep(0.002)
    return False


def random_moment(chance, longest):
    """Half of them are instants of the whole run, and half follow a command closely."""
    if chance.random() < 0.5:
        after = chance.uniform(0, longest)
        return lambda seconds, commands: seconds >= after
    number = chance.randrange(1, 5 * UNITS)
    delay = chance.uniform(0, 0.1)
    reached = []

    def moment(seconds, commands):
        if commands >= number and not reached:
            reached.append(seconds)
        return bool(reached) and seconds >= reached[0] + delay
    return moment


def never(seconds, commands):
    return False


def apply_until_done(rows):
    """How often it took, and what was told wrongly; the number is None when it was too often."""
    wrong = []
    for tries in range(1, MOST_TRIES + 1):
        # A unit whose damaged reply told another port is asked there in vain, and given up.
        result = end_of(start("apply", "rack.csv", "--yes", "--json", "--keep-going"), patience=60)
        told = {row["serial"]: row["state"] for row in result.document["rows"]}
        wrong += wrong_rows(rows, told)
        if result.status == 0:
            return tries, wrong
    print(result.out, result.err, sep="\n", file=sys.stderr)
    return None, wrong


def permanent_entries():
    return subprocess.run(["ip", "neigh", "show", "nud", "permanent"], check=True,
                          capture_output=True, text=True).stdout


class OneRun:
    def __init__(self, chance, moment):
        for path in pathlib.Path(".").iterdir():
            path.unlink()
        restore_units()
        self.rows = random_table(chance)
        with open("rack.csv", "w", encoding="utf-8") as file:
            file.write(",".join(COLUMNS) + "\n")
            file.writelines(",".join(row.get(name, "") for name in COLUMNS) + "\n"
                            for row in self.rows)
        before = len(heard())
        began = time.monotonic()
        self.was_killed = apply_killed(moment)
        self.seconds = time.monotonic() - began
        self.commands = len(commands_heard(before))
        if pathlib.Path("rack.jsonl").exists():
            # The next run finds the journals that kxctl has named itself.
            os.rename("rack.jsonl", "kxctl-journal-20300131-120000.jsonl")
        self.tries, self.wrong = apply_until_done(self.rows)
        self.are_equal = not wrong_rows(self.rows, {row["serial"]: "done" for row in self.rows})
        self.entries = permanent_entries()


def main():
    count = int(sys.argv[1])
    seed = int(sys.argv[2]) if len(sys.argv) > 2 else 1
    chance = random.Random(seed)
    killed, equal, wrong, left, tries, commands = 0, 0, 0, 0, [], []
    with tempfile.TemporaryDirectory() as folder:
        os.chdir(folder)
        longest = max(OneRun(chance, never).seconds for _ in range(2))
        for number in range(count):
            run = OneRun(chance, random_moment(chance, longest))
            killed += run.was_killed
            equal += run.are_equal
            wrong += len(run.wrong)
            left += bool(run.entries)
            tries.append(run.tries or MOST_TRIES)
            commands.append(run.commands)
            if run.wrong or not run.are_equal or run.entries:
                print(f"run {number}: {run.wrong} {run.entries}", file=sys.stderr)
        os.chdir("/")
    print(f"{count} runs with seed {seed}: {killed} killed before their end, after 0 to "
          f"{max(commands)} commands; states equal the table in {equal}; {wrong} rows told wrongly; "
          f"{left} with an entry left in the ARP cache; applied again {max(tries)} times at most")
    return 0 if equal == count and not wrong and not left else 1


if __name__ == "__main__":
    sys.exit(main())
