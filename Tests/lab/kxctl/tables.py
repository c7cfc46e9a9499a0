"""Tables of units for the tests, and the states of the simulated units by their own word."""

import csv
import json
import os
import pathlib
import signal
import tempfile
import zlib

from program import Test, commands_heard, eventually, heard, kxctl, units_process


def serial_of(number):
    """The serial number of a simulated unit, as units show it."""
    return "4B 58 00 " + " ".join(f"{number >> shift & 255:02X}" for shift in (16, 8, 0))


def unit_states(count=3):
    """The settings of so many simulated units, by serial number as kxctl shows it."""
    path = pathlib.Path(os.environ["KX_UNITS_RECORD"])
    begin = path.stat().st_size
    os.kill(units_process(), signal.SIGUSR2)

    def told():
        text = path.read_bytes()[begin:].decode("latin-1")
        return [line for line in text.split("\n")[:-1] if line.startswith("state ")]
    if not eventually(lambda: len(told()) >= count):
        raise AssertionError("the units do not tell their states")
    found = {}
    for line in told():
        _, serial, *settings = line.split(" ")
        name = " ".join(serial[i:i + 2] for i in range(0, 12, 2))
        found[name] = dict(setting.split("=", 1) for setting in settings)
    return found


def of_another_version(text):
    """A sealed document, or the first line of several, as a later kxctl might write it."""
    first, line_break, rest = text.partition("\n") if text.startswith('{"kind":"journal"') else (
        text, "", "")
    document = json.loads(first)
    del document["checksum"]
    document["schema"] = 2
    plain = json.dumps(document, separators=(",", ":"))
    return f'{plain[:-1]},"checksum":"{zlib.crc32(plain.encode()):08x}"}}{line_break}{rest}'


class TableTest(Test):
    """A folder of the test's own is the current one."""

    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.addCleanup(os.chdir, os.getcwd())
        os.chdir(folder.name)

    def write(self, text, path="rack.csv"):
        pathlib.Path(path).write_text(text, encoding="utf-8", newline="")
        return path

    def table(self, *rows, header="serial,unit-id,destination-port", path="rack.csv"):
        return self.write("\n".join([header, *rows]) + "\n", path)

    def states_of(self, result):
        return [(row["line"], row["state"]) for row in result.document["rows"]]

    def apply(self, *words, **options):
        return kxctl("apply", *words, "--yes", "--json", **options)

    def report(self, path="report.csv"):
        with open(path, encoding="utf-8-sig", newline="") as file:
            return list(csv.DictReader(file))

    def journals(self):
        return sorted(path.name for path in pathlib.Path(".").glob("kxctl-journal-*.jsonl"))

    def assertNothingSent(self, before):
        self.assertEqual(len(heard()), before)

    def assertNoCommandSent(self, before):
        self.assertEqual(commands_heard(before), [])
