"""The window on a Wayland compositor.

A program does not learn there where its windows are, so the compositor is asked. It opens a menu only for a
key that is still held.
"""

import os
import pathlib
import re
import subprocess
import time
import unittest

from desktop import (MODIFIERS, Application, children, held, insist, perform, press, states, text_of,
                     wait_for)

SCREEN = tuple(int(length) for length in os.environ["KX_SCREEN"].split("x"))
RESOURCES = pathlib.Path(os.environ["KX_BOOK"]).parent
KEY_CODES = {"f": 41, "Return": 36, "Right": 114, "Down": 116}


def hold(codes, condition):
    """Holds the keys until the condition is true, or for three seconds. No key repeats itself here.

    The last key comes a moment after the others, as from a person. The toolkit asks assistive technology about
    each key first, and a menu that is open before Alt gets through takes Alt for the order to close.
    """
    *modifiers, key = codes
    with held(*modifiers):
        time.sleep(0.2 if modifiers else 0.0)
        deadline = time.monotonic() + 3.0
        with held(key):
            while not condition() and time.monotonic() < deadline:
                time.sleep(0.02)


def views_of(program):
    """What the compositor shows of the program: its words about each view, and left, top, right, bottom.

    A view without a size has not been drawn yet.
    """
    told = subprocess.run(["weston-debug", "scene-graph"], check=True, capture_output=True, text=True,
                          timeout=10).stdout
    found = re.findall(r"View \d+ \((.*)\):\n\s*position: \((-?\d+), (-?\d+)\) -> \((-?\d+), (-?\d+)\)", told)
    views = [(words, tuple(int(length) for length in place)) for words, *place in found
             if f"PID {program.process_id()}," in words]
    return [(words, place) for words, place in views if place[2] > place[0]]


def windows_of(program):
    """The name of the program and the size of each of its windows, by the window's title."""
    windows = {}
    for words, (left, top, right, bottom) in views_of(program):
        if found := re.search(r"window '(.*)' of ([\w.]+)", words):
            windows[found[1]] = found[2], (right - left, bottom - top)
    return windows


def place_of_pop_up(program):
    return next((place for words, place in views_of(program) if "role xdg_popup" in words), None)


class TheWindowOnWayland(unittest.TestCase):
    def setUp(self):
        self.program = Application(os.environ["KX_PROGRAM"])
        self.addCleanup(self.program.end)
        self.program.wait_for_units(3)

    def size(self):
        return windows_of(self.program)["KXConfig"][1]

    def open_pop_up(self, what, *codes):
        """Opens it with a key, expects it on the screen, and returns its place."""
        def is_open():
            return place_of_pop_up(self.program) is not None
        insist(what, lambda: hold(codes, is_open), is_open)
        place = place_of_pop_up(self.program)
        self.assertGreaterEqual(min(place), 0)
        self.assertLessEqual(place[2:], SCREEN)
        return place

    def test_the_desktop_finds_the_icon_of_every_window(self):
        press("Ctrl+u")
        windows = wait_for("the table of all units", lambda: (found := windows_of(self.program))
                           and len(found) == 2 and found)
        self.assertEqual({name for name, size in windows.values()}, {"org.kxconfig.KXConfig"})
        entry = (RESOURCES / "org.kxconfig.KXConfig.desktop").read_text()
        self.assertIn("\nIcon=org.kxconfig.KXConfig\n", entry)
        for name, size in windows.values():
            self.assertLessEqual(size[0], SCREEN[0])
            self.assertLessEqual(size[1], SCREEN[1])

    def test_with_the_event_log_open_a_window_in_the_middle_stays_on_the_screen(self):
        program = self.program
        width, closed = self.size()
        self.assertLessEqual(closed, SCREEN[1])
        program.open_log()
        self.assertEqual(self.size()[0], width)
        self.assertLessEqual(self.size()[1] - closed, (SCREEN[1] - closed) // 2)
        log = program.field("Event log text")
        self.assertIn("showing", states(log))
        insist("the window as it was", lambda: perform(program.button("Event Log"), "Press"),
               lambda: self.size() == (width, closed))

    def test_menus_open_where_their_titles_are_and_follow_each_other(self):
        first = self.open_pop_up("the menu File", MODIFIERS["Alt"], KEY_CODES["f"])

        def is_another_menu():
            place = place_of_pop_up(self.program)
            return place is not None and place[0] > first[0] and place[1] == first[1]
        insist("the menu Edit", lambda: hold([KEY_CODES["Right"]], is_another_menu), is_another_menu)
        insist("no menu", lambda: press("Escape"), lambda: place_of_pop_up(self.program) is None)
        self.assertEqual(self.program.close(), 0)

    def test_a_key_that_chooses_from_the_list_of_units_presses_no_button(self):
        program = self.program
        insist("the keyboard in the list of units", lambda: press("Alt+n"),
               lambda: program.focused == ("combo box", "Unit:"))
        self.open_pop_up("the list of units", MODIFIERS["Alt"], KEY_CODES["Down"])
        insist("the last unit, marked", lambda: press("End"),
               lambda: "selected" in states(children(children(program.pop_up("Unit:"))[0])[-1]))
        program.described.clear()

        def is_chosen():
            return text_of(program.field("Unit ID:")) == "3"
        hold([KEY_CODES["Return"]], is_chosen)
        wait_for("the last unit", is_chosen)
        self.assertIsNone(place_of_pop_up(program))
        self.assertNotIn("Unit:", program.described)  # as when Discover empties the list

    def test_text_is_copied_to_other_programs_and_pasted_from_them(self):
        program = self.program
        insist("the keyboard in the field", lambda: press("Alt+c"),
               lambda: program.focused == ("text", "Command text:"))
        press("Ctrl+a")
        press("Ctrl+c")
        pasted = ["wl-paste", "--no-newline"]
        wait_for("the text of the field elsewhere", lambda: subprocess.run(
            pasted, capture_output=True, text=True, timeout=10).stdout == "V")

        other = subprocess.Popen(["wl-copy", "--foreground", "Grüße"])
        self.addCleanup(other.wait)
        self.addCleanup(other.terminate)
        wait_for("the text of the other program", lambda: subprocess.run(
            pasted, capture_output=True, text=True, timeout=10).stdout == "Grüße")
        insist("the text in the field", lambda: (press("Ctrl+a"), press("Ctrl+v")),
               lambda: text_of(program.field("Command text:")) == "Grüße")
        self.assertEqual(program.close(), 0)


if __name__ == "__main__":
    unittest.main()
