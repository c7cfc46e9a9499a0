"""The window on the screen of a small laptop, under a window manager."""

import os
import unittest

from desktop import Application, everything_in, insist, perform, place_of, role_of, states

SCREEN = tuple(int(length) for length in os.environ["KX_SCREEN"].split("x"))


def is_inside(inner, outer):
    return (outer[0] <= inner[0] and outer[1] <= inner[1] and inner[2] <= outer[2]
            and inner[3] <= outer[3])


class TheWindowOnASmallScreen(unittest.TestCase):
    def setUp(self):
        self.program = Application(os.environ["KX_PROGRAM"])
        self.addCleanup(self.program.end)

    def expect_everything_in_sight(self):
        program = self.program
        screen = (0, 0, *SCREEN)
        window = place_of(program.window)
        self.assertTrue(is_inside(window, screen), f"the window is at {window}")
        for each in everything_in(program.window):
            if role_of(each) in ("button", "combo box") and "showing" in states(each):
                place = place_of(each)
                self.assertTrue(is_inside(place, window), f"{each.get_name()} is at {place}")

    def test_every_control_is_in_sight_also_with_the_log_open(self):
        program = self.program
        program.wait_for_units(3)
        self.expect_everything_in_sight()
        closed = place_of(program.window)
        program.open_log()
        log = program.field("Event log text")
        self.assertTrue(is_inside(place_of(log), (0, 0, *SCREEN)))
        self.assertGreaterEqual(place_of(log)[3] - place_of(log)[1], 60)  # three lines
        self.expect_everything_in_sight()
        insist("the window as it was", lambda: perform(program.button("Event Log"), "Press"),
               lambda: place_of(program.window) == closed)


if __name__ == "__main__":
    unittest.main()
