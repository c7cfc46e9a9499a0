"""A person who knows only the help book finds a unit and changes its ports.

Each step quotes sentences that the book must contain, and is taken with the mouse and the keyboard.
KX_PICTURES, when set, is a folder for a picture of the screen at every step. The pictures need
Debian's package imagemagick.
"""

import os
import pathlib
import subprocess
import sys
import time
import unittest

from desktop import Application, click, insist, press, type_text, wait_for

ROOT = pathlib.Path(__file__).resolve().parents[2]
sys.path.insert(0, str(ROOT / "Tests/help"))
import checks  # noqa: E402

UNIT = "4B 58 00 00 00 02"


class ByTheHelpBook(unittest.TestCase):
    def setUp(self):
        self.program = Application(os.environ["KX_PROGRAM"])
        self.addCleanup(self.program.end)
        self.book = checks.pages(os.environ["KX_BOOK"])
        self.pictures = 0

    def read(self, page, *sentences):
        for sentence in sentences:
            self.assertIn(sentence, self.book[page].text)

    def picture(self, name):
        folder = os.environ.get("KX_PICTURES")
        if folder:
            self.pictures += 1
            path = pathlib.Path(folder) / f"{self.id().rpartition('_')[2]}-{self.pictures:02}-{name}.png"
            time.sleep(0.5)  # lets movements end
            subprocess.run(["import", "-window", "root", path], check=True)

    def shown(self, parameter):
        return dict(self.program.rows_of("Unit parameters")).get(parameter)

    def wait_for_note(self, start):
        wait_for(f"the note {start}", lambda: self.program.note().startswith(start))

    def change(self, parameter, value):
        program = self.program
        names = [row[0] for row in program.rows_of("Unit parameters")]
        click(program.cell("Unit parameters", names.index(parameter), 0))
        wait_for(f"{parameter} in the edit row",
                 lambda: program.rows_of("Edit parameter")[0][0] == parameter)
        insist(f"the keyboard in the value of {parameter}",
               lambda: click(program.cell("Edit parameter", 0, 1), times=2),
               lambda: program.focused == ("text", parameter))
        type_text(value)

    def test_finds_a_unit_and_changes_where_it_sends(self):
        program = self.program
        self.picture("start")
        self.read("first-steps.html", "Open Network interface: and choose the interface that leads to the "
                  "units.", "So do choose, even if the right one stands there already.")
        program.choose("Network interface:", "Ethernet (kx0)")
        self.picture("interface")

        self.read("first-steps.html", "2. Press Discover", "lists those that have answered under Unit:, by "
                  "serial number. The first one is shown at once.")
        program.wait_for_units(3)
        program.described.clear()
        click(program.button("Discover"))
        wait_for("an empty list", lambda: "Unit:" in program.described)
        self.picture("discovering")
        program.wait_for_units(3)
        self.assertEqual(program.pop_up("Unit:").get_name(), "4B 58 00 00 00 01")
        self.picture("units")

        self.read("first-steps.html", "Open Unit: and choose the serial number that is printed on your unit.")
        program.choose("Unit:", UNIT)
        self.assertEqual(self.shown("serial number"), UNIT)
        self.picture("unit")

        self.read("first-steps.html", "Click destination Port number in the table.",
                  "Double-click the value in the edit row and type the new one: 3521.",
                  "The line below says what Apply is going to send.")
        self.change("destination Port number", "3521")
        self.wait_for_note("Apply sends ^^IdT0DC1: destination port 3521.")
        self.picture("typed")
        note = "The unit now shows 3521 as its destination Port number (was 3520)."
        self.read("first-steps.html", "Press Apply.", "and the table shows 3521.", note)
        click(program.button("Apply"))
        self.wait_for_note(note)
        self.assertEqual(self.shown("destination Port number"), "3521")
        self.picture("applied")

        self.read("first-steps.html", "Press Event Log.")
        click(program.button("Event Log"))
        lines = program.wait_for_log()
        self.picture("log")
        self.assertIn("Send to: 192.0.2.12 command: ^^IdT0DC1", lines)
        self.read("no-answer.html", "choose the one that leads to the units, even if it stands there already")
        self.assertIn("Request unit parameters with address: 192.0.2.255", lines)

    def test_changes_the_port_on_which_a_unit_listens(self):
        program = self.program
        program.wait_for_units(3)
        program.choose("Unit:", UNIT)
        self.read("first-steps.html", "device Port number is the port on which the unit itself takes commands.",
                  "The line below the edit row then says that the unit accepted a command and was asked for its "
                  "parameters, and the table keeps the old value")
        self.change("device Port number", "10001")
        self.wait_for_note("Apply sends ^^IdP2711: device port 10001.")
        click(program.button("Apply"))
        self.wait_for_note("The unit accepted a command and was asked for its parameters.")
        self.assertEqual(self.shown("device Port number"), "10000")
        self.picture("device-port-applied")

        self.read("first-steps.html", "Press Discover and choose the unit again.")
        program.discover(3)
        program.choose("Unit:", UNIT)
        self.assertEqual(self.shown("device Port number"), "10001")
        self.picture("device-port-found")

    def test_reads_the_book_where_there_is_no_browser(self):
        program = self.program
        self.read("index.html", "Where there is none, it opens in a window of KXConfig at once.")
        click(program.button("Help"))
        program.wait_for_focus("label", "Help text")
        self.picture("help")
        press("Tab")
        press("Return")
        wait_for("another page", lambda: program.window_titled("First steps – KXConfig Help"))
        self.picture("first-steps")
        press("Escape")
        wait_for("the main window alone", lambda: not program.window_titled("First steps – KXConfig Help"))
        self.assertEqual(program.close(), 0)


if __name__ == "__main__":
    unittest.main()
