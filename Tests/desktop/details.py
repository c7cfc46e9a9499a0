"""The checks behind Details, as a screen reader sees them and as the keyboard uses them."""

import os
import subprocess
import unittest

from desktop import Application, perform, press, states, wait_for

TITLE = "Why no unit answers"
FINE = "Units answer, and no check fails."


def bring_back_the_link():
    """With the default route, which goes with the link."""
    subprocess.run(["ip", "link", "set", "kx0", "up"], check=True)
    subprocess.run(["ip", "route", "replace", "default", "dev", "kx0"], check=True)


class Details(unittest.TestCase):
    def setUp(self):
        self.program = Application(os.environ["KX_PROGRAM"])
        self.addCleanup(self.program.end)
        self.program.wait_for_units(3)
        self.main_window = self.program.window

    def open_details(self):
        perform(self.program.button("Details…"), "Press")
        self.program.window = wait_for("the checks", lambda: self.program.window_titled(TITLE))

    def states_of_checks(self):
        return {row[0]: row[1] for row in self.program.rows_of("Checks")}

    def test_where_units_answer_no_check_fails_and_nothing_of_it_is_in_the_log(self):
        program = self.program
        before = program.open_log()
        self.open_details()
        program.control("notification", FINE)
        found = self.states_of_checks()
        for check in ("Link", "Own broadcast", "Answers"):
            self.assertEqual(found[check], "✓ Fine")
        self.assertNotIn("✗ Fails", found.values())
        program.wait_for_focus("table cell", "Link")
        press("Escape")
        wait_for("the end of the window", lambda: program.window_titled(TITLE) is None)
        program.window = self.main_window
        self.assertEqual(program.wait_for_log(), before)
        wait_for("the main window", lambda: "active" in states(self.main_window))
        self.assertEqual(program.close(), 0)

    def test_where_no_browser_is_installed_help_opens_at_once(self):
        program = self.program
        self.open_details()
        perform(program.button("Help"), "Press")
        wait_for("the page", lambda: program.window_titled("No unit answers – KXConfig Help"))

    def test_a_link_that_goes_is_found_when_it_is_asked_again(self):
        program = self.program
        self.open_details()
        program.control("notification", FINE)
        self.addCleanup(bring_back_the_link)
        subprocess.run(["ip", "link", "set", "kx0", "down"], check=True)
        perform(program.button("Ask Again"), "Press")
        program.control("notification", "The interface kx0 has no link.")
        link = next(row for row in program.rows_of("Checks") if row[0] == "Link")
        self.assertEqual(link[1], "✗ Fails")
        self.assertTrue(link[3].startswith("Plug in the cable"), link)


if __name__ == "__main__":
    unittest.main()
