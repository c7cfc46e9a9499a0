"""Twelve situations that a script must tell apart, each judged three times: the exit code tells it
apart, standard output is one document of its schema, and its keys are those of a success.

Needs a lab of KX_MANY units in 10.0.0.0/16.
"""

import contextlib
import os
import signal
import socket

from program import OWN, OwnUnit, Test, eventually, header, kxctl, main, reply, run, units_process

REQUEST = b"^^IdX"
NAME = OWN.replace(" ", "")
ADDRESS = "10.0.0.1"  # this host's own in the lab


@contextlib.contextmanager
def simulated_units_silent():
    os.kill(units_process(), signal.SIGSTOP)
    try:
        yield
    finally:
        os.kill(units_process(), signal.SIGCONT)


@contextlib.contextmanager
def one_unit(answer=None, **values):
    """The only unit that answers is one of this host."""
    values = {"address": ADDRESS, **values}
    with simulated_units_silent(), OwnUnit(
            answer or (lambda data: [reply(**values)] if data == REQUEST else [])):
        yield


def takes_one_value_and_falls_silent():
    """A unit that takes a new destination port, acknowledges it, and then answers nothing."""
    state = {"port": 3520, "is_silent": False}

    def answer(data):
        if state["is_silent"]:
            return []
        if data.startswith(b"^^IdT"):
            state["port"] = 3521
            return [header() + b"ok\r"]
        if data == REQUEST:
            return [reply(address=ADDRESS, destination_port=state["port"])]
        state["is_silent"] = True
        return []
    return answer


@contextlib.contextmanager
def port_taken():
    with socket.socket(socket.AF_INET, socket.SOCK_DGRAM) as holder:
        holder.bind(("", 3521))
        yield


@contextlib.contextmanager
def no_link():
    run("ip", "link", "set", "kx0", "down")
    try:
        yield
    finally:
        run("ip", "link", "set", "kx0", "up")
        if not eventually(lambda: kxctl("interfaces", "--json").document["interfaces"][0]["can_ask"]):
            raise AssertionError("the link does not come back")


@contextlib.contextmanager
def send_refused():
    run("nft", "add table inet kx { chain out { type filter hook output priority 0; "
               "udp dport 3520 drop; }; }")
    try:
        yield
    finally:
        run("nft", "delete table inet kx")


def discover(*more):
    return ("discover", *more)


# Name, what is planted, the command, its exit code and the code of its error.
SITUATIONS = (
    ("no unit", simulated_units_silent, ("show", NAME), 1, "not-found"),
    ("port taken", port_taken, ("--port", "3521", "discover"), 3, "port"),
    ("no link", no_link, discover(), 3, "interface"),
    ("send refused", send_refused, discover(), 3, "socket"),
    ("one of two silent", one_unit, ("show", NAME, "4B5800000001"), 1, "not-found"),
    ("wrong value", contextlib.nullcontext, ("set", NAME, "device-port=99999"), 2, "value"),
    ("half done", lambda: one_unit(takes_one_value_and_falls_silent()),
     ("set", NAME, "destination-port=3521", "device-port=4000"), 4, "half"),
    ("unknown command", contextlib.nullcontext, ("dicsover",), 2, "usage"),
    ("zero results", simulated_units_silent, discover("--wait", "0.5"), 1, "not-found"),
    ("one result", one_unit, discover("--wait", "1"), 0, None),
    ("hostile unit ID", lambda: one_unit(unit_id=b"\"\n\x1b[\xff\x00"), discover("--wait", "1"),
     0, None),
    ("many units", contextlib.nullcontext,
     discover("--expect", os.environ["KX_MANY"], "--wait", "10", "--tries", "3"), 0, None),
)


class Situations(Test):
    def keys_of_a_success(self, command):
        with one_unit():
            words = {"discover": ["--wait", "0.2"], "show": [NAME],
                     "set": [NAME, "destination-port=3520"]}
            document = kxctl(command, *words[command], "--json").document
        self.assertIsNone(document["error"])
        return set(document)

    def judged(self, planted, words, status, code):
        with planted():
            result = kxctl(*words, "--json")
        document = result.document  # one, and as its schema says
        self.assertEnds(result, status)
        self.assertEqual(document["error"] and document["error"]["code"], code)
        command = document["command"]
        if command is not None:
            self.assertEqual(set(document), self.keys_of_a_success(command))
        return document

    def test_each_is_told_by_exit_code_document_and_keys(self):
        units = {}
        for name, planted, words, status, code in SITUATIONS:
            with self.subTest(name):
                units[name] = self.judged(planted, words, status, code).get("units")
        self.assertEqual(len(units), 12)
        self.assertEqual([len(units[name]) for name in (
            "one of two silent", "zero results", "one result", "hostile unit ID", "many units")],
            [1, 0, 1, 1, int(os.environ["KX_MANY"])])


if __name__ == "__main__":
    main()
