"""Help opens in the language of the window."""

import os
import unittest

from desktop import Application, click, press, wait_for


class InTheLanguageOfTheWindow(unittest.TestCase):
    def test_reads_the_german_book_beside_the_german_window(self):
        program = Application(os.environ["KX_PROGRAM"], LANGUAGE="de")
        self.addCleanup(program.end)
        click(program.button("Hilfe"))
        program.wait_for_focus("label", "Hilfetext")
        press("Tab")
        press("Return")
        wait_for("another German page", lambda: program.window_titled("Erste Schritte – KXConfig-Hilfe"))
        press("Escape")
        wait_for("the main window alone", lambda: not program.window_titled("Erste Schritte – KXConfig-Hilfe"))
        self.assertEqual(program.close(), 0)


if __name__ == "__main__":
    unittest.main()
