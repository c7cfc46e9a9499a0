"""kxctl diagnose on a network in which the test plants one fault, or two, or none.

The units take broadcasts of their own subnet only, as many hosts do.
"""

import contextlib
import os
import pathlib
import shutil
import signal
import socket
import struct
import subprocess
import sys
import tempfile
import time

import program
from planted import (ALONE, FAR_HOST, FIRST_ADDRESS, STATEFUL, STRAYS, command, far_host, firewall,
                     in_units_network, input_chain, no_route_back, other_subnet, port_taken, rules,
                     same_address, setting, silence, stale_arp)
from program import SLOW, Test, end_of, eventually, heard, kxctl, main, run, start

LIMIT = 1.0               # seconds to the verdict
LIMIT_OF_ARP = 3.5        # where nobody answers for an address

SENDING = """
import socket, sys
own = socket.socket(socket.AF_INET, socket.SOCK_DGRAM)
print(flush=True)
sys.stdin.readline()
for i in range(60000):
    own.sendto(b"x" * 40, ("192.0.2.1", 3520))
print(flush=True)
"""


def diagnose_with_a_full_buffer(*words):
    """The program is stopped while somebody sends."""
    in_units_network("ip", "address", "add", FAR_HOST + "/24", "dev", "kx1").wait()
    sender = in_units_network(sys.executable, "-c", SENDING, stdin=subprocess.PIPE,
                              stdout=subprocess.PIPE, text=True)
    try:
        sender.stdout.readline()
        before = len(heard())
        process = start("diagnose", "--json", *words)
        if not eventually(lambda: len(heard()) > before):
            raise AssertionError("it has not asked")
        process.send_signal(signal.SIGSTOP)
        sender.communicate("\n")
        process.send_signal(signal.SIGCONT)
        return end_of(process)
    finally:
        sender.kill()
        in_units_network("ip", "address", "del", FAR_HOST + "/24", "dev", "kx1").wait()


def diagnosed(*faults):
    """The result and its time with these faults, and the words that they give to the command."""
    with contextlib.ExitStack() as planted:
        words = [word for fault in faults for word in planted.enter_context(fault())]
        began = time.monotonic()
        result = kxctl("diagnose", "--json", *words)
        return result, time.monotonic() - began


def causes_of(result):
    return [cause["id"] for cause in result.document["causes"]]


# The order of two causes follows from their weight and is not judged.
PAIRS = [
    ("port-taken", "no-link"), ("port-taken", "no-address"), ("port-taken", "same-address"),
    ("port-taken", "other-subnet"), ("port-taken", "no-host"), ("port-taken", "stale-arp"),
    ("port-taken", "nobody-on-port"), ("port-taken", "no-route"),
    ("send-refused", "firewall"), ("send-refused", "same-address"), ("send-refused", "stale-arp"),
    ("send-refused", "no-host"), ("send-refused", "nobody-on-port"), ("send-refused", "no-route"),
    ("send-refused", "other-subnet"), ("send-refused", "not-understood"),
    ("no-route", "firewall"), ("no-route", "same-address"), ("no-route", "stale-arp"),
    ("no-route", "other-subnet"), ("no-route", "not-understood"), ("no-route", "other-port"),
    ("firewall", "no-host"),
    ("same-address", "no-host"), ("same-address", "nobody-on-port"),
    ("stale-arp", "no-host"), ("stale-arp", "nobody-on-port"),
    ("other-subnet", "no-host"), ("other-subnet", "nobody-on-port"),
    ("not-understood", "no-host"), ("other-port", "no-host"), ("reverse-path", "no-host"),
]


class Alone(Test):
    def assertTold(self, found, cause):
        result, took = found
        self.assertEnds(result, 1)
        self.assertIsNone(result.document["error"])
        self.assertEqual(causes_of(result)[0], cause, result.out)
        self.assertEqual(len(causes_of(result)), 1, result.out)
        limit = LIMIT_OF_ARP if cause == "no-host" else LIMIT
        self.assertLess(took, limit * SLOW, cause)
        print(f"{cause}: {took:.2f} s")

    def test_each_cause_is_the_first_and_only_one(self):
        for cause, fault in ALONE.items():
            with self.subTest(cause):
                self.assertTold(diagnosed(fault), cause)

    def test_what_is_dropped_is_told_where_units_answer(self):
        result = diagnose_with_a_full_buffer()
        self.assertEnds(result, 1)
        self.assertEqual(causes_of(result), ["dropped"], result.out)

    def test_a_missing_route_back_is_the_cause_and_not_the_filter_that_looks_for_it(self):
        self.assertTold(diagnosed(no_route_back), "no-route")

    def test_who_has_the_port_is_named(self):
        result, _ = diagnosed(port_taken)
        self.assertIn(f"(process {os.getpid()})", result.document["causes"][0]["sentence"])

    def test_other_kinds_of_firewall_are_told(self):
        for rule in ("ct state invalid drop; udp dport 67 accept; reject with icmpx admin-prohibited;",
                     "udp dport { 53, 67 } accept; ip protocol icmp accept;",
                     "udp dport 3521 accept;"):
            with self.subTest(rule):
                self.assertTold(diagnosed(lambda rule=rule: rules(input_chain(rule))), "firewall")

    def test_an_open_port_is_no_firewall(self):
        with rules(input_chain(STATEFUL + "udp dport 3520 accept;")):
            result = kxctl("diagnose", "--json")
        self.assertEnds(result, 0)

    def test_answers_to_single_requests_are_looked_for_among_known_hosts(self):
        kxctl("show", "4B5800000001")  # the host knows its hardware address now
        command(FIRST_ADDRESS, 10000, "^^IdX")
        self.assertTold(diagnosed(lambda: rules(input_chain(STATEFUL))), "firewall-unicast-only")

    def test_a_named_unit_is_told_apart_from_the_others(self):
        result = kxctl("diagnose", "4B58000000FF", "--json")
        self.assertEqual(causes_of(result), ["nothing-arrived"])
        self.assertIn("4B58000000FF", result.document["causes"][0]["sentence"])

    def test_a_fixed_entry_of_the_named_unit_is_told(self):
        with stale_arp():
            for name in ("4B5800000001", "id:1", FIRST_ADDRESS):
                self.assertEqual(causes_of(kxctl("diagnose", name, "--json")), ["stale-arp"], name)

    def test_a_fixed_entry_that_is_right_accuses_nobody(self):
        run("ip", "neigh", "replace", FIRST_ADDRESS, "lladdr", "02:4b:58:00:00:01", "dev", "kx0",
            "nud", "permanent")
        try:
            self.assertEnds(kxctl("diagnose", "--json"), 0)
        finally:
            run("ip", "neigh", "del", FIRST_ADDRESS, "dev", "kx0")

    def test_answers_that_the_filter_takes_come_from_another_network_when_the_routes_are_right(self):
        run("ip", "route", "del", "default")
        try:
            with other_subnet():
                setting("kx0/rp_filter", "1")
                result = kxctl("diagnose", "--json")
                setting("kx0/rp_filter", "0")
        finally:
            setting("kx0/rp_filter", "0")
            run("ip", "route", "replace", "default", "dev", "kx0")
        self.assertEqual(causes_of(result), ["reverse-path", "other-subnet"], result.out)

    def test_a_firewall_is_named_only_where_its_service_runs(self):
        with tempfile.TemporaryDirectory() as folder:
            named = shutil.copy("/bin/sleep", os.path.join(folder, "firewalld"))
            with firewall():
                advice = self.advice()
                self.assertNotRegex(advice, "ufw|firewall-cmd")
                process = subprocess.Popen([named, "30"])
                try:
                    self.assertIn("firewall-cmd --add-port=3520/udp", self.advice())
                finally:
                    process.kill()
                    process.wait()

    @staticmethod
    def advice():
        checks = kxctl("diagnose", "--json").document["checks"]
        return next(check["advice"] for check in checks if check["id"] == "own-broadcast")


class Pairs(Test):
    def test_both_are_among_the_first_two(self):
        right = 0
        for pair in PAIRS:
            with self.subTest(pair):
                result, took = diagnosed(*(ALONE[cause] for cause in pair))
                self.assertEnds(result, 1)
                self.assertEqual(set(causes_of(result)[:2]), set(pair), result.out)
                self.assertLess(took, (LIMIT_OF_ARP if "no-host" in pair else LIMIT) * SLOW)
                right += 1
        print(f"{right} of {len(PAIRS)} pairs right")

    def test_units_of_another_network_with_one_address(self):
        with other_subnet(second="0A050007"):
            result = kxctl("diagnose", "--json")
        self.assertEqual(causes_of(result), ["other-subnet", "same-address"])

    def test_dropped_datagrams_and_a_doubled_address(self):
        with same_address():
            result = diagnose_with_a_full_buffer()
        self.assertEqual(set(causes_of(result)), {"same-address", "dropped"})

    def test_a_doubled_address_and_a_fixed_entry(self):
        with same_address(), stale_arp():
            result = kxctl("diagnose", "--json")
        self.assertEqual(set(causes_of(result)), {"same-address", "stale-arp"})


class Healthy(Test):
    def test_nobody_is_accused_under_stray_traffic(self):
        runs = int(os.environ.get("KX_HEALTHY_RUNS", "6"))
        words = ([], [FIRST_ADDRESS], ["4B5800000002"], ["--port", "3522"])
        longest = accusations = 0
        with far_host(STRAYS):
            setting("kx0/rp_filter", "1")
            try:
                for number in range(runs):
                    began = time.monotonic()
                    result = kxctl("diagnose", "--json", *words[number % len(words)])
                    longest = max(longest, time.monotonic() - began)
                    fails = [check["id"] for check in result.document["checks"]
                             if check["state"] == "fail"]
                    accusations += result.status != 0 or bool(causes_of(result)) or bool(fails)
                    self.assertEnds(result, 0)
                    self.assertEqual((causes_of(result), fails), ([], []), result.out)
            finally:
                setting("kx0/rp_filter", "0")
                print(f"{accusations} accusations in {runs} healthy runs; longest {longest:.2f} s")
        self.assertLess(longest, LIMIT * SLOW)

    def test_a_unit_is_not_held_to_be_silent_because_of_strays_where_none_is_there(self):
        with silence(), far_host(STRAYS):
            result = kxctl("diagnose", "--json")
        self.assertEqual(causes_of(result), ["nothing-arrived"], result.out)


class CommandLine(Test):
    def test_what_is_neither_a_unit_nor_an_address_is_a_wrong_value(self):
        before = len(heard())
        for word in ("rack", "192.0.2", "192.0.2.011", "4B580000000", "192.0.2.1", "192.0.2.255"):
            self.assertEnds(kxctl("diagnose", word, "--json"), 2, "value")
        self.assertEnds(kxctl("diagnose", "a", "b", "--json"), 2, "usage")
        self.assertEqual(len(heard()), before)

    def test_an_interface_that_cannot_broadcast_has_no_cause(self):
        self.assertEnds(kxctl("diagnose", "-i", "lo", "--json"), 3, "interface")

    def test_an_unknown_interface_is_a_wrong_command_line(self):
        self.assertEnds(kxctl("diagnose", "-i", "kx9", "--json"), 2, "interface")

    def test_a_person_reads_the_checks_and_then_the_causes_with_what_to_do(self):
        with silence():
            result = kxctl("diagnose")
        self.assertEqual(result.lines[0].split(), ["check", "state", "evidence"])
        self.assertIn("nothing-arrived: The request left, and nothing came back.", result.lines)
        self.assertTrue(result.lines[-1].startswith("    Look whether the unit has power"))
        self.assertEqual(result.err, "")

    def test_an_interrupted_diagnosis_accuses_nobody(self):
        before = len(heard())
        process = start("diagnose", "--json")
        self.assertTrue(eventually(lambda: len(heard()) > before))
        process.send_signal(signal.SIGINT)
        result = end_of(process)
        self.assertEnds(result, 130, "interrupted")
        self.assertEqual(causes_of(result), [])

    def test_a_capture_has_what_its_own_sockets_send_too(self):
        with tempfile.TemporaryDirectory() as folder:
            path = os.path.join(folder, "capture")
            self.assertEnds(kxctl("diagnose", "--capture", path), 0)
            capture = pathlib.Path(path).read_bytes()
        self.assertIn(socket.inet_aton("255.255.255.255"), capture)

    def test_a_capture_counts_what_the_listener_lost_while_other_sockets_were_open(self):
        with tempfile.TemporaryDirectory() as folder:
            path = os.path.join(folder, "capture")
            result = diagnose_with_a_full_buffer("--capture", path)
            end = pathlib.Path(path).read_bytes()[-52:]
        self.assertEqual(causes_of(result), ["dropped"], result.out)
        *_, option, length, dropped = struct.unpack_from("=HHQHHQ", end, 20)
        self.assertEqual((option, length), (5, 8))
        self.assertGreater(dropped, 0)


class WithoutRights(Test):
    """Root without any of its capabilities."""

    CAUSES = ("firewall", "firewall-unicast-only", "reverse-path", "other-subnet", "stale-arp",
              "nobody-on-port", "no-route")

    def setUp(self):
        self._whole = program.PROGRAM
        folder = tempfile.mkdtemp()
        self.addCleanup(shutil.rmtree, folder)
        script = os.path.join(folder, "kxctl")
        pathlib.Path(script).write_text(
            f'#!/bin/sh\nexec setpriv --inh-caps=-all --bounding-set=-all "{self._whole}" "$@"\n',
            encoding="utf-8")
        os.chmod(script, 0o755)
        program.PROGRAM = script

    def tearDown(self):
        program.PROGRAM = self._whole

    def test_causes_are_found_all_the_same(self):
        for cause in self.CAUSES:
            with self.subTest(cause):
                result, _ = diagnosed(ALONE[cause])
                self.assertEqual(causes_of(result), [cause], result.out)

    def test_units_that_answer_are_healthy(self):
        self.assertEnds(kxctl("diagnose", "--json"), 0)


if __name__ == "__main__":
    main()
