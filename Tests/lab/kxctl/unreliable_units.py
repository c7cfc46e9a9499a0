"""kxctl with units whose answers get lost, late, doubled, overtaken, cut and invented.

usage: unreliable_units.py FAULT, the name of a class here
"""

import os
import signal
import time

from program import (FIRST, START, Test, commands_heard, end_of, eventually, heard, kxctl, main,
                     start, units_process)


class Lossy(Test):
    """--lose 30"""

    def test_more_tries_find_every_unit(self):
        result = kxctl("discover", "--tries", "12", "--wait", "3", "--expect", "20", "--json")
        self.assertEnds(result, 0)

    def test_without_a_number_of_tries_every_unit_is_found_too(self):
        for _ in range(5):
            document = kxctl("discover", "--json").document
            self.assertEqual(len(document["units"]), 20)

    def test_values_arrive_all_the_same(self):
        for port in ("3521", "3522", "3523", "3520") * 2:
            result = kxctl("set", "4B5800000001", f"destination-port={port}", "--json")
            self.assertEnds(result, 0)

    def test_a_restore_is_read_back(self):
        self.assertEnds(kxctl("restore", "4B5800000002", "--yes", "--json"), 0)

    def test_a_watched_unit_is_not_called_silent(self):
        result = kxctl("watch", "--every", "0.2", "--for", "4", "--json")
        events = [document.get("event") for document in result.documents]
        self.assertLessEqual(events.count("silent"), 4)  # one in a hundred by chance


class Late(Test):
    """--late 300"""

    def test_an_old_answer_does_not_count(self):
        result = kxctl("set", "4B5800000001", "unit-id=LATE", "destination-port=3522", "--json")
        self.assertEnds(result, 0)
        self.assertEqual([change["state"] for change in result.document["changes"]],
                         ["done", "done"])

    def test_a_unit_that_falls_silent_after_the_command_is_told(self):
        for values, status, code, states in (
                (["destination-port=3523"], 4, "silent", ["silent"]),
                (["unit-id=A1", "destination-port=3521"], 4, "half", ["done", "silent"])):
            before = len(heard())
            process = start("set", "4B5800000001", *values, "--json")
            self.assertTrue(eventually(lambda: any(
                text.startswith("^^IdT") for _, text in commands_heard(before))))
            os.kill(units_process(), signal.SIGSTOP)
            try:
                result = end_of(process)
            finally:
                os.kill(units_process(), signal.SIGCONT)
            self.assertEnds(result, status, code)
            self.assertEqual([change["state"] for change in result.document["changes"]], states)
            time.sleep(1)

    def test_a_unit_that_falls_silent_after_a_restore_is_told(self):
        before = len(heard())
        process = start("restore", "4B5800000001", "--yes", "--json")
        self.assertTrue(eventually(lambda: len(commands_heard(before)) >= 1))
        os.kill(units_process(), signal.SIGSTOP)
        try:
            result = end_of(process)
        finally:
            os.kill(units_process(), signal.SIGCONT)
        self.assertEnds(result, 4, "silent")
        time.sleep(1)

    def test_an_interrupted_command_is_read_back_and_no_other_is_sent(self):
        kxctl("restore", "4B5800000001", "--yes")
        before = len(heard())
        process = start("set", "4B5800000001", "unit-id=A2", "destination-port=3521", "--json")
        self.assertTrue(eventually(lambda: len(commands_heard(before)) >= 1))
        process.send_signal(signal.SIGINT)
        result = end_of(process)
        self.assertEnds(result, 130, "interrupted")
        self.assertEqual([change["state"] for change in result.document["changes"]],
                         ["done", "refused"])
        self.assertEqual([text[4] for _, text in commands_heard(before) if text[4] != "U"], [])

    def test_a_signal_during_the_search_sends_no_command(self):
        for words in (["set", "4B5800000001", "unit-id=A3"], ["option", "4B5800000001", "V"],
                      ["restore", "4B5800000001", "--yes"], ["set", "id:1", "unit-id=A3"]):
            before = len(heard())
            process = start(*words, "--json")
            self.assertTrue(eventually(lambda: len(heard()) > before))
            process.send_signal(signal.SIGINT)
            self.assertEnds(end_of(process), 130, "interrupted")
            time.sleep(0.5)
            self.assertEqual(commands_heard(before), [], words)

    def test_a_watched_unit_falls_silent_and_comes_back(self):
        process = start("watch", "--every", "0.4", "--json")
        for _ in range(3):
            self.assertIn("appeared", process.stdout.readline())
        os.kill(units_process(), signal.SIGSTOP)
        silent = [process.stdout.readline() for _ in range(3)]
        os.kill(units_process(), signal.SIGCONT)
        back = [process.stdout.readline() for _ in range(3)]
        process.send_signal(signal.SIGTERM)
        end_of(process)
        self.assertTrue(all('"silent"' in line for line in silent), silent)
        self.assertTrue(all('"back"' in line for line in back), back)


class Confused(Test):
    """--duplicate 100 --reorder 30"""

    def test_units_are_listed_once(self):
        document = kxctl("discover", "--wait", "1", "--json").document
        self.assertEqual(len(document["units"]), 3)
        self.assertEqual(document["duplicates"], [])

    def test_values_are_changed(self):
        for value in ("unit-id=X1", "unit-id=X2", "device-port=4000", "device-port=10000"):
            self.assertEnds(kxctl("set", "4B5800000001", value), 0)


class Malformed(Test):
    """--malform 60 --seed 5"""

    def test_what_cannot_be_decoded_is_counted_and_the_document_stays_whole(self):
        result = kxctl("discover", "--tries", "8", "--json")
        self.assertGreater(result.document["rejected"], 0)
        self.assertEqual(result.err.count("Exception"), 0)


class Cut(Test):
    """--truncate 40"""

    def test_units_whose_answers_are_all_cut_are_not_found(self):
        result = kxctl("discover", "--tries", "2", "--wait", "2", "--json")
        self.assertEnds(result, 1, "not-found")
        self.assertEqual(result.document["rejected"], 2 * 3)


class Flooding(Test):
    """--flood 2000"""

    def test_a_flood_does_not_hold_up_the_end(self):
        began = time.monotonic()
        self.assertEnds(kxctl("discover", "--wait", "1", "--json"), 0)
        self.assertLess(time.monotonic() - began, 1 + 2 * START)
        self.assertEnds(kxctl("set", "4B5800000001", "unit-id=F1"), 0)


class Many(Test):
    """--units $KX_MANY --network 10.0.0.0/16"""

    def test_all_of_them_are_listed(self):
        many = int(os.environ["KX_MANY"])
        document = kxctl("discover", "--json", "--expect", str(many), "--wait", "10",
                         "--tries", "3").document
        self.assertEqual(len(document["units"]), many)
        self.assertEqual(document["dropped"], 0)
        serials = [unit["serial"] for unit in document["units"]]
        self.assertEqual(serials, sorted(serials))

    def test_one_of_them_is_changed(self):
        self.assertEnds(kxctl("set", "4B58000003E8", "unit-id=M1"), 0)


if __name__ == "__main__":
    main()
