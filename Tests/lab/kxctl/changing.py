"""What kxctl does to three units that can be relied on."""

import os
import pty
import signal
import socket
import subprocess
import time

from program import (FIRST, Test, commands_heard, end_of, eventually, heard, kxctl, main, restore_units,
                     seen_until, start)


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
        before = len(heard())
        with socket.socket(socket.AF_INET, socket.SOCK_DGRAM) as sender:  # kxctl would refuse it
            sender.sendto(b"^^IdS4B5800000001", ("192.0.2.12", 10000))
        self.assertTrue(eventually(lambda: commands_heard(before)))
        discovered = kxctl("discover", "--json").document
        self.assertEqual(discovered["duplicates"],
                         [{"serial": FIRST, "internal_macs": ["02:4B:58:00:00:01",
                                                              "02:4B:58:00:00:02"]}])
        self.assertEqual([warning["code"] for warning in discovered["warnings"]], ["ambiguous"])
        before = len(heard())
        self.assertEnds(kxctl("set", "4B5800000001", "unit-id=A", "--json"), 1, "ambiguous")
        self.assertEqual(commands_heard(before), [])

    def test_a_serial_number_that_another_unit_has_is_refused(self):
        before = len(heard())
        result = kxctl("set", "4B5800000002", "unit-id=A", "serial=4B5800000001", "--json")
        self.assertEnds(result, 1, "ambiguous")
        self.assertIn("02:4B:58:00:00:01", result.err)
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

    def test_an_address_that_somebody_holds_leaves_the_other_values_alone(self):
        before = len(heard())
        result = kxctl("set", "4B5800000001", "unit-id=MOVED", "internal-ip=192.0.2.12", "--json")
        self.assertEnds(result, 1, "held")
        self.assertEqual([change["state"] for change in result.document["changes"]],
                         ["refused", "refused"])
        self.assertEqual(commands_heard(before), [])

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

    def test_a_text_is_sent_as_it_stands(self):
        for text in ("[V]", "[a,b]", "{}", "a,b", "++"):
            before = len(heard())
            kxctl("option", "4B5800000001", text)
            self.assertEqual(commands_heard(before), [("4B5800000001", f"^^Id{text}\r")])

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
        process = start(*arguments, stdin=terminal, stderr=terminal)
        os.close(terminal)
        os.write(person, answer.encode() + b"\n")
        result = end_of(process)
        result.err = seen_until(person, None)
        os.close(person)
        return result

    def test_asks_nobody_who_does_not_see_the_question(self):
        before = len(heard())
        person, terminal = pty.openpty()
        result = end_of(start("restore", "4B5800000001", stdin=terminal))
        os.close(terminal)
        os.close(person)
        self.assertEqual(result.status, 2, result.err)
        self.assertEqual(len(heard()), before)

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
        process = start("restore", "--everyone", "--quiet", stdin=terminal, stderr=terminal)
        os.close(terminal)
        question = seen_until(person, "\n")
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


if __name__ == "__main__":
    main()
