"""kxctl with three units that can be relied on."""

import csv
import io
import json
import os
import pathlib
import pty
import signal
import socket
import subprocess
import tempfile
import time

from program import (FIRST, SECOND, Test, commands_heard, eventually, heard, kxctl,
                     main, checked, restore_units, start, end_of)


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
        self.assertAlmostEqual(time.monotonic() - began, 0.65, delta=0.3)
        self.assertEqual(len(heard()) - before, 2 * 3)

    def test_asks_as_often_as_told(self):
        before = len(heard())
        kxctl("discover", "--wait", "0.4", "--tries", "5")
        self.assertEqual(len(heard()) - before, 5 * 3)

    def test_ends_as_soon_as_enough_have_answered(self):
        began = time.monotonic()
        self.assertEnds(kxctl("discover", "--expect", "3", "--wait", "5"), 0)
        self.assertLess(time.monotonic() - began, 1)

    def test_fewer_than_expected_is_no_success_and_all_the_same_listed(self):
        result = kxctl("discover", "--expect", "4", "--wait", "0.3", "--json")
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

    def test_numbers_that_are_none_are_a_wrong_command_line(self):
        for words in (["--wait", "x"], ["--wait", "0"], ["--wait", "-1"], ["--wait", "1e3"],
                      ["--tries", "0"], ["--tries", "2.5"], ["--expect", "many"], ["--wait"],
                      ["--expect", "99999999999"], ["--json=x"]):
            before = len(heard())
            self.assertEnds(kxctl("--json", "discover", *words), 2, "usage")
            self.assertEqual(len(heard()), before, words)

    def test_progress_and_sentences_keep_away_from_the_data(self):
        quiet = kxctl("discover", "--expect", "3", "--quiet")
        self.assertEqual(quiet.err, "")
        self.assertEqual(kxctl("discover", "--expect", "3").err, "")


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
        self.assertLess(time.monotonic() - began, 1)

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


class Set(Test):
    def tearDown(self):
        restore_units()

    def changed(self, *values, unit="4B5800000001", status=0):
        result = kxctl("set", unit, *values, "--json")
        self.assertEnds(result, status)
        return [(change["parameter"], change["from"], change["to"], change["state"])
                for change in result.document["changes"]]

    def test_changes_every_parameter_and_reads_it_back(self):
        for parameter, before, value, command in (
                ("unit-id", "1", "RACK7A", "^^IdU5241434B3741"),
                ("unit-id", "RACK7A", "12", "^^IdU00000000000C"),
                ("destination-ip", "192.0.2.1", "192.0.2.9", "^^IdDC0000209"),
                ("destination-mac", "02:00:00:00:00:01", "02:00:00:00:00:09",
                 "^^IdC020000000009"),
                ("destination-port", "3520", "3523", "^^IdT0DC3"),
                ("device-port", "10000", "10001", "^^IdP2711"),
                ("internal-mac", "02:4B:58:00:00:01", "02:4B:58:00:00:AA",
                 "^^IdM024B580000AA")):
            count = len(heard())
            self.assertEqual(self.changed(f"{parameter}={value}"),
                             [(parameter, before, value, "done")])
            self.assertEqual([text for _, text in commands_heard(count)], [command])
        self.assertEqual(self.changed("serial=4B58000000F1"),
                         [("serial", FIRST, "4B 58 00 00 00 F1", "done")])

    def test_takes_the_names_of_the_window_and_any_separator(self):
        self.assertEqual(
            self.changed("Destination port NUMBER=3521", "destination MAC address=02-00-00-00-00-0a"),
            [("destination-port", "3520", "3521", "done"),
             ("destination-mac", "02:00:00:00:00:01", "02:00:00:00:00:0A", "done")])

    def test_a_value_that_is_there_already_is_not_sent(self):
        before = len(heard())
        self.assertEqual(self.changed("destination-port=3520", "unit-id=1"),
                         [("destination-port", "3520", "3520", "unchanged"),
                          ("unit-id", "1", "1", "unchanged")])
        self.assertEqual(commands_heard(before), [])

    def test_a_dry_run_sends_no_command(self):
        before = len(heard())
        result = kxctl("set", "id:1", "unit-id=X", "destination-port=3520", "--dry-run", "--json")
        self.assertEqual([change["state"] for change in result.document["changes"]],
                         ["planned", "unchanged"])
        self.assertEqual(commands_heard(before), [])

    def test_goes_from_the_harmless_to_what_changes_the_way_to_the_unit(self):
        before = len(heard())
        self.changed("serial=4B58000000F1", "device-port=10001", "internal-mac=024B580000AA",
                     "unit-id=AB")
        self.assertEqual([text[4] for _, text in commands_heard(before)], ["U", "P", "M", "S"])

    def test_a_value_that_a_conversion_would_change_is_refused(self):
        before = len(heard())
        for value, word in (("destination-port=3524", "3520"), ("destination-port=80", "3520"),
                            ("device-port=70000", "70000"), ("device-port=x", "0"),
                            ("unit-id=SEVENBY", "SEVENBY"), ("unit-id=300", "300"),
                            ("unit-id=7AB", "7"), ("destination-ip=192.0.2.010", "192.0.2.10"),
                            ("destination-ip=192.0.2", "0.0.0.0"), ("internal-mac=12:34", "12"),
                            ("serial=xyz", "xyz"), ("unit-id=", "unit-id"),
                            ("internal-ip=1.2.3.4", "1.2.3.4"),
                            ("internal-ip=192.0.2.1", "own"), ("internal-ip=192.0.2.255", "network"),
                            ("internal-ip=192.0.2.0", "network")):
            result = kxctl("set", "4B5800000001", value, "--json")
            self.assertEnds(result, 2, "value")
            self.assertIn(word, result.err)
        self.assertEqual(len(heard()), before)

    def test_a_wrong_name_of_a_parameter_is_a_wrong_command_line(self):
        before = len(heard())
        for values in (["colour=red"], ["destination-port"], ["unit-id=A", "unit-id=B"]):
            self.assertEnds(kxctl("set", "4B5800000001", *values, "--json"), 2, "usage")
        self.assertEqual(len(heard()), before)

    def test_loose_takes_what_the_conversion_makes_of_it(self):
        result = kxctl("set", "4B5800000001", "destination-port=3524", "--loose", "--json")
        self.assertEqual(result.document["changes"][0]["state"], "unchanged")
        result = kxctl("set", "4B5800000001", "device-port=010001x", "--loose", "--json")
        self.assertEqual(result.document["changes"][0]["state"], "done")

    def test_a_number_above_255_counts_by_its_bytes(self):
        result = kxctl("set", "4B5800000001", "unit-id=300", "--loose", "--json")
        self.assertEnds(result, 0)
        self.assertEqual(kxctl("show", "4B5800000001", "--json").document["units"][0]
                         ["unit_id_bytes"], "00000000012C")

    def test_a_value_that_the_unit_does_not_take_is_no_success(self):
        result = kxctl("set", "4B5800000001", "unit-id=SEVENBY", "--loose", "--json")
        self.assertEnds(result, 1, "unchanged")
        self.assertEqual(result.document["changes"][0]["state"], "different")

    def test_some_values_taken_and_others_not_is_half(self):
        result = kxctl("set", "4B5800000001", "unit-id=SEVENBY", "destination-port=3523", "--loose",
                       "--json")
        self.assertEnds(result, 4, "half")
        self.assertEqual([change["state"] for change in result.document["changes"]],
                         ["different", "done"])

    def test_a_command_is_sent_three_times_at_most(self):
        before = len(heard())
        kxctl("set", "4B5800000001", "unit-id=SEVENBY", "--loose")
        self.assertEqual(len(commands_heard(before)), 3)

    def test_a_unit_that_does_not_answer_gets_no_command(self):
        before = len(heard())
        self.assertEnds(kxctl("set", "4B58000000FF", "unit-id=A", "--json"), 1, "not-found")
        self.assertEqual(commands_heard(before), [])

    def test_a_serial_number_that_two_have_is_ambiguous(self):
        self.changed("serial=4B5800000001", unit="4B5800000002")
        discovered = kxctl("discover", "--json").document
        self.assertEqual(discovered["duplicates"],
                         [{"serial": FIRST, "internal_macs": ["02:4B:58:00:00:01",
                                                              "02:4B:58:00:00:02"]}])
        self.assertEqual([warning["code"] for warning in discovered["warnings"]], ["ambiguous"])
        before = len(heard())
        self.assertEnds(kxctl("set", "4B5800000001", "unit-id=A", "--json"), 1, "ambiguous")
        self.assertEqual(commands_heard(before), [])

    def test_a_unit_id_that_two_have_is_ambiguous(self):
        self.changed("unit-id=1", unit="4B5800000003")
        before = len(heard())
        self.assertEnds(kxctl("set", "id:1", "unit-id=A", "--json"), 1, "ambiguous")
        self.assertEqual(commands_heard(before), [])


class Move(Test):
    def tearDown(self):
        restore_units()

    def neighbour(self, address):
        found = subprocess.run(["ip", "neigh", "show", address], capture_output=True, text=True,
                               check=True)
        return found.stdout

    def test_moves_the_unit_and_takes_the_entry_out_again(self):
        before = len(heard())
        result = kxctl("set", "4B5800000001", "internal-ip=192.0.2.50", "--json")
        self.assertEnds(result, 0)
        self.assertEqual([text for _, text in commands_heard(before)], ["^^IdIC0000232"])
        self.assertNotIn("PERMANENT", self.neighbour("192.0.2.50"))
        self.assertIn("02:4b:58:00:00:01", self.neighbour("192.0.2.50"))
        unit = kxctl("show", "4B5800000001", "--json").document["units"][0]
        self.assertEqual((unit["internal_ip"], unit["source_ip"]), ("192.0.2.50", "192.0.2.50"))

    def test_an_address_that_somebody_holds_is_refused(self):
        before = len(heard())
        result = kxctl("set", "4B5800000001", "internal-ip=192.0.2.12", "--json")
        self.assertEnds(result, 1, "held")
        self.assertEqual(result.document["changes"][0]["state"], "refused")
        self.assertEqual(commands_heard(before), [])
        self.assertIn("02:4B:58:00:00:02", result.err)
        self.assertNotIn("PERMANENT", self.neighbour("192.0.2.12"))

    def test_other_values_go_first_and_the_serial_number_last(self):
        before = len(heard())
        result = kxctl("set", "4B5800000001", "serial=4B58000000F1", "internal-ip=192.0.2.51",
                       "unit-id=MOVED", "--json")
        self.assertEnds(result, 0)
        self.assertEqual([text[4] for _, text in commands_heard(before)], ["U", "I", "S"])


class Option(Test):
    def test_prints_what_the_unit_answers(self):
        result = kxctl("option", "4B5800000001", "V")
        self.assertEnds(result, 0)
        self.assertEqual(result.out, "simulated unit 1.0\n")

    def test_tells_the_bytes_too(self):
        document = kxctl("option", "4B5800000001", "V", "--json").document
        self.assertEqual(document["replies"], [{
            "text": "simulated unit 1.0\r",
            "bytes": b"$simulated unit 1.0\r".hex().upper()}])

    def test_sets_the_clock_to_local_time(self):
        before = len(heard())
        self.assertEnds(kxctl("option", "4B5800000001", "--clock", TZ="UTC"), 0)
        text = commands_heard(before)[0][1]
        self.assertRegex(text, r"^\^\^Id-Z[0-9]{8}\r$")
        self.assertEqual(text[6:10], time.strftime("%m%d", time.gmtime()))

    def test_an_acknowledgement_is_an_answer(self):
        self.assertEqual(kxctl("option", "4B5800000001", "-Z03051407").out, "ok\n")

    def test_a_text_may_look_like_an_option(self):
        before = len(heard())
        kxctl("option", "4B5800000001", "--", "--json")
        self.assertEqual(commands_heard(before), [("4B5800000001", "^^Id--json\r")])

    def test_a_text_without_an_answer_is_sent_once(self):
        before = len(heard())
        result = kxctl("option", "4B5800000001", "nonsense", "--json")
        self.assertEnds(result, 1, "silent")
        self.assertEqual(result.document["replies"], [])
        self.assertEqual(commands_heard(before), [("4B5800000001", "^^Idnonsense\r")])

    def test_needs_a_text_of_ascii_or_the_clock(self):
        before = len(heard())
        self.assertEnds(kxctl("option", "4B5800000001", "--json"), 2, "usage")
        self.assertEnds(kxctl("option", "4B5800000001", "V", "--clock", "--json"), 2, "usage")
        self.assertEnds(kxctl("option", "4B5800000001", "é", "--json"), 2, "value")
        self.assertEqual(len(heard()), before)


class Restore(Test):
    def test_brings_the_factory_settings_back(self):
        kxctl("set", "4B5800000001", "unit-id=X", "device-port=4000", "destination-port=3523")
        result = kxctl("restore", "4B5800000001", "--yes", "--json")
        self.assertEnds(result, 0)
        unit = result.document["units"][0]
        self.assertEqual((unit["unit_id"], unit["device_port"], unit["destination_port"]),
                         ("1", 10000, 3520))

    def test_finds_a_unit_that_got_back_its_serial_number(self):
        kxctl("set", "4B5800000001", "serial=4B58000000F1")
        result = kxctl("restore", "4B58000000F1", "--yes", "--json")
        self.assertEnds(result, 0)
        self.assertEqual(result.document["units"][0]["serial"], FIRST)

    def test_asks_nobody_where_nobody_is(self):
        before = len(heard())
        self.assertEnds(kxctl("restore", "4B5800000001", "--json"), 2, "usage")
        self.assertEnds(kxctl("restore", "--everyone", "--json"), 2, "usage")
        self.assertEqual(len(heard()), before)

    def answered(self, answer, *arguments):
        """Runs the program at a terminal where a person types the answer."""
        person, terminal = pty.openpty()
        process = start(*arguments, stdin=terminal)
        os.close(terminal)
        os.write(person, answer.encode() + b"\n")
        result = end_of(process)
        os.close(person)
        return result

    def test_does_what_a_person_says(self):
        for answer, status, commands in (("n", 1, []), ("", 1, []), ("y", 0, ["^^IdZ"]),
                                         ("yes", 0, ["^^IdZ"])):
            before = len(heard())
            result = self.answered(answer, "restore", "4B5800000001")
            self.assertEqual(result.status, status, result.err)
            self.assertIn("4B 58 00 00 00 01", result.err)
            self.assertEqual([text for _, text in commands_heard(before)], commands)

    def test_a_signal_at_the_question_restores_nothing(self):
        before = len(heard())
        person, terminal = pty.openpty()
        process = start("restore", "--everyone", "--quiet", stdin=terminal)
        os.close(terminal)
        question = process.stderr.readline()
        process.send_signal(signal.SIGINT)
        result = end_of(process)
        os.close(person)
        self.assertEqual(result.status, 130, result.err)
        self.assertIn("3 units", question)
        self.assertEqual(commands_heard(before), [])

    def test_everyone_wants_the_number_of_units(self):
        before = len(heard())
        self.assertEqual(self.answered("yes", "restore", "--everyone").status, 1)
        self.assertEqual(commands_heard(before), [])
        result = self.answered("3", "restore", "--everyone")
        self.assertEqual(result.status, 0, result.err)
        self.assertEqual([text for _, text in commands_heard(before)], ["^^IdZ"] * 3)

    def test_everyone_is_restored_and_shown(self):
        kxctl("set", "4B5800000002", "unit-id=X")
        result = kxctl("restore", "--everyone", "--yes", "--json")
        self.assertEnds(result, 0)
        self.assertEqual([unit["unit_id"] for unit in result.document["units"]],
                         ["1", "U00002", "3"])

    def test_needs_a_unit_or_everyone(self):
        self.assertEnds(kxctl("restore", "--json"), 2, "usage")
        self.assertEnds(kxctl("restore", "--everyone", "id:1", "--json"), 2, "usage")


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
                      ["watch"], ["check"]):
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
        for number, status in ((signal.SIGINT, 130), (signal.SIGTERM, 143)):
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


if __name__ == "__main__":
    main()
