"""kxctl as the tests see it: run in the lab, judged by its output, its errors and its status.

Every document is checked against its JSON Schema of docs/json-schema.
"""

import json
import os
import pathlib
import re
import signal
import socket
import subprocess
import threading
import time
import unittest

import jsonschema

ROOT = pathlib.Path(__file__).resolve().parents[3]
SCHEMAS = ROOT / "docs/json-schema"
PROGRAM = os.environ["KXCTL"]

# Limits of time stand for a quiet machine. Where tests run side by side, and with instrumented
# programs, everything takes longer by this factor.
SLOW = float(os.environ.get("KX_SLOW", "1"))
# The longest time in which the program starts and ends.
START = 0.5 * SLOW

FIRST = "4B 58 00 00 00 01"
SECOND = "4B 58 00 00 00 02"


def load_validators():
    schemas = {path.name: json.loads(path.read_text(encoding="utf-8"))
               for path in SCHEMAS.glob("*.json")}
    for schema in schemas.values():
        jsonschema.Draft7Validator.check_schema(schema)
    return {name.removesuffix(".json"): jsonschema.Draft7Validator(
                schema, resolver=jsonschema.RefResolver("", schema, store=schemas))
            for name, schema in schemas.items()}


VALIDATORS = load_validators()


def checked(document):
    """The document, if it is as its schema says."""
    name = "watch-event" if "event" in document else document["command"] or "no-command"
    VALIDATORS[name].validate(document)
    return document


class Result:
    def __init__(self, status, out, err):
        self.status, self.out, self.err = status, out, err

    @property
    def lines(self):
        return self.out.splitlines()

    @property
    def documents(self):
        """Each line as a document. The last one tells the status."""
        documents = [checked(json.loads(line)) for line in self.lines]
        if documents[-1]["exit"] != self.status:
            raise AssertionError(f"exit {documents[-1]['exit']} but status {self.status}")
        return documents

    @property
    def document(self):
        documents = self.documents
        if len(documents) != 1:
            raise AssertionError(f"{len(documents)} documents: {self.out}")
        return documents[0]

    @property
    def code(self):
        error = self.documents[-1]["error"]
        return error and error["code"]


def environment(**more):
    plain = {key: value for key, value in os.environ.items() if not key.startswith("LC_")}
    return {**plain, "LANGUAGE": "en", "LC_ALL": "C.UTF-8", **more}


def start(*arguments, **options):
    return subprocess.Popen([PROGRAM, *arguments], stdin=options.pop("stdin", subprocess.DEVNULL),
                            stdout=options.pop("stdout", subprocess.PIPE),
                            stderr=options.pop("stderr", subprocess.PIPE), text=True, errors="surrogateescape",
                            env=environment(**options))


def end_of(process, patience=20):
    out, err = process.communicate(timeout=patience)
    return Result(process.returncode, out, err)


def kxctl(*arguments, **options):
    return end_of(start(*arguments, **options))


def seen_until(terminal, end):
    """What a person sees at the terminal: up to a text, or until the program has closed it."""
    seen = b""
    while end is None or end.encode() not in seen:
        try:
            seen += os.read(terminal, 4096)
        except OSError:  # nobody has the other side open
            break
    return seen.decode("utf-8", "replace")


def run(*words):
    subprocess.run(words, check=True)


def run_for_text(*words):
    """What another program prints."""
    return subprocess.run(words, capture_output=True, text=True, check=True).stdout


# --- The record of the simulated units ---

def heard():
    """What the units heard: serial number, address, port and text of each datagram."""
    text = pathlib.Path(os.environ["KX_UNITS_RECORD"]).read_text(encoding="utf-8")
    found = []
    for line in text.split("\n")[:-1]:  # the last line may not be whole yet
        if not line.startswith("state "):
            unit, address, port, data = line.split(" ")
            found.append((unit, address, int(port), bytes.fromhex(data).decode("latin-1")))
    return found


def commands_heard(since=0):
    """The commands, without requests for parameters."""
    return [(unit, text) for unit, address, port, text in heard()[since:] if text != "^^IdX"]


def eventually(condition, patience=20):
    """Whether it becomes true. The patience is for a machine with much other work."""
    deadline = time.monotonic() + patience
    while not condition():
        if time.monotonic() > deadline:
            return False
        time.sleep(0.005)
    return True


def restore_units():
    """Brings the factory settings of all simulated units back."""
    before = len(heard())
    with socket.socket(socket.AF_INET, socket.SOCK_DGRAM) as sender:
        sender.setsockopt(socket.SOL_SOCKET, socket.SO_BROADCAST, 1)
        sender.sendto(b"^^IdZ", ("192.0.2.255", 3520))
    if not eventually(lambda: len(commands_heard(before)) >= 3):
        raise AssertionError("the units were not restored")


def units_process():
    return int(os.environ["KX_UNITS_PIDS"].split()[0])


# --- A unit of the test's own, on this host ---

OWN = "4B 58 00 00 00 AA"


def reply(serial="4B58000000AA", unit_id=b"\0\0\0\0\0\1", address="192.0.2.1",
          hardware="024B580000AA", destination_port=3520, device_port=3520, serial_item=True):
    number = bytes.fromhex(serial)
    items = (b"<M>" + bytes.fromhex(hardware) + b"<I>" + socket.inet_aton(address)
             + b"<D>" + socket.inet_aton("192.0.2.9") + b"<T>" + destination_port.to_bytes(2, "big")
             + b"<P>" + device_port.to_bytes(2, "big") + b"<U>" + unit_id
             + b"<C>" + bytes(6))
    return header(serial, unit_id) + items + (b"<S>" + number if serial_item else b"")


def header(serial="4B58000000AA", unit_id=b"\0\0\0\0\0\1"):
    return b"^^<U>" + unit_id + b"<S>" + bytes.fromhex(serial) + b"$"


class OwnUnit:
    """Answers on UDP port 3520 of this host with what `answer` makes of each datagram: a list of
    datagrams. kxctl then listens on the next port."""

    def __init__(self, answer):
        self._socket = socket.socket(socket.AF_INET, socket.SOCK_DGRAM)
        self._socket.setsockopt(socket.SOL_SOCKET, socket.SO_BROADCAST, 1)
        self._socket.bind(("", 3520))
        self._answer = answer
        self.heard = []
        self._thread = threading.Thread(target=self._serve, daemon=True)
        self._thread.start()

    def _serve(self):
        while True:
            data, sender = self._socket.recvfrom(65536)
            if data == b"end":
                return
            self.heard.append(data.decode("latin-1"))
            for datagram in self._answer(data):
                self._socket.sendto(datagram, sender)

    def __enter__(self):
        return self

    def __exit__(self, *reason):
        with socket.socket(socket.AF_INET, socket.SOCK_DGRAM) as sender:
            sender.sendto(b"end", ("127.0.0.1", 3520))
        self._thread.join()
        self._socket.close()


class Test(unittest.TestCase):
    maxDiff = None

    def assertEnds(self, result, status, code=None):
        """The status, and with --json the code of the error."""
        self.assertEqual(result.status, status, result.out + result.err)
        if code is not None:
            self.assertEqual(result.code, code, result.out)


def main():
    unittest.main()
