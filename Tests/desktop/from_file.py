"""Units configured from a file in the window, as a screen reader sees it and as the keyboard uses it."""

import json
import os
import pathlib
import tempfile
import unittest

from desktop import Application, perform, press, states, type_text, wait_for

TITLE = "Configure from File"
SERIALS = [f"4B 58 00 00 00 0{number}" for number in (1, 2, 3)]
UNIT, PARAMETER, WANTED, STATE = 1, 2, 4, 5


class FromFile(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)
        self.program = Application(os.environ["KX_PROGRAM"])
        self.addCleanup(self.program.end)
        self.program.wait_for_units(3)
        self.main_window = self.program.window

    def table(self, text):
        path = self.folder / "rack.csv"
        path.write_text(text)
        return path

    def open(self, path):
        """Opens the window and the file with the keyboard alone."""
        press("Ctrl+o")
        wait_for("the panel", lambda: self.program.window_titled("Choose a Table of Units"))
        self.program.wait_for_focus("text", "File name:")
        type_text(str(path))
        press("Return")
        self.program.window = wait_for("the window", lambda: self.program.window_titled(TITLE))

    def column(self, number):
        """The texts of a column; none while the lines are becoming others."""
        try:
            return [row[number] for row in self.program.rows_of("Plan")]
        except AttributeError:
            return []

    def wait_for_states(self, *wanted):
        wait_for(f"the states {wanted}", lambda: self.column(STATE) == list(wanted))

    def press_button(self, name):
        wait_for(name, lambda: "enabled" in states(self.program.button(name)))
        perform(self.program.button(name), "Press")

    def save(self, key, title, name):
        """Saves with the keyboard alone, and returns the file's path."""
        press(key)
        wait_for("the panel", lambda: self.program.window_titled(title))
        self.program.wait_for_focus("text", "File name:")
        press("Ctrl+a")
        type_text(str(self.folder / name))
        press("Return")
        wait_for(name, (self.folder / name).exists)
        return self.folder / name

    def test_a_table_is_planned_applied_reported_and_reverted(self):
        program = self.program
        log = program.open_log()
        self.open(self.table("serial,unit-id,destination-port\n"
                             f"{SERIALS[0]},RACK7A,3521\n{SERIALS[1]},RACK7B,3521\n"))
        self.wait_for_states(*["To change"] * 4)
        rows = program.rows_of("Plan")
        self.assertEqual([row[UNIT] for row in rows], [SERIALS[0]] * 2 + [SERIALS[1]] * 2)
        self.assertEqual(rows[1][PARAMETER:STATE], ["destination Port number", "3520", "3521"])
        program.control("notification", "Units to change: 2, parameters in all: 4. Unchanged: 0, "
                                        "refused: 0, without an answer: 0.")
        self.assertEqual(list(self.folder.glob("*.jsonl")), [], "nothing was applied")

        press("Ctrl+Return")
        self.wait_for_states(*["Done"] * 4)
        journals = list(self.folder.glob("kxctl-journal-*.jsonl"))
        self.assertEqual(len(journals), 1)
        self.assertIn("^^IdT0DC1", journals[0].read_text())

        report = self.save("Ctrl+s", "Save Report", "report.csv")
        self.assertEqual(report.read_text().splitlines()[1:],
                         [f"{SERIALS[0]},RACK7A,3521,done,", f"{SERIALS[1]},RACK7B,3521,done,"])

        self.press_button("Revert")
        self.wait_for_states(*["To change"] * 4)
        self.assertEqual(set(self.column(WANTED)), {"3520", "1", "U00002"})
        self.press_button("Apply")
        self.wait_for_states(*["Done"] * 4)

        press("Escape")
        wait_for("the end of the window", lambda: program.window_titled(TITLE) is None)
        program.window = self.main_window
        self.assertEqual(program.wait_for_log(), log, "the event log is the main window's own")
        wait_for("the main window", lambda: "active" in states(self.main_window))
        session = self.save("Ctrl+Shift+s", "Save Session", "session.pcapng").read_bytes()
        self.assertIn(b"Configure from File, not in the event log", session)
        self.assertIn(b"^^IdT0DC1", session)
        self.assertEqual(program.close(), 0)

    def test_an_order_to_end_waits_for_the_unit_under_way(self):
        self.open(self.table(f"serial,unit-id,internal-ip\n{SERIALS[2]},RACK7C,192.0.2.43\n"))
        self.wait_for_states(*["To change"] * 2)
        press("Ctrl+Return")
        journal = wait_for("the journal", lambda: list(self.folder.glob("kxctl-journal-*.jsonl")))[0]
        wait_for("the first command", lambda: '"event":"command"' in journal.read_text())
        self.assertEqual(self.program.order_to_end(), 0)
        entries = [json.loads(line) for line in journal.read_text().splitlines()]
        self.assertEqual(entries[-1]["event"], "end")
        self.assertEqual([(entry["parameter"], entry["state"]) for entry in entries
                          if entry.get("event") == "outcome"],
                         [("unit-id", "done"), ("internal-ip", "done")])

    def test_units_move_to_other_addresses_and_hand_one_on(self):
        self.open(self.table("serial,internal-ip\n"
                             f"{SERIALS[0]},192.0.2.12\n{SERIALS[1]},192.0.2.42\n"))
        self.wait_for_states(*["To change"] * 2)
        press("Ctrl+Return")
        self.wait_for_states(*["Done"] * 2)
        self.press_button("Revert")
        self.wait_for_states(*["To change"] * 2)
        press("Ctrl+Return")
        self.wait_for_states(*["Done"] * 2)

    def test_a_fault_of_the_file_is_listed_with_its_line_and_column(self):
        self.open(self.table(f"serial,destination-port\n{SERIALS[0]},9999\n"))
        self.wait_for_states("Wrong")
        self.assertEqual(self.program.rows_of("Plan")[0][:3], ["2", "", "destination-port"])
        self.assertNotIn("enabled", states(self.program.button("Apply")))

    def test_a_unit_that_is_not_there_has_its_reason_and_holds_apply_back(self):
        self.open(self.table(f"serial,destination-port\n{SERIALS[0]},3521\n4B5800000009,3521\n"))
        self.wait_for_states("To change", "No answer")
        self.assertEqual(self.program.rows_of("Plan")[1][6],
                         "The unit 4B 58 00 00 00 09 does not answer.")
        self.assertNotIn("enabled", states(self.program.button("Apply")))


if __name__ == "__main__":
    unittest.main()
