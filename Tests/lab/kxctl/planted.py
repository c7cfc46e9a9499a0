"""Faults of a network, each a context in which it stands. The words that a context gives belong to the
command that looks for the fault. They are planted in the lab, with units that take broadcasts of
their own subnet only."""

import contextlib
import itertools
import os
import pathlib
import signal
import socket
import subprocess
import sys
import time

from program import eventually, heard, reply, run, units_process

OUTSIDE = "10.9.9.9"
FIRST_ADDRESS, SECOND_ADDRESS = "192.0.2.11", "192.0.2.12"
FAR_HOST = "192.0.2.200"  # no unit; the test plays it at the other end of the link


def settle():
    """A change of the link takes the kernel a moment."""
    if not eventually(lambda: "state UP" in subprocess.run(
            ["ip", "-oneline", "link", "show", "kx0"], capture_output=True, text=True).stdout):
        raise AssertionError("the link does not come up")


def setting(name, value):
    pathlib.Path("/proc/sys/net/ipv4/conf", name).write_text(value, encoding="ascii")


def command(address, port, text):
    """Sends a command to a unit by the link, whatever the routes say."""
    with socket.socket(socket.AF_INET, socket.SOCK_DGRAM) as sender:
        sender.setsockopt(socket.SOL_SOCKET, socket.SO_BROADCAST, 1)
        sender.setsockopt(socket.SOL_SOCKET, socket.SO_BINDTODEVICE, b"kx0")
        before = len(heard())
        sender.sendto(text.encode(), (address, port))
        if not eventually(lambda: len(heard()) > before):
            raise AssertionError("no unit heard " + text)


def restore_all():
    command("255.255.255.255", 3520, "^^IdZ")
    time.sleep(0.05)
    run("ip", "neigh", "flush", "dev", "kx0")  # the addresses have other holders now


def in_units_network(*words, **options):
    return subprocess.Popen(["nsenter", "--target", str(units_process()), "--net", *words],
                            **options)


@contextlib.contextmanager
def no_link():
    run("ip", "link", "set", "kx0", "down")
    try:
        yield []
    finally:
        run("ip", "link", "set", "kx0", "up")
        settle()
        run("ip", "route", "replace", "default", "dev", "kx0")


@contextlib.contextmanager
def no_address():
    run("ip", "address", "flush", "dev", "kx0")
    try:
        yield []
    finally:
        run("ip", "address", "add", "192.0.2.1/24", "broadcast", "+", "dev", "kx0")
        run("ip", "route", "replace", "default", "dev", "kx0")


@contextlib.contextmanager
def no_route():
    """No route to an address that is asked about."""
    run("ip", "route", "del", "default")
    try:
        yield [OUTSIDE]
    finally:
        run("ip", "route", "replace", "default", "dev", "kx0")


@contextlib.contextmanager
def no_route_back():
    """The interface's own network has no route, and the kernel looks for one."""
    run("ip", "route", "del", "default")
    run("ip", "route", "del", "192.0.2.0/24", "dev", "kx0")
    setting("kx0/rp_filter", "1")
    try:
        yield []
    finally:
        setting("kx0/rp_filter", "0")
        run("ip", "route", "replace", "192.0.2.0/24", "dev", "kx0", "scope", "link", "src",
            "192.0.2.1")
        run("ip", "route", "replace", "default", "dev", "kx0")


TABLES = (f"kx{number}" for number in itertools.count())


@contextlib.contextmanager
def rules(text):
    table = next(TABLES)
    subprocess.run(["nft", "-f", "-"], input=f"table inet {table} {{ {text}\n }}", text=True,
                   check=True)
    try:
        yield []
    finally:
        run("nft", "delete", "table", "inet", table)


def input_chain(rule, policy="drop"):
    return f"chain in {{ type filter hook input priority 0; policy {policy}; iif lo accept; {rule}\n }}"


def send_refused():
    return rules("chain out { type filter hook output priority 0; ip daddr 192.0.2.255 drop; }")


def firewall():
    return rules(input_chain(""))


STATEFUL = "ct state established,related accept;"


@contextlib.contextmanager
def firewall_unicast_only():
    with rules(input_chain(STATEFUL)):
        yield [FIRST_ADDRESS]


@contextlib.contextmanager
def port_taken():
    with socket.socket(socket.AF_INET, socket.SOCK_DGRAM) as other:
        other.bind(("", 3520))
        yield ["--port", "3520"]


@contextlib.contextmanager
def reverse_path():
    """The routes to the units lead by another link."""
    run("ip", "link", "add", "kx8", "type", "veth", "peer", "name", "kx9")
    run("ip", "link", "set", "kx9", "up")
    run("ip", "link", "set", "kx8", "up")
    run("ip", "route", "add", "192.0.2.0/25", "dev", "kx8")
    setting("kx0/rp_filter", "1")
    try:
        yield ["-i", "kx0"]
    finally:
        setting("kx0/rp_filter", "0")
        run("ip", "link", "del", "kx8")


@contextlib.contextmanager
def other_subnet(second="0A050008"):
    """The units are at 10.5.0.7 and so on."""
    for address, port, told in ((FIRST_ADDRESS, 10000, "0A050007"),
                                (SECOND_ADDRESS, 10000, second),
                                ("192.0.2.13", 3520, "0A050009")):
        command(address, port, "^^IdI" + told)
    try:
        yield []
    finally:
        restore_all()


@contextlib.contextmanager
def same_address():
    command(SECOND_ADDRESS, 10000, "^^IdIC000020B")
    try:
        yield []
    finally:
        restore_all()


@contextlib.contextmanager
def stale_arp():
    run("ip", "neigh", "replace", FIRST_ADDRESS, "lladdr", "02:4b:58:00:00:99", "dev", "kx0",
        "nud", "permanent")
    try:
        yield []
    finally:
        run("ip", "neigh", "del", FIRST_ADDRESS, "dev", "kx0")


@contextlib.contextmanager
def no_host():
    yield ["192.0.2.99"]


@contextlib.contextmanager
def far_host(script=None, address=FAR_HOST):
    """A host at the other end of the link, which runs a script."""
    in_units_network("ip", "address", "add", address + "/24", "dev", "kx1").wait()
    process = script and in_units_network(sys.executable, "-c", script, stdout=subprocess.PIPE)
    try:
        if process:
            process.stdout.readline()  # it is ready
        yield []
    finally:
        if process:
            process.kill()
            process.communicate()
        in_units_network("ip", "address", "del", address + "/24", "dev", "kx1").wait()


@contextlib.contextmanager
def nobody_on_port():
    with far_host():
        yield [FAR_HOST]


@contextlib.contextmanager
def silence():
    os.kill(units_process(), signal.SIGSTOP)
    try:
        yield []
    finally:
        os.kill(units_process(), signal.SIGCONT)
        time.sleep(0.3)  # what was asked meanwhile is answered now


ANSWERING = """
import socket
own = socket.socket(socket.AF_INET, socket.SOCK_DGRAM)
own.setsockopt(socket.SOL_SOCKET, socket.SO_BROADCAST, 1)
own.bind(("", 3520))
print(flush=True)
while True:
    data, sender = own.recvfrom(2048)
    if data == b"^^IdX":
        own.sendto({answer!r}, (sender[0], {port}))
"""


@contextlib.contextmanager
def silent_units_and(answer, port, address=FAR_HOST):
    with silence(), far_host(ANSWERING.format(answer=answer, port=port), address):
        yield []


def other_port():
    return silent_units_and(reply(address=FAR_HOST), "3522")


def not_understood():
    return silent_units_and(reply(address=FAR_HOST)[:40], "sender[1]")


ALONE = {
    "no-link": no_link, "no-address": no_address, "no-route": no_route,
    "send-refused": send_refused, "port-taken": port_taken, "firewall": firewall,
    "firewall-unicast-only": firewall_unicast_only, "reverse-path": reverse_path,
    "other-subnet": other_subnet, "same-address": same_address, "stale-arp": stale_arp,
    "no-host": no_host, "nobody-on-port": nobody_on_port, "other-port": other_port,
    "not-understood": not_understood, "nothing-arrived": silence,
}

# Datagrams of all kinds, 40 a second, until it is ended.
STRAYS = """
import itertools, socket, time
own = socket.socket(socket.AF_INET, socket.SOCK_DGRAM)
own.setsockopt(socket.SOL_SOCKET, socket.SO_BROADCAST, 1)
print(flush=True)
kinds = itertools.cycle([(b"hello", "192.0.2.255", 3520), (b"^^IdX", "192.0.2.1", 3520),
                         (b"^^<U>12345", "192.0.2.1", 3520), (bytes(100), "192.0.2.255", 3522),
                         (b"x", "192.0.2.1", 9), (b"^^" + bytes(300), "192.0.2.255", 3520),
                         (b"?", "192.0.2.1", 40000), (b"^", "192.0.2.255", 3521)])
while True:
    data, address, port = next(kinds)
    own.sendto(data, (address, port))
    time.sleep(1 / 40)
"""
