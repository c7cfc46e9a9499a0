"""What kxctl plans for three units that can be relied on, and which tables it refuses."""

import os
import pathlib

from program import FIRST, SECOND, heard, kxctl, main, restore_units
from tables import TableTest, of_another_version, serial_of

THIRD = serial_of(3)


class Planning(TableTest):
    def test_tells_line_by_line_what_would_change_and_the_sum(self):
        self.table(f"{FIRST},RACK7A,3521", f"{SECOND},,3521", f"{THIRD},3,3520")
        before = len(heard())
        result = kxctl("plan", "rack.csv")
        self.assertEnds(result, 0)
        self.assertEqual([line.split() for line in result.lines], [
            "line serial parameter from to state reason".split(),
            f"2 {FIRST} unit-id 1 RACK7A planned".split(),
            f"2 {FIRST} destination-port 3520 3521 planned".split(),
            f"3 {SECOND} destination-port 3520 3521 planned".split(),
            "2 to change, 1 unchanged, 0 refused, 0 silent".split()])
        self.assertNoCommandSent(before)

    def test_has_a_document_with_every_row_and_every_sum(self):
        self.table(f"{FIRST},RACK7A,", f"{SECOND},,3520")
        document = kxctl("plan", "rack.csv", "--json").document
        self.assertEqual(document["rows"], [
            {"line": 2, "serial": FIRST, "state": "planned", "reason": None, "changes": [
                {"serial": FIRST, "parameter": "unit-id", "from": "1", "to": "RACK7A",
                 "command": "^^IdU5241434B3741", "state": "planned"}]},
            {"line": 3, "serial": SECOND, "state": "unchanged", "reason": None, "changes": [
                {"serial": SECOND, "parameter": "destination-port", "from": "3520", "to": "3520",
                 "command": "^^IdT0DC0", "state": "unchanged"}]}])
        self.assertEqual(document["sums"],
                         {"planned": 1, "unchanged": 1, "refused": 0, "silent": 0})

    def test_an_export_planned_at_once_has_nothing_to_change(self):
        exported = kxctl("discover", "--csv", "--expect", "3")
        self.write(exported.out, "export.csv")
        result = kxctl("plan", "export.csv")
        self.assertEnds(result, 0)
        self.assertEqual(result.out, "0 to change, 3 unchanged, 0 refused, 0 silent\n")

    def test_takes_the_dialects_of_spreadsheets(self):
        for text in (f"serial;unit-id\n{FIRST};A\n", f"\ufeffunit-id\tserial\r\nA\t{FIRST}\r\n",
                     f"note,serial,unit-id,state,reason\n\"a, b\",{FIRST},A,,\n"):
            self.write(text)
            self.assertEqual(self.states_of(kxctl("plan", "rack.csv", "--json")), [(2, "planned")])

    def test_a_unit_that_does_not_answer_is_silent(self):
        self.table("4B 58 00 00 00 77,A,", f"{FIRST},A,")
        result = kxctl("plan", "rack.csv", "--json")
        self.assertEnds(result, 1, "not-found")
        self.assertEqual(self.states_of(result), [(2, "silent"), (3, "planned")])
        self.assertIn("Line 2, 4B 58 00 00 00 77", result.document["error"]["message"])

    def test_an_address_that_another_unit_keeps_is_refused(self):
        self.table(f"{FIRST},192.0.2.13", header="serial,internal-ip")
        result = kxctl("plan", "rack.csv", "--json")
        self.assertEnds(result, 1, "held")
        self.assertEqual(self.states_of(result), [(2, "refused")])
        self.assertIn("192.0.2.13", result.document["rows"][0]["reason"])

    def test_a_ring_of_addresses_is_refused_and_what_has_no_part_in_it_is_planned(self):
        self.table(f"{FIRST},192.0.2.12,", f"{SECOND},192.0.2.11,", f"{THIRD},,3521",
                   header="serial,internal-ip,destination-port")
        result = kxctl("plan", "rack.csv", "--json")
        self.assertEnds(result, 1, "held")
        self.assertEqual(self.states_of(result),
                         [(2, "refused"), (3, "refused"), (4, "planned")])


class KeptPlans(TableTest):
    def tearDown(self):
        restore_units()

    def keep(self):
        self.table(f"{FIRST},RACK7A,", f"{SECOND},RACK7B,3521")
        self.assertEnds(kxctl("plan", "rack.csv", "--out", "rack.plan"), 0)

    def test_is_applied_while_the_units_show_what_it_saw(self):
        self.keep()
        os.remove("rack.csv")
        result = self.apply("rack.plan")
        self.assertEnds(result, 0)
        self.assertEqual(self.states_of(result), [(2, "done"), (3, "done")])

    def test_refuses_a_unit_that_shows_another_value_since_and_names_the_parameter(self):
        self.keep()
        kxctl("set", SECOND, "destination-port=3522")
        before = len(heard())
        result = self.apply("rack.plan")
        self.assertEnds(result, 1, "differs")
        self.assertEqual(self.states_of(result), [(2, "untouched"), (3, "refused")])
        self.assertIn("destination-port", result.document["rows"][1]["reason"])
        self.assertNoCommandSent(before)
        self.assertEqual(self.states_of(self.apply("rack.plan", "--keep-going")),
                         [(2, "done"), (3, "refused")])

    def test_is_told_apart_when_it_is_damaged_or_of_another_version(self):
        self.keep()
        text = pathlib.Path("rack.plan").read_text(encoding="utf-8")
        before = len(heard())
        for changed, reason in ((text[:-20], "damaged"), (text.replace("RACK7A", "RACK7C"), "damaged"),
                                (of_another_version(text), "another version"), ("{}", "another kind")):
            self.write(changed, "changed.plan")
            result = self.apply("changed.plan")
            self.assertEnds(result, 2, "file")
            self.assertIn(reason, result.err)
        self.assertNothingSent(before)

    def test_a_file_that_cannot_be_written_is_told_first(self):
        self.table(f"{FIRST},A,")
        before = len(heard())
        self.assertEnds(kxctl("plan", "rack.csv", "--out", "/nowhere/rack.plan", "--json"), 2, "file")
        self.assertNothingSent(before)


class Faults(TableTest):
    """What is wrong in the file is told before anybody is asked."""

    def refused(self, code, *words, path="rack.csv"):
        before = len(heard())
        for command in (["plan", path], ["apply", path, "--yes"],
                        ["apply", path, "--yes", "--keep-going"]):
            result = kxctl(*command, "--json")
            self.assertEnds(result, 2, code)
            self.assertEqual(result.document["rows"], [])
            for word in words:
                self.assertIn(word, result.document["error"]["message"])
        self.assertNothingSent(before)
        return result

    def test_a_wrong_cell_is_told_by_line_and_column(self):
        for header, cell, word in (("destination-port", "3524", "3520"),
                                   ("Destination Port Number", "80", "3520"),
                                   ("unit-id", "SEVENBY", "SEVENBY"),
                                   ("destination-ip", "192.0.2.010", "192.0.2.10"),
                                   ("device-port", "10000.00", "decimal"),
                                   ("new-serial", "4.7E+11", "shortened"),
                                   ("internal-mac", "24580000009", "number"),
                                   ("destination-ip", "192168178100", "dots")):
            self.table(f"{FIRST},A", f"{SECOND},{cell}", header=f"serial,{header}")
            if header != "unit-id":
                self.table(f"{FIRST},", f"{SECOND},{cell}", header=f"serial,{header}")
            self.refused("value", f"Line 3, {header}", word)

    def test_a_serial_number_that_a_spreadsheet_has_damaged_is_refused(self):
        for cell, word in (("4.7E+11", "shortened"), ("4758000001", "lacks digits")):
            self.table(f"{cell},A,")
            self.refused("value", "Line 2, serial", word)

    def test_columns_and_lines_that_are_wrong(self):
        for text, words in (
                ("serial,colour\n4B5800000001,red\n", ["Line 1", "colour"]),
                ("unit-id\nA\n", ["serial"]), ("", ["empty"]),
                (f"serial,unit-id\n{FIRST},A,B\n", ["Line 2", "more cells"]),
                (f"serial,unit-id\n{FIRST},A\n4B5800000001,B\n", ["Line 3", "Line 2"]),
                (f"serial,internal-ip\n{FIRST},192.0.2.50\n{SECOND},192.0.2.50\n",
                 ["Line 3", "Line 2 has the same address"])):
            self.write(text)
            result = self.refused(None, *words)
            self.assertIn(result.code, ("file", "value"))

    def test_addresses_that_no_unit_may_have(self):
        for address in ("192.0.2.1", "192.0.2.0", "192.0.2.255", "198.51.100.7"):
            self.table(f"{SECOND},{address}", header="serial,internal-ip")
            self.refused("value", "Line 2", address)

    def test_every_fault_is_told(self):
        self.table(f"{FIRST},SEVENBY,3524", f"{SECOND},,99")
        result = self.refused("value", "3 faults")
        self.assertEqual(len(result.document["warnings"]), 3)
        self.assertIn("Line 3, destination-port", kxctl("plan", "rack.csv").err)

    def test_a_file_that_is_none(self):
        os.mkfifo("pipe")
        for path in ("nothing.csv", ".", "pipe", "/dev/zero"):
            self.refused("file", path=path)

    def test_a_command_line_without_a_file_is_wrong(self):
        for command in ("plan", "apply", "revert"):
            for words in ([], ["a", "b"]):
                self.assertEnds(kxctl(command, *words, "--json"), 2, "usage")
        for value in ("0", "x", "257"):
            self.table(f"{FIRST},A,")
            self.assertEnds(self.apply("rack.csv", "--in-flight", value), 2, "usage")


if __name__ == "__main__":
    main()
