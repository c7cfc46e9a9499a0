"""What kxctl tells of three units that can be relied on, and how it ends."""

import csv
import io
import json
import os
import pathlib
import pty
import signal
import socket
import struct
import subprocess
import tempfile
import time

from program import (FIRST, SECOND, START, Test, checked, end_of, eventually, heard, kxctl,
                     main, restore_units, seen_until, start)


class Interfaces(Test):
    def test_are_listed_with_what_a_person_needs_to_choose_one(self):
        result = kxctl("interfaces")
        self.assertEnds(result, 0)
        self.assertEqual([line.split()[0] for line in result.lines], ["name", "kx0", "lo"])
        self.assertEqual(result.err, "")

    def test_are_the_same_in_the_document(self):
        document = kxctl("--json", "interfaces").document
        self.assertEqual(document["interfaces"][0], {
            "name": "kx0", "title": "Ethernet (kx0)", "kind": "ethernet", "address": "192.0.2.1",
            "prefix_length": 24, "broadcast": "192.0.2.255", "can_ask": True})
        self.assertEqual(document["interfaces"][1]["kind"], "loopback")
        self.assertFalse(document["interfaces"][1]["can_ask"])
        self.assertIsNone(document["interfaces"][1]["broadcast"])

    def test_can_be_named_by_name_and_by_title(self):
        for name in ("kx0", "Ethernet (kx0)"):
            self.assertEnds(kxctl("-i", name, "discover", "--expect", "3"), 0)

    def test_the_first_half_of_a_title_is_no_name(self):
        self.assertEnds(kxctl("-i", "Ethernet", "discover", "--json"), 2, "interface")

    def test_one_that_is_not_there_is_a_wrong_command_line(self):
        result = kxctl("-i", "kx9", "discover", "--json")
        self.assertEnds(result, 2, "interface")
        self.assertIn("Ethernet (kx0)", result.err)

    def test_one_that_cannot_broadcast_cannot_ask(self):
        self.assertEnds(kxctl("-i", "lo", "discover", "--json"), 3, "interface")


class Discover(Test):
    def test_lists_units_in_the_order_of_serial_numbers(self):
        result = kxctl("discover", "--expect", "3")
        self.assertEnds(result, 0)
        self.assertEqual([line[:17] for line in result.lines[1:]],
                         [FIRST, SECOND, "4B 58 00 00 00 03"])

    def test_tells_everything_of_a_unit(self):
        document = kxctl("discover", "--json", "--expect", "3").document
        unit = document["units"][1]
        self.assertLess(unit.pop("answered_ms"), 1000)
        self.assertEqual(unit, {
            "serial": SECOND, "unit_id": "U00002", "unit_id_bytes": "553030303032",
            "internal_ip": "192.0.2.12", "internal_mac": "02:4B:58:00:00:02",
            "destination_ip": "192.0.2.1", "destination_mac": "02:00:00:00:00:01",
            "destination_port": 3520, "device_port": 10000, "source_ip": "192.0.2.12",
            "interface": "kx0"})
        self.assertEqual((document["interface"], document["port"]), ("kx0", 3520))
        self.assertEqual((document["dropped"], document["rejected"], document["complete"]),
                         (0, 0, True))

    def test_asks_twice_within_the_time(self):
        before = len(heard())
        began = time.monotonic()
        kxctl("discover", "--wait", "0.6")
        took = time.monotonic() - began
        self.assertGreater(took, 0.6)
        self.assertLess(took, 0.6 + START)
        self.assertTrue(eventually(lambda: len(heard()) - before >= 2 * 3))
        self.assertEqual(len(heard()) - before, 2 * 3)

    def test_asks_as_often_as_told(self):
        before = len(heard())
        kxctl("discover", "--wait", "2", "--tries", "5")
        self.assertTrue(eventually(lambda: len(heard()) - before >= 5 * 3))
        self.assertEqual(len(heard()) - before, 5 * 3)

    def test_ends_as_soon_as_enough_have_answered(self):
        began = time.monotonic()
        self.assertEnds(kxctl("discover", "--expect", "3", "--wait", "20"), 0)
        self.assertLess(time.monotonic() - began, 0.5 + START)

    def test_fewer_than_expected_is_no_success_and_all_the_same_listed(self):
        result = kxctl("discover", "--expect", "4", "--wait", "1", "--json")
        self.assertEnds(result, 1, "fewer")
        self.assertEqual(len(result.document["units"]), 3)

    def test_the_limited_broadcast_is_sent_too(self):
        before = len(heard())
        kxctl("discover", "--limited", "--tries", "1", "--wait", "0.2")
        self.assertEqual(sorted({address for _, address, _, _ in heard()[before:]}),
                         ["192.0.2.255", "255.255.255.255"])

    def test_the_table_of_values_can_be_read_back(self):
        result = kxctl("discover", "--csv", "--expect", "3")
        rows = list(csv.DictReader(io.StringIO(result.out, newline="")))
        self.assertEqual([row["serial"] for row in rows],
                         [FIRST, SECOND, "4B 58 00 00 00 03"])
        self.assertEqual(rows[1]["unit-id"], "U00002")
        self.assertEqual(rows[1]["destination-port"], "3520")

    def test_two_forms_of_output_are_a_wrong_command_line(self):
        self.assertEnds(kxctl("discover", "--csv", "--json"), 2, "usage")

    def test_the_document_goes_to_a_file_too(self):
        with tempfile.TemporaryDirectory() as folder:
            path = os.path.join(folder, "saved.json")
            result = kxctl("discover", "--json", "--expect", "3", "--save", path)
            saved = checked(json.loads(pathlib.Path(path).read_text(encoding="utf-8")))
        self.assertEqual(saved, result.document)

    def test_a_file_that_cannot_be_written_is_told_before_anything_is_sent(self):
        for option in ("--save", "--capture"):
            before = len(heard())
            self.assertEnds(kxctl("discover", option, "/nowhere/file", "--json"), 2, "file")
            self.assertEqual(len(heard()), before)

    def test_a_pipe_that_nobody_reads_is_not_waited_for(self):
        with tempfile.TemporaryDirectory() as folder:
            path = os.path.join(folder, "pipe")
            os.mkfifo(path)
            for option in ("--save", "--capture"):
                before = len(heard())
                self.assertEnds(kxctl("discover", option, path, "--json"), 2, "file")
                self.assertEqual(len(heard()), before)

    def test_what_cannot_be_asked_leaves_no_file(self):
        with tempfile.TemporaryDirectory() as folder:
            for option in ("--save", "--capture"):
                path = os.path.join(folder, "file")
                self.assertEnds(kxctl("-i", "lo", "discover", option, path, "--json"), 3)
                self.assertFalse(os.path.exists(path))

    def test_an_interrupted_discovery_saves_what_it_prints(self):
        with tempfile.TemporaryDirectory() as folder:
            path = os.path.join(folder, "saved.json")
            before = len(heard())
            process = start("discover", "--wait", "10", "--json", "--save", path)
            self.assertTrue(eventually(lambda: len(heard()) >= before + 3))
            process.send_signal(signal.SIGINT)
            result = end_of(process, 3)
            self.assertEnds(result, 130, "interrupted")
            self.assertEqual(pathlib.Path(path).read_text(encoding="utf-8"), result.out)

    def test_progress_renews_itself_on_a_terminal_that_can_show_it(self):
        for terminal, shown in (("xterm", True), ("dumb", False)):
            person, other = pty.openpty()
            process = start("discover", "--wait", "0.5", stderr=other, TERM=terminal)
            os.close(other)
            end_of(process)
            seen = seen_until(person, None)
            os.close(person)
            self.assertEqual(seen.count("\r\x1b[K3  0.") >= 3, shown, seen)
            self.assertEqual("\x1b" in seen, shown, seen)

    def test_numbers_that_are_none_are_a_wrong_command_line(self):
        for words in (["--wait", "x"], ["--wait", "0"], ["--wait", "-1"], ["--wait", "1e3"],
                      ["--tries", "0"], ["--tries", "2.5"], ["--expect", "many"], ["--wait"],
                      ["--expect", "99999999999"], ["--json=x"],
                      ["--wait", "0.5", "--tries", "51"]):
            before = len(heard())
            self.assertEnds(kxctl("--json", "discover", *words), 2, "usage")
            self.assertEqual(len(heard()), before, words)

    def test_progress_and_sentences_keep_away_from_the_data(self):
        quiet = kxctl("discover", "--expect", "3", "--quiet")
        self.assertEqual(quiet.err, "")
        self.assertEqual(kxctl("discover", "--expect", "3").err, "")
        self.assertIn("does not answer", kxctl("show", "4B58000000FF", "--quiet").err)


class Show(Test):
    def test_takes_every_spelling_of_a_serial_number(self):
        for name in ("4B5800000001", "4b 58 00 00 00 01", "4B:58:00:00:00:01",
                     "4b-58-00-00-00-01", "id:1"):
            document = kxctl("show", name, "--json").document
            self.assertEqual([unit["serial"] for unit in document["units"]], [FIRST], name)

    def test_shows_every_parameter(self):
        self.assertEqual([line.split()[0] for line in kxctl("show", "id:U00002").lines], [
            "serial", "unit-id", "internal-ip", "internal-mac", "destination-ip",
            "destination-mac", "destination-port", "device-port", "source-ip", "interface"])

    def test_does_not_wait_for_others(self):
        began = time.monotonic()
        self.assertEnds(kxctl("show", "4B5800000001", "4B5800000002"), 0)
        took = time.monotonic() - began
        self.assertEnds(kxctl("show", "4B5800000001", "4B58000000FF"), 1)
        whole_wait = time.monotonic() - began - took
        self.assertLess(took, whole_wait - 0.5)

    def test_shows_those_that_answer_and_says_who_does_not(self):
        result = kxctl("show", "4B5800000001", "4B58000000FF", "--json")
        self.assertEnds(result, 1, "not-found")
        self.assertEqual(len(result.document["units"]), 1)
        self.assertIn("4B 58 00 00 00 FF", result.err)

    def test_shows_everybody(self):
        self.assertEqual(len(kxctl("show", "--all", "--json").document["units"]), 3)

    def test_a_name_that_is_none_is_a_wrong_value(self):
        before = len(heard())
        for name in ("4B580000000", "4B58000000011", "4B 5800000001", "rack", "id:", "4B:58-00:00:00:01"):
            self.assertEnds(kxctl("show", name, "--json"), 2, "value")
        self.assertEqual(len(heard()), before)

    def test_six_words_are_told_how_to_be_written(self):
        result = kxctl("show", "4B", "58", "00", "00", "00", "01", "--json")
        self.assertEnds(result, 2, "usage")
        self.assertIn("4B5800000001", result.err)

    def test_needs_a_unit_or_all(self):
        self.assertEnds(kxctl("show", "--json"), 2, "usage")
        self.assertEnds(kxctl("show", "--all", "id:1", "--json"), 2, "usage")


class Watch(Test):
    def test_tells_who_appears_and_ends_when_enough_are_there(self):
        result = kxctl("watch", "--until", "3", "--for", "5", "--json")
        self.assertEnds(result, 0)
        self.assertEqual([document.get("event") for document in result.documents],
                         ["appeared"] * 3 + [None])

    def test_fewer_than_wanted_is_no_success(self):
        self.assertEnds(kxctl("watch", "--until", "4", "--for", "0.3", "--json"), 1, "fewer")

    def test_tells_a_change_at_once(self):
        process = start("watch", "--every", "0.2", "--json")
        lines = [json.loads(process.stdout.readline()) for _ in range(3)]
        self.assertEqual({line["event"] for line in lines}, {"appeared"})
        kxctl("set", "4B5800000001", "destination-port=3522")
        changed = checked(json.loads(process.stdout.readline()))
        self.assertEqual((changed["event"], changed["unit"]["destination_port"]), ("changed", 3522))
        process.send_signal(signal.SIGTERM)
        result = end_of(process)
        self.assertEnds(result, 143, "interrupted")
        restore_units()

    def test_prints_lines_for_a_person(self):
        lines = kxctl("watch", "--until", "3").lines
        self.assertEqual(len(lines), 3)
        self.assertIn("appeared", lines[0])


class Check(Test):
    def test_tells_who_holds_an_address(self):
        result = kxctl("check", "192.0.2.11", "192.0.2.77", "192.0.2.1", "--json")
        self.assertEnds(result, 1, "held")
        self.assertEqual(result.document["addresses"], [
            {"address": "192.0.2.11", "state": "held",
             "holders": [{"mac": "02:4B:58:00:00:01", "serial": FIRST}]},
            {"address": "192.0.2.77", "state": "free", "holders": []},
            {"address": "192.0.2.1", "state": "held",
             "holders": [{"mac": "02:00:00:00:00:01", "serial": None}]}])

    def test_free_addresses_are_a_success(self):
        self.assertEnds(kxctl("check", "192.0.2.77", "192.0.2.78"), 0)

    def test_a_fixed_entry_is_no_holder(self):
        subprocess.run(["ip", "neigh", "add", "192.0.2.79", "lladdr", "02:4b:58:00:00:01", "dev",
                        "kx0", "nud", "permanent"], check=True)
        try:
            self.assertEnds(kxctl("check", "192.0.2.79"), 0)
        finally:
            subprocess.run(["ip", "neigh", "del", "192.0.2.79", "dev", "kx0"], check=True)

    def test_a_text_that_is_no_address_of_a_host_here_is_a_wrong_value(self):
        before = len(heard())
        for address in ("192.0.2", "192.0.2.011", "host", "0.0.0.0", "10.0.0.1", "192.0.2.255",
                        "192.0.2.0"):
            self.assertEnds(kxctl("check", address, "--json"), 2, "value")
        self.assertEqual(len(heard()), before)


class CommandLine(Test):
    def test_every_command_has_help_with_an_example(self):
        for words in ([], ["interfaces"], ["discover"], ["show"], ["set"], ["option"], ["restore"],
                      ["watch"], ["check"], ["diagnose"]):
            result = kxctl(*words, "--help")
            self.assertEnds(result, 0)
            self.assertRegex(result.out, r"Examples?:")
            self.assertEqual(kxctl("--help", *words).out, result.out)

    def test_tells_its_version(self):
        self.assertRegex(kxctl("--version").out, r"^kxctl [0-9]+\.[0-9]+\.[0-9]+\n$")
        self.assertRegex(kxctl("--json", "--version").out, r"^kxctl ")

    def test_a_wrong_command_line_is_a_document_too(self):
        for words in ([], ["dicsover"], ["discover", "--all"], ["discover", "word"], ["set", "id:1"],
                      ["check"], ["--port", "3524", "discover"], ["--port", "x", "discover"],
                      ["-x", "discover"]):
            result = kxctl("--json", *words)
            self.assertEnds(result, 2, "usage")
            self.assertTrue(result.err.startswith("kxctl: "), result.err)

    def test_a_mistyped_command_is_guessed(self):
        self.assertIn("“discover”", kxctl("dicsover").err)

    def test_speaks_the_language_of_the_user_and_keeps_its_names(self):
        result = kxctl("show", "4B58000000FF", "--json", LANGUAGE="de")
        self.assertEqual(result.code, "not-found")
        self.assertIn("antwortet nicht", result.err)


class Ends(Test):
    def test_an_interrupted_discovery_tells_what_it_has_found(self):
        signal.signal(signal.SIGHUP, signal.SIG_DFL)  # a run in the background ignores it
        for number, status in ((signal.SIGINT, 130), (signal.SIGTERM, 143), (signal.SIGHUP, 143)):
            before = len(heard())
            process = start("discover", "--wait", "10", "--json")
            self.assertTrue(eventually(lambda: len(heard()) >= before + 3))
            time.sleep(0.1)
            process.send_signal(number)
            result = end_of(process, 3)
            self.assertEnds(result, status, "interrupted")
            self.assertEqual(len(result.document["units"]), 3)
            self.assertFalse(result.document["complete"])

    def test_a_broken_pipe_ends_it_quietly(self):
        process = start("watch", "--every", "0.1")
        process.stdout.close()
        process.stdout = None
        process.wait(5)
        self.assertEqual(process.stderr.read(), "")

    def test_a_broken_pipe_is_seen_while_nothing_happens(self):
        for words in ([], ["--until", "99"]):
            process = start("watch", "--every", "60", *words)
            for _ in range(3):
                process.stdout.readline()
            process.stdout.close()
            process.stdout = None
            self.assertEqual(process.wait(5), 0)
            self.assertEqual(process.stderr.read(), "")

    def test_a_full_disk_is_told(self):
        with open("/dev/full", "w", encoding="utf-8") as full:
            result = kxctl("discover", "--expect", "3", stdout=full)
        self.assertEqual(result.status, 3)
        self.assertIn("No space left", result.err)

    def test_nothing_is_bold_in_a_pipe(self):
        self.assertNotIn("\x1b", kxctl("discover", "--expect", "3").out)


class Ports(Test):
    def taken(self, *ports):
        sockets = []
        for port in ports:
            sockets.append(socket.socket(socket.AF_INET, socket.SOCK_DGRAM))
            sockets[-1].bind(("", port))
            self.addCleanup(sockets[-1].close)

    def test_the_first_free_port_is_taken(self):
        self.taken(3520, 3521)
        document = kxctl("discover", "--expect", "3", "--json").document
        self.assertEqual((document["port"], len(document["units"])), (3522, 3))

    def test_a_port_that_is_taken_is_told(self):
        self.taken(3521)
        self.assertEnds(kxctl("discover", "--port", "3521", "--json"), 3, "port")

    def test_four_ports_that_are_taken_are_told(self):
        self.taken(3520, 3521, 3522, 3523)
        self.assertEnds(kxctl("discover", "--json"), 3, "port")


class Capture(Test):
    def test_that_cannot_be_written_whole_is_told(self):
        result = kxctl("discover", "--expect", "3", "--capture", "/dev/full", "--json")
        self.assertEnds(result, 0)
        self.assertEqual([warning["code"] for warning in result.document["warnings"]], ["capture"])

    def test_is_read_by_other_tools(self):
        with tempfile.TemporaryDirectory() as folder:
            path = os.path.join(folder, "capture.pcapng")
            kxctl("discover", "--expect", "3", "--wait", "1", "--capture", path)
            fields = subprocess.run(
                ["tshark", "-r", path, "-o", "ip.check_checksum:TRUE", "-T", "fields", "-e",
                 "ip.src", "-e", "ip.dst", "-e", "udp.srcport", "-e", "udp.dstport", "-e",
                 "ip.checksum.status", "-e", "frame.packet_flags_direction"],
                capture_output=True, text=True, check=True).stdout.splitlines()
        rows = [line.split("\t") for line in fields]
        self.assertEqual(rows[0][:5], ["192.0.2.1", "192.0.2.255", "3520", "3520", "1"])
        sources = {row[0] for row in rows}
        self.assertLessEqual({"192.0.2.11", "192.0.2.12", "192.0.2.13"}, sources)

    def test_tells_what_each_datagram_is_and_that_headers_are_made_up(self):
        with tempfile.TemporaryDirectory() as folder:
            path = os.path.join(folder, "capture.pcapng")
            kxctl("discover", "--expect", "3", "--wait", "1", "--capture", path)
            comments = subprocess.run(["tshark", "-r", path, "-T", "fields", "-e", "frame.comment"],
                                      capture_output=True, text=True, check=True).stdout.splitlines()
            about = subprocess.run(["capinfos", path], capture_output=True, text=True,
                                   check=True).stdout
            end = pathlib.Path(path).read_bytes()[-52:]
        self.assertEqual(comments[0], "Request unit parameters with address: 192.0.2.255")
        self.assertIn("Received command: ^^<U> unit:1 serial:4B 58 00 00 00 01 cidString:", comments)
        self.assertNotIn("", comments)
        self.assertIn("headers of IPv4 and UDP are made up", about)
        self.assertIn("Number of stat entries = 1", about)
        received = sum(comment.startswith("Received") for comment in comments)
        block, length, interface = struct.unpack_from("=III", end, 0)
        self.assertEqual((block, length, interface), (5, 52, 0))
        self.assertEqual(struct.unpack_from("=HHQHHQ", end, 20), (4, 8, received, 5, 8, 0))


if __name__ == "__main__":
    main()
