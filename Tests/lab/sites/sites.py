"""Three sites and the office from where a person configures them.

Each site is a network with simulated units and one host, which the office reaches by ssh only. The test
runs in the network of the office. Nothing of it reaches the machine's own network.
"""

import contextlib
import os
import pathlib
import signal
import socket
import subprocess
import time

HERE = pathlib.Path(__file__).resolve().parent
ROOT = HERE.parents[2]
PROGRAM = pathlib.Path(os.environ["KXCTL"]).resolve()

PASSWD = "root:x:0:0::/root:/bin/sh\noperator:x:1000:1000::{home}:/bin/sh\n"
# kxctl as it is installed on the hosts. It notes when each call began and ended.
INSTALLED = """\
#!/bin/sh
begun=$(date +%s.%N)
status=0
{program} "$@" || status=$?
echo "$begun $(date +%s.%N) $*" >>{calls}
exit $status
"""
# An instrumented kxctl cannot look for leaks in a namespace of processes.
NO_LEAK_SEARCH = {"ASAN_OPTIONS": "detect_leaks=0"}

SSHD = """\
ListenAddress {address}:{port}
HostKey {folder}/host_key
PasswordAuthentication no
UsePAM no
PidFile none
SetEnv {environment}
"""


def eventually(condition, what, patience=20):
    deadline = time.monotonic() + patience
    while not condition():
        if time.monotonic() > deadline:
            raise AssertionError(what)
        time.sleep(0.01)


def new_key(path):
    subprocess.run(["ssh-keygen", "-q", "-t", "ed25519", "-N", "", "-f", path], check=True)
    return path.with_suffix(".pub").read_text(encoding="utf-8").strip()


def serial_of(number):
    return "4B 58 00 " + " ".join(f"{number >> shift & 255:02X}" for shift in (16, 8, 0))


class Site:
    """A network with units and a host; `numbers` are those of its units."""

    def __init__(self, number, folder, authorized_key, units, late):
        self.name, self.number, self.folder = f"hall-{'abc'[number - 1]}", number, folder
        self.address, self.port = f"10.77.{number}.2", 2200 + number
        self.numbers = range(1000 * number + 1, 1000 * number + 1 + units)
        self.record = folder / "record"
        self.host_key = self._furnish(authorized_key)
        office = str(os.getpid())
        # A test that is killed takes its sites along.
        self._lab = subprocess.Popen(
            ["setpriv", "--pdeathsig", "TERM", "--", ROOT / "scripts/lab", "--units", str(units), "--network", f"10.{number}.0.0/16",
             "--record", self.record, "--units-options", f"--first {self.numbers[0]} --late {late}",
             "--", HERE / "site.sh", str(number), office, folder], stdin=subprocess.DEVNULL)

    def _furnish(self, authorized_key):
        """What the host has on its disk. Returns its public key."""
        (self.folder / "bin").mkdir(parents=True)
        (self.folder / "home/.ssh").mkdir(parents=True, mode=0o700)
        program = self.folder / "bin/kxctl"
        program.write_text(INSTALLED.format(program=PROGRAM, calls=self.folder / "calls"), encoding="utf-8")
        program.chmod(0o755)
        (self.folder / "passwd").write_text(PASSWD.format(home=self.folder / "home"), encoding="utf-8")
        (self.folder / "home/.ssh/authorized_keys").write_text(authorized_key + "\n", encoding="utf-8")
        (self.folder / "sshd_config").write_text(
            SSHD.format(address=self.address, port=self.port, folder=self.folder,
                        environment=" ".join(map("=".join, NO_LEAK_SEARCH.items()))), encoding="utf-8")
        return new_key(self.folder / "host_key")

    def _accepts(self):
        if self._lab.poll() is not None:
            raise AssertionError(f"{self.name} ended with {self._lab.returncode}")
        with contextlib.suppress(OSError):
            socket.create_connection((self.address, self.port), 1).close()
            return True
        return False

    def connect(self):
        """Gives the office its end of the link, and waits for the host."""
        link = f"site{self.number}"
        eventually(lambda: link in dict(map(reversed, socket.if_nameindex())), f"{self.name} has no link")
        subprocess.run(["ip", "address", "add", f"10.77.{self.number}.1/24", "dev", link], check=True)
        subprocess.run(["ip", "link", "set", link, "up"], check=True)
        eventually(self._accepts, f"the host of {self.name} does not listen")

    def end(self):
        self._lab.send_signal(signal.SIGTERM)
        self._lab.wait(20)

    def commands(self):
        """The commands that the units of this site heard, without requests for parameters."""
        heard = [line.split(" ") for line in self.record.read_text(encoding="utf-8").split("\n")[:-1]]
        return [(words[0], bytes.fromhex(words[3]).decode("latin-1")) for words in heard
                if words[0] != "state" and bytes.fromhex(words[3]) != b"^^IdX"]

    def calls(self):
        """The calls of kxctl on the host: when each began and ended, and its words."""
        path = self.folder / "calls"
        lines = path.read_text(encoding="utf-8").splitlines() if path.exists() else []
        return [(float(begun), float(ended), words)
                for begun, ended, words in (line.split(" ", 2) for line in lines)]

    def left_files(self):
        """What is in the home folder of the host, hidden files aside."""
        return sorted(path.name for path in (self.folder / "home").glob("[!.]*"))


class Office:
    """The person's computer: a key, the hosts' keys, and a home folder without settings."""

    def __init__(self, folder, units, late):
        self.folder, self.home = folder, folder / "home"
        self.home.mkdir()
        key = new_key(folder / "key")
        self.sites = [Site(number, folder / f"site{number}", key, units, late) for number in (1, 2, 3)]
        (folder / "known_hosts").write_text(
            "".join(f"[{site.address}]:{site.port} {site.host_key}\n" for site in self.sites), encoding="utf-8")
        self.ssh_options = ["-F", "none", "-i", str(folder / "key"), "-o", "IdentitiesOnly=yes", "-o",
                            f"UserKnownHostsFile={folder / 'known_hosts'}", "-o", "GlobalKnownHostsFile=none",
                            "-o", "StrictHostKeyChecking=yes"]

    def open(self):
        for site in self.sites:
            site.connect()

    def close(self):
        for site in self.sites:
            site.end()

    def inventory(self, units, extra=""):
        path = self.folder / "inventory.yml"
        hosts = "".join(f"    {site.name}: {{ansible_host: {site.address}, ansible_port: {site.port}}}\n"
                        for site in self.sites)
        path.write_text(
            "sites:\n  vars:\n    ansible_user: operator\n    kx_interface: kx0\n"
            f"    kx_units: {units}\n    ansible_ssh_common_args: {' '.join(self.ssh_options)}\n"
            f"  hosts:\n{hosts}{extra}", encoding="utf-8")
        return path

    def on_host(self, site, command):
        """Carries a shell command out on the host of a site."""
        return subprocess.run(
            ["ssh", *self.ssh_options, "-p", str(site.port), f"operator@{site.address}", command],
            stdin=subprocess.DEVNULL, capture_output=True, text=True, check=False)
