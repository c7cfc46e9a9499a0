"""What Benchmarks/command_line.py measures with: runs of programs, tables, and what it needs beside kxctl.

KX_BUILD_DIR names the build folder; without it build/release.
"""

import contextlib
import os
import pathlib
import random
import socket
import statistics
import subprocess
import sys
import threading
import time

ROOT = pathlib.Path(__file__).resolve().parents[1]
BUILD = pathlib.Path(os.environ.get("KX_BUILD_DIR", ROOT / "build/release")).resolve()
PRIVATE_HOST = ROOT / "Tests/linux/networkmanager/in_private_host.sh"
ROUNDS = 9


def program(name):
    return str(BUILD / "bin" / name)


KXCTL = program("kxctl")


class Run:
    """One run of a program: seconds, peak memory in KiB, status and standard output."""

    def __init__(self, words):
        reading, writing = os.pipe()
        null = os.open(os.devnull, os.O_RDWR)
        began = time.perf_counter()
        process = os.posix_spawnp(words[0], words, {**os.environ, "LC_ALL": "C.UTF-8"}, file_actions=[
            (os.POSIX_SPAWN_DUP2, null, 0), (os.POSIX_SPAWN_DUP2, writing, 1),
            (os.POSIX_SPAWN_DUP2, null, 2)])
        os.close(writing)
        os.close(null)
        pieces = []
        self.first_output = None
        while piece := os.read(reading, 1 << 20):
            self.first_output = self.first_output or time.perf_counter()
            pieces.append(piece)
        self.last_output = time.perf_counter()
        os.close(reading)
        _, status, usage = os.wait4(process, 0)
        self.ended = time.perf_counter()
        self.seconds = self.ended - began
        self.status = os.waitstatus_to_exitcode(status)
        self.memory = usage.ru_maxrss
        self.output = b"".join(pieces)

    @property
    def writing(self):
        return self.last_output - (self.first_output or self.last_output)


def successful(words, statuses=(0,)):
    run = Run(words)
    if run.status not in statuses:
        sys.exit(f"{sys.argv[0]}: {' '.join(words)} ended with {run.status}")
    return run


def heading(text):
    print(f"\n| {text} | Goal | Median | Least | Most |\n|---|---|---|---|---|", flush=True)


def row(name, values, form, goal=""):
    middle, least, most = statistics.median(values), min(values), max(values)
    print(f"| {name} | {goal} | {form(middle)} | {form(least)} | {form(most)} |", flush=True)


def milliseconds(seconds):
    return f"{1000 * seconds:.1f} ms"


def ratio(value):
    return f"{value:.2f}"


def mebibytes(kibibytes):
    return f"{kibibytes / 1024:.1f} MiB"


def compare(what, sides, goals=None, measure=lambda run: run.seconds, repeats=5, statuses=(0,)):
    """Measures each side, the first beside the others. `sides`: name and words of the program. `goals`: the
    goal of the ratio beside the program of this name."""
    times = {name: [] for name, _ in sides}
    for _ in range(ROUNDS):
        for name, words in random.sample(sides, len(sides)):
            times[name].append(min(measure(successful(words, statuses)) for _ in range(repeats)))
    heading(what)
    for name, values in times.items():
        row(name, values, milliseconds)
    ours, *others = times
    for other in others:
        row(f"{ours}, beside {other}",
            [a / b for a, b in zip(times[ours], times[other])], ratio, (goals or {}).get(other, ""))


class LastReply:
    """Notes when the last datagram from a unit came."""

    def __init__(self):
        self._socket = socket.socket(socket.AF_PACKET, socket.SOCK_DGRAM, socket.htons(0x0800))
        self._socket.bind(("kx0", 0))
        self._socket.settimeout(0.1)
        self._is_over = False
        self.time = None
        self._thread = threading.Thread(target=self._listen)
        self._thread.start()

    def _listen(self):
        buffer = bytearray(64)
        while not self._is_over:
            try:
                _, sender = self._socket.recvfrom_into(buffer)
            except TimeoutError:
                continue
            if sender[2] != socket.PACKET_OUTGOING and buffer[9] == socket.IPPROTO_UDP:
                self.time = time.perf_counter()

    def end(self):
        self._is_over = True
        self._thread.join()
        self._socket.close()


def last_reply_of(words):
    """A run of a program, and the time from the last datagram of a unit to its end."""
    listener = LastReply()
    run = successful(words)
    listener.end()
    return run, run.ended - listener.time


@contextlib.contextmanager
def network_manager():
    """Under in_private_host.sh: a link kx0, and a NetworkManager of this program's own."""
    folder = pathlib.Path(os.environ["KX_PRIVATE_HOST"])
    for words in (["ip", "link", "set", "lo", "up"],
                  ["ip", "link", "add", "kx0", "type", "veth", "peer", "name", "kx1"],
                  ["ip", "link", "set", "kx0", "up"], ["ip", "link", "set", "kx1", "up"],
                  ["ip", "address", "add", "192.0.2.1/24", "brd", "+", "dev", "kx0"]):
        subprocess.run(words, check=True)
    bus = folder / "bus"
    (folder / "bus.conf").write_text(
        "<busconfig><type>system</type>"
        f"<listen>unix:path={bus}</listen><auth>EXTERNAL</auth><policy context='default'>"
        "<allow user='*'/><allow own='*'/><allow send_destination='*'/><allow receive_sender='*'/>"
        "</policy></busconfig>", encoding="utf-8")
    os.environ["DBUS_SYSTEM_BUS_ADDRESS"] = f"unix:path={bus}"
    log = open(folder / "log", "ab")
    beside = [subprocess.Popen(words, stdout=log, stderr=log) for words in (
        ["dbus-daemon", "--nofork", "--nopidfile", "--nosyslog", f"--config-file={folder}/bus.conf"],
        ["unshare", "--mount", "sh", "-c", f"until test -S {bus}; do sleep 0.1; done; "
         "mount -t sysfs -o ro sysfs /sys && exec NetworkManager --no-daemon"])]
    try:
        while subprocess.run(["nm-online", "--wait-for-startup", "--quiet", "--timeout=20"],
                             check=False).returncode != 0:
            time.sleep(0.2)
        yield
    finally:
        for process in beside:
            process.kill()
            process.wait()
