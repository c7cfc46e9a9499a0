"""The window of all units, as a screen reader sees it and as the keyboard uses it."""

import os
import signal
import unittest

from desktop import Application, Atspi, perform, press, text_of, type_text, wait_for

SERIALS = [f"4B 58 00 00 00 0{number}" for number in (1, 2, 3)]


class AllUnits(unittest.TestCase):
    def setUp(self):
        self.program = Application(os.environ["KX_PROGRAM"])
        self.addCleanup(self.program.end)

    def test_a_unit_is_found_in_the_table_and_shown_in_the_main_window(self):
        program = self.program
        main_window = program.window
        program.wait_for_units(3)

        press("Ctrl+u")
        program.window = wait_for("the window", lambda: program.window_titled("All Units"))
        program.wait_for_focus("text", "Filter:")
        rows = wait_for("three rows", lambda: program.rows_of("All Units"))
        self.assertEqual([row[0] for row in rows], SERIALS)
        self.assertEqual([row[2] for row in rows], ["Answered"] * 3)
        table = program.table("All Units")
        self.assertEqual(" ".join(Atspi.Table.get_column_description(table, 3).split()),
                         "Internal IP address")
        program.control("notification", "3 units")

        type_text("000003")
        program.control("notification", "3 units, 1 shown")
        self.assertEqual(text_of(program.field("Filter:")), "000003")
        press("Return")
        program.wait_for_focus("table cell", SERIALS[2])
        press("Return")
        program.window = main_window
        wait_for("the third unit", lambda: program.pop_up("Unit:").get_name() == SERIALS[2])
        program.wait_for_focus("table", "Unit parameters")
        self.assertEqual(program.close(), 0)

    def test_units_that_fall_silent_and_come_back_are_marked_in_words(self):
        program = self.program
        main_window = program.window
        program.wait_for_units(3)
        press("Ctrl+u")
        table = wait_for("the window", lambda: program.window_titled("All Units"))
        units = int(os.environ["KX_UNITS_PIDS"])
        os.kill(units, signal.SIGSTOP)
        self.addCleanup(os.kill, units, signal.SIGCONT)
        program.window = main_window
        perform(program.button("Discover"), "Press")
        program.window = table
        wait_for("the marks", lambda: [row[2] for row in program.rows_of("All Units")]
                 == ["No answer"] * 3)
        os.kill(units, signal.SIGCONT)
        wait_for("their late answers", lambda: [row[2] for row in program.rows_of("All Units")]
                 == ["Answered"] * 3)


if __name__ == "__main__":
    unittest.main()
