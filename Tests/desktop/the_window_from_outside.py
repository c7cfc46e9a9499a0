"""The running program as a screen reader sees it, and its use with a screen reader and the keyboard."""

import os
import unittest

from desktop import (Application, Atspi, children, everything_in, insist, label_of, perform, press,
                     role_of, states, text_of, type_text, wait_for)

PARAMETERS_OF_THE_SECOND_UNIT = [
    ["destination IP address", "192.0.2.1"],
    ["destination MAC address", "02:00:00:00:00:01"],
    ["destination Port number", "3520"],
    ["device Port number", "10000"],
    ["internal IP address", "192.0.2.12"],
    ["internal MAC address", "02:4B:58:00:00:02"],
    ["serial number", "4B 58 00 00 00 02"],
    ["unit ID", "U00002"],
]


class TheWindow(unittest.TestCase):
    def setUp(self):
        self.program = Application(os.environ["KX_PROGRAM"])
        self.addCleanup(self.program.end)

    def test_every_control_has_its_role_and_its_name(self):
        program = self.program
        for label in ["Network interface:", "UDP port:", "Unit:", "Option command:"]:
            self.assertEqual(label_of(program.pop_up(label)), label)
        for label in ["Unit ID:", "Command text:"]:
            self.assertEqual(label_of(program.field(label)), label)
        self.assertIn("read-only", states(program.field("Unit ID:")))
        for name in ["Discover", "Reload", "Apply", "Send", "Restore Defaults", "Event Log", "Help"]:
            self.assertIn("focusable", states(program.button(name)))
        self.assertIn("is-default", states(program.button("Discover")))
        for name in ["Unit parameters", "Edit parameter"]:
            self.assertIn("focusable", states(program.table(name)))
        program.wait_for_units(3)
        table = program.table("Unit parameters")
        self.assertEqual([Atspi.Table.get_column_header(table, column).get_name()
                          for column in range(2)], ["Parameter", "Value"])
        menus = [item.get_name() for item in children(program.control("menu bar", ""))]
        self.assertEqual(menus, ["File", "Edit", "Unit", "View", "Help"])

    def test_nothing_that_can_be_pressed_or_typed_into_is_without_a_name(self):
        unnamed = [role_of(each) for each in everything_in(self.program.window)
                   if "focusable" in states(each) and "showing" in states(each)
                   and role_of(each) not in ("notification", "table cell", "list item")
                   and not each.get_name() and not label_of(each)]
        self.assertEqual(unnamed, [])

    def test_a_unit_is_found_and_changed_and_the_log_tells_it(self):
        program = self.program
        program.discover(3)
        self.assertEqual(program.pop_up("Unit:").get_name(), "4B 58 00 00 00 01")

        insist("the keyboard in the list of units", lambda: press("Alt+n"),
               lambda: program.focused == ("combo box", "Unit:"))
        press("Down")
        wait_for("the second unit", lambda: text_of(program.field("Unit ID:")) == "U00002")
        self.assertEqual(program.rows_of("Unit parameters"), PARAMETERS_OF_THE_SECOND_UNIT)

        press("Tab")
        program.wait_for_focus("text", "Unit ID:")
        press("Tab")
        program.wait_for_focus("button", "Reload")
        press("Tab")
        program.wait_for_focus("table", "Unit parameters")
        press("Down")
        press("Down")
        program.wait_for_focus("table cell", "destination Port number")
        self.assertEqual(program.rows_of("Edit parameter"), [["destination Port number", "3520"]])
        press("Return")
        program.wait_for_focus("text", "destination Port number")  # the field over the value
        type_text("3521")
        note = "Apply sends ^^IdT0DC1: destination port 3521."
        wait_for("the note", lambda: program.note() == note)
        wait_for("the note, announced", lambda: note in program.announced)

        perform(program.button("Apply"), "Press")
        wait_for("the new value", lambda: program.rows_of("Unit parameters")[2] ==
                 ["destination Port number", "3521"])
        note = "The unit now shows 3521 as its destination Port number (was 3520)."
        wait_for("the result, announced", lambda: program.announced[-1:] == [note])

        lines = program.open_log()
        self.assertEqual(lines[:2], ["[Begin Discover]", "UDP listener did start. 0.0.0.0:3520"])
        self.assertIn("Send to: 192.0.2.12 command: ^^IdT0DC1", lines)
        self.assertIn("\tdestination Port number: 3521", lines)
        self.assertEqual(program.close(), 0)


if __name__ == "__main__":
    unittest.main()
