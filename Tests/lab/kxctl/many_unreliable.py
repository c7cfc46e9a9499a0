"""kxctl apply with units whose answers get lost, late, doubled, overtaken, cut and invented.

usage: many_unreliable.py FAULT, the name of a class here
"""

import os
import pathlib
import signal
import time

from program import (FIRST, SECOND, commands_heard, end_of, eventually, heard, kxctl, main,
                     restore_units, start, units_process)
from tables import TableTest, serial_of, unit_states


class Tables(TableTest):
    def tearDown(self):
        restore_units()

    def three_edits(self, count, value):
        """A table with three edits for each unit, and what the units show when it is applied."""
        port = 3521 + ord(value) % 3
        self.table(*(f"{serial_of(n)},{value}{n:05},{port},02:00:00:00:01:{n:02X}"
                     for n in range(1, count + 1)),
                   header="serial,unit-id,destination-port,destination-mac")
        return {serial_of(n): (f"{value}{n:05}".encode().hex().upper(), str(port),
                               f"02:00:00:00:01:{n:02X}") for n in range(1, count + 1)}

    def shown(self, count):
        return {serial: (state["unit-id"], state["destination-port"],
                         state["destination-hardware"])
                for serial, state in unit_states(count).items()}

    def applied(self, count, value, *words):
        """Applies the table, and judges the units by what they are and not by what is said."""
        wanted = self.three_edits(count, value)
        result = self.apply("rack.csv", *words)
        self.assertEnds(result, 0)
        self.assertEqual(result.document["sums"]["done"], count)
        self.assertEqual(self.shown(count), wanted)
        return result


class Lossy(Tables):
    """--lose 30, twenty units"""

    def test_every_unit_is_done_all_the_same(self):
        for value in "ABC":
            self.applied(20, value)

    def test_a_plan_finds_every_unit(self):
        self.three_edits(20, "A")
        for _ in range(3):
            self.assertEqual(kxctl("plan", "rack.csv", "--json").document["sums"]["planned"], 20)

    def test_a_move_is_done_all_the_same(self):
        self.table(f"{FIRST},192.0.2.80", f"{SECOND},192.0.2.11", header="serial,internal-ip")
        self.assertEnds(self.apply("rack.csv"), 0)
        states = unit_states(20)
        self.assertEqual((states[FIRST]["address"], states[SECOND]["address"]),
                         ("192.0.2.80", "192.0.2.11"))


class Late(Tables):
    """--late 300"""

    def run_until_first_command(self, *words):
        before = len(heard())
        process = start("apply", "rack.csv", "--yes", "--json", *words)
        self.assertTrue(eventually(lambda: len(commands_heard(before)) >= 1))
        return process

    def test_an_old_answer_does_not_count(self):
        self.applied(3, "A")

    def test_what_is_under_way_is_read_back_and_reported_when_a_signal_comes(self):
        for number, status in ((signal.SIGINT, 130), (signal.SIGTERM, 143)):
            self.three_edits(3, "B")
            process = self.run_until_first_command("--report", "r.csv")
            process.send_signal(number)
            result = end_of(process)
            self.assertEnds(result, status, "interrupted")
            self.assertEqual(self.states_of(result),
                             [(2, "done"), (3, "untouched"), (4, "untouched")])
            self.assertEqual([row["state"] for row in self.report("r.csv")],
                             ["done", "untouched", "untouched"])
            self.assertEqual({change["state"] for change in result.document["rows"][0]["changes"]},
                             {"done"})
            restore_units()

    def test_a_killed_run_is_resumed_with_the_same_journal_and_taken_back_as_a_whole(self):
        before = unit_states()
        wanted = self.three_edits(3, "D")
        process = self.run_until_first_command("--journal", "j.jsonl")
        process.kill()
        end_of(process)
        self.assertEnds(self.apply("rack.csv", "--journal", "j.jsonl"), 0)
        self.assertEqual(self.shown(3), wanted)
        self.assertEnds(kxctl("revert", "j.jsonl", "--yes"), 0)
        self.assertEqual(unit_states(), before)

    def test_a_unit_that_falls_silent_in_the_middle_is_told_and_nothing_new_is_begun(self):
        self.three_edits(3, "E")
        before = len(heard())
        process = self.run_until_first_command()
        self.assertTrue(eventually(lambda: len({text for _, text in commands_heard(before)}) >= 2))
        os.kill(units_process(), signal.SIGSTOP)
        try:
            result = end_of(process, 60)
        finally:
            os.kill(units_process(), signal.SIGCONT)
        self.assertEnds(result, 4, "half")
        self.assertEqual(self.states_of(result),
                         [(2, "half"), (3, "untouched"), (4, "untouched")])
        time.sleep(1)


class Confused(Tables):
    """--duplicate 100 --reorder 30"""

    def test_every_unit_is_done(self):
        for value in "AB":
            self.applied(3, value)


class Malformed(Tables):
    """--malform 20 --seed 5"""

    def test_what_is_told_done_is_done_and_applying_again_comes_to_the_end(self):
        wanted = self.three_edits(3, "A")
        for _ in range(10):
            result = self.apply("rack.csv", "--keep-going")
            shown = self.shown(3)
            for row in result.document["rows"]:
                if row["state"] in ("done", "unchanged"):
                    self.assertEqual(shown[row["serial"]], wanted[row["serial"]])
            if result.status == 0:
                break
        self.assertEnds(result, 0)
        self.assertEqual(shown, wanted)


class Cut(Tables):
    """--truncate 40"""

    def test_units_whose_answers_are_all_cut_get_no_command(self):
        self.three_edits(3, "A")
        before = len(heard())
        result = self.apply("rack.csv")
        self.assertEnds(result, 1, "not-found")
        self.assertEqual(self.states_of(result), [(2, "silent"), (3, "silent"), (4, "silent")])
        self.assertNoCommandSent(before)


class Flooding(Tables):
    """--flood 2000"""

    def test_a_flood_does_not_hold_up_the_run(self):
        began = time.monotonic()
        for value in "AB":
            self.applied(3, value)
        self.assertLess(time.monotonic() - began, 10)


class Many(TableTest):
    """--units $KX_MANY --network 10.0.0.0/16"""

    def test_all_of_them_are_planned_changed_and_planned_again(self):
        many = int(os.environ["KX_MANY"])
        self.table(*(f"{serial_of(n)},M{n:05},3522,02:00:00:00:00:09"
                     for n in range(1, many + 1)),
                   header="serial,unit-id,destination-port,destination-mac")
        for sums in ({"planned": many}, {"done": many}, {"unchanged": many}):
            words = ("plan",) if "planned" in sums else ("apply", "--yes")
            result = end_of(start(*words, "rack.csv", "--json"), 200)
            self.assertEnds(result, 0)
            told = {state: count for state, count in result.document["sums"].items() if count}
            self.assertEqual(told, sums)
        self.assertEqual({state["destination-port"] for state in unit_states(many).values()},
                         {"3522"})


if __name__ == "__main__":
    main()
