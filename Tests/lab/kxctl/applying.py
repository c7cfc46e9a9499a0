"""What kxctl apply does to three units that can be relied on."""

import json
import os
import pathlib
import pty
import shutil
import signal
import subprocess
import tempfile
import time

import program
from program import (FIRST, OWN, SECOND, OwnUnit, commands_heard, end_of, eventually, header,
                     heard, kxctl, main, reply, restore_units, seen_until, start, units_process)
from tables import TableTest, of_another_version, serial_of, unit_states

THIRD = serial_of(3)
REQUEST = b"^^IdX"


def names(commands):
    return [(unit, text[4]) for unit, text in commands]


class ApplyTest(TableTest):
    def tearDown(self):
        restore_units()


class Applying(ApplyTest):
    def test_changes_every_unit_reads_it_back_and_tells(self):
        self.table(f"{FIRST},RACK7A,3521", f"{SECOND},,3521", f"{THIRD},3,")
        before = len(heard())
        result = kxctl("apply", "rack.csv", "--yes", "--journal", "j.jsonl", "--report", "r.csv")
        self.assertEnds(result, 0)
        self.assertEqual([line.split() for line in result.lines], [
            "line serial parameter from to state reason".split(),
            f"2 {FIRST} unit-id 1 RACK7A done".split(),
            f"2 {FIRST} destination-port 3520 3521 done".split(),
            f"3 {SECOND} destination-port 3520 3521 done".split(),
            "2 done, 1 unchanged, 0 refused, 0 untouched, 0 half, 0 silent".split()])
        self.assertIn("j.jsonl", result.err)
        self.assertEqual(sorted(names(commands_heard(before))),
                         [("4B5800000001", "T"), ("4B5800000001", "U"), ("4B5800000002", "T")])
        states = unit_states()
        self.assertEqual(states[FIRST]["unit-id"], b"RACK7A".hex().upper())
        self.assertEqual([states[unit]["destination-port"] for unit in (FIRST, SECOND, THIRD)],
                         ["3521", "3521", "3520"])

    def test_the_report_is_the_table_with_states_and_can_be_applied_again(self):
        self.write(f"serial;unit-id;note\r\n{FIRST};A;\"door; left\"\r\n{THIRD};3;\r\n")
        self.assertEnds(self.apply("rack.csv", "--report", "r.csv"), 0)
        self.assertEqual(pathlib.Path("r.csv").read_text(encoding="utf-8"),
                         f"serial;unit-id;note;state;reason\r\n{FIRST};A;\"door; left\";done;\r\n"
                         f"{THIRD};3;;unchanged;\r\n".replace("\r\n", "\n"))
        result = self.apply("r.csv")
        self.assertEnds(result, 0)
        self.assertEqual(self.states_of(result), [(2, "unchanged"), (3, "unchanged")])

    def test_what_is_so_already_needs_no_command_and_no_journal(self):
        self.table(f"{FIRST},1,3520")
        before = len(heard())
        result = self.apply("rack.csv")
        self.assertEnds(result, 0)
        self.assertEqual(result.document["sums"]["unchanged"], 1)
        self.assertNoCommandSent(before)
        self.assertEqual(self.journals(), [])

    def test_the_journal_is_made_in_the_current_folder_and_its_path_is_told(self):
        self.table(f"{FIRST},A,")
        result = kxctl("apply", "rack.csv", "--yes")
        self.assertEnds(result, 0)
        self.assertEqual(len(self.journals()), 1)
        self.assertIn(self.journals()[0], result.err)

    def test_one_unit_goes_first_alone(self):
        self.table(f"{THIRD},X,3521", f"{FIRST},Y,3521", f"{SECOND},Z,3521")
        before = len(heard())
        self.assertEnds(self.apply("rack.csv"), 0)
        order = [unit for unit, _ in commands_heard(before)]
        self.assertEqual(set(order[:2]), {"4B5800000003"})
        self.assertEqual(len(order), 6)

    def test_goes_from_the_harmless_to_what_changes_the_way_to_the_unit(self):
        self.table(f"{FIRST},4B58000000F1,024B580000AA,10001,3521,AB",
                   header="serial,new-serial,internal-mac,device-port,destination-port,unit-id")
        before = len(heard())
        self.assertEnds(self.apply("rack.csv"), 0)
        letters = [text[4] for _, text in commands_heard(before)]
        self.assertEqual(sorted(letters[:2]), ["T", "U"])
        self.assertEqual(letters[2:], ["P", "M", "S"])
        result = self.apply("rack.csv")
        self.assertEnds(result, 0)
        self.assertEqual(self.states_of(result), [(2, "unchanged")])

    def test_nothing_is_sent_where_one_row_is_refused_or_silent(self):
        self.table(f"{FIRST},192.0.2.13,A", f"{SECOND},,B", "4B 58 00 00 00 77,,C",
                   header="serial,internal-ip,unit-id")
        before = len(heard())
        result = self.apply("rack.csv", "--report", "r.csv")
        self.assertEnds(result, 1, "held")
        self.assertEqual(self.states_of(result),
                         [(2, "refused"), (3, "untouched"), (4, "silent")])
        self.assertNoCommandSent(before)
        self.assertEqual([row["state"] for row in self.report("r.csv")],
                         ["refused", "untouched", "silent"])
        self.assertTrue(all(row["reason"] for row in self.report("r.csv")))

    def test_keep_going_does_the_rows_that_are_right(self):
        self.table(f"{FIRST},192.0.2.13,A", f"{SECOND},,B", "4B 58 00 00 00 77,,C",
                   header="serial,internal-ip,unit-id")
        before = len(heard())
        result = self.apply("rack.csv", "--keep-going")
        self.assertEnds(result, 1, "held")
        self.assertEqual(self.states_of(result), [(2, "refused"), (3, "done"), (4, "silent")])
        self.assertEqual(names(commands_heard(before)), [("4B5800000002", "U")])

    def test_a_ring_is_refused_and_the_others_are_untouched(self):
        self.table(f"{FIRST},192.0.2.12,", f"{SECOND},192.0.2.11,", f"{THIRD},,3521",
                   header="serial,internal-ip,destination-port")
        before = len(heard())
        result = self.apply("rack.csv")
        self.assertEnds(result, 1, "held")
        self.assertEqual(self.states_of(result),
                         [(2, "refused"), (3, "refused"), (4, "untouched")])
        self.assertNoCommandSent(before)

    def test_a_unit_that_frees_an_address_goes_before_the_one_that_takes_it(self):
        self.table(f"{FIRST},192.0.2.12", f"{SECOND},192.0.2.60", header="serial,internal-ip")
        before = len(heard())
        result = self.apply("rack.csv")
        self.assertEnds(result, 0)
        self.assertEqual(names(commands_heard(before)),
                         [("4B5800000002", "I"), ("4B5800000001", "I")])
        states = unit_states()
        self.assertEqual((states[FIRST]["address"], states[SECOND]["address"]),
                         ("192.0.2.12", "192.0.2.60"))
        permanent = subprocess.run(["ip", "neigh", "show", "nud", "permanent"], check=True,
                                   capture_output=True, text=True).stdout
        self.assertEqual(permanent, "")

    def test_many_at_once_or_one_at_a_time_come_to_the_same(self):
        for number, value in (("1", "A"), ("3", "B"), ("256", "C")):
            self.table(*(f"{serial_of(n)},{value}{n}," for n in (1, 2, 3)))
            result = self.apply("rack.csv", "--in-flight", number)
            self.assertEnds(result, 0)
            self.assertEqual(result.document["sums"]["done"], 3)

    def test_quiet_leaves_the_sentences_out(self):
        self.table(f"{FIRST},A,")
        self.assertEqual(kxctl("apply", "rack.csv", "--yes", "--quiet").err, "")


class UnitsThatFail(ApplyTest):
    """A unit of the test's own beside the simulated ones."""

    def answer(self, state, taken):
        """A unit that takes only the commands in `taken`."""
        def answer(data):
            if data[:5] in taken:
                state.update(taken[data[:5]])
                return [header() + b"ok\r"]
            if data != REQUEST:
                return [header() + b"ok\r"] if not state.get("is_silent") else []
            return [] if state.get("is_silent") else [
                reply(**{key: value for key, value in state.items() if key != "is_silent"})]
        return answer

    def test_one_that_takes_some_values_is_half_and_nothing_new_is_begun(self):
        self.table(f"{OWN},A,3521", f"{FIRST},B,", f"{SECOND},C,")
        before = len(heard())
        taken = {b"^^IdU": {"unit_id": b"A\0\0\0\0\0"}}
        with OwnUnit(self.answer({}, taken)):
            result = self.apply("rack.csv", "--report", "r.csv")
        self.assertEnds(result, 4, "half")
        self.assertEqual(self.states_of(result),
                         [(2, "half"), (3, "untouched"), (4, "untouched")])
        self.assertEqual({change["parameter"]: change["state"]
                          for change in result.document["rows"][0]["changes"]},
                         {"unit-id": "done", "destination-port": "different"})
        self.assertNoCommandSent(before)
        self.assertIn(OWN, result.err)

    def test_one_that_takes_nothing_is_refused_with_the_old_value(self):
        self.table(f"{OWN},A,", f"{FIRST},B,")
        with OwnUnit(self.answer({}, {})):
            result = self.apply("rack.csv")
        self.assertEnds(result, 1, "unchanged")
        self.assertEqual(self.states_of(result)[0], (2, "refused"))

    def test_one_that_falls_silent_is_told_and_keep_going_does_the_others(self):
        for words, others in (([], "untouched"), (["--keep-going"], "done")):
            self.table(f"{OWN},A,", f"{FIRST},B,", f"{SECOND},C,")
            with OwnUnit(self.answer({}, {b"^^IdU": {"is_silent": True}})):
                result = self.apply("rack.csv", *words)
            self.assertEnds(result, 4, "silent")
            self.assertEqual(self.states_of(result), [(2, "silent"), (3, others), (4, others)])

    def test_one_that_took_a_value_and_fell_silent_is_half(self):
        self.table(f"{OWN},A,3521")
        state = {}
        taken = {b"^^IdU": {"unit_id": b"A\0\0\0\0\0"}, b"^^IdT": {"is_silent": True}}
        with OwnUnit(self.answer(state, taken)):
            result = self.apply("rack.csv")
        self.assertEnds(result, 4, "half")
        self.assertEqual(self.states_of(result), [(2, "half")])


class Asking(ApplyTest):
    def answered(self, answer, *arguments):
        person, terminal = pty.openpty()
        process = start(*arguments, stdin=terminal, stderr=terminal)
        os.close(terminal)
        os.write(person, answer.encode() + b"\n")
        result = end_of(process)
        result.err = seen_until(person, None)
        os.close(person)
        return result

    def test_asks_nobody_where_nobody_is(self):
        self.table(f"{FIRST},A,")
        before = len(heard())
        self.assertEnds(kxctl("apply", "rack.csv", "--json"), 2, "usage")
        self.assertNothingSent(before)

    def test_says_how_many_and_does_what_a_person_says(self):
        self.table(f"{FIRST},RACK7A,3521", f"{SECOND},RACK7B,")
        for answer, status, count in (("n", 1, 0), ("", 1, 0), ("y", 0, 3)):
            before = len(heard())
            result = self.answered(answer, "apply", "rack.csv")
            self.assertEqual(result.status, status, result.err)
            self.assertIn("Change 2 units, 3 parameters in all?", result.err)
            self.assertIn("RACK7B", result.err)
            self.assertEqual(len(commands_heard(before)), count)

    def test_a_signal_at_the_question_changes_nothing(self):
        self.table(f"{FIRST},A,")
        before = len(heard())
        person, terminal = pty.openpty()
        process = start("apply", "rack.csv", "--quiet", stdin=terminal, stderr=terminal)
        os.close(terminal)
        seen_until(person, "(y/n)")
        process.send_signal(signal.SIGTERM)
        result = end_of(process)
        os.close(person)
        self.assertEqual(result.status, 143)
        self.assertNoCommandSent(before)

    def test_a_terminal_shows_count_and_time_left(self):
        self.table(*(f"{serial_of(n)},A{n},3521" for n in (1, 2, 3)))
        os.kill(units_process(), signal.SIGUSR1)
        person, terminal = pty.openpty()
        with OwnUnit(lambda data: [reply()] if data == REQUEST else []):
            self.table(f"{FIRST},A,", f"{OWN},B,")
            process = start("apply", "rack.csv", "--yes", stderr=terminal)
            os.close(terminal)
            end_of(process)
        self.assertRegex(seen_until(person, None), r"1/2  [0-9.]+ s  about [0-9]+ s left")
        os.close(person)


class OneAtATime(ApplyTest):
    def first(self):
        """A run that waits at its question."""
        self.table(f"{FIRST},A,")
        self.person, terminal = pty.openpty()
        self.addCleanup(os.close, self.person)
        process = start("apply", "rack.csv", stdin=terminal, stderr=terminal)
        os.close(terminal)
        seen_until(self.person, "(y/n)")
        return process

    def test_a_second_run_is_kept_out_and_is_told_who_is_there(self):
        process = self.first()
        before = len(heard())
        result = self.apply("rack.csv")
        self.assertEnds(result, 3, "busy")
        self.assertIn(str(process.pid), result.document["error"]["message"])
        self.assertNothingSent(before)
        os.write(self.person, b"n\n")
        end_of(process)
        self.assertEnds(self.apply("rack.csv"), 0)

    def test_another_user_is_kept_out_too(self):
        process = self.first()
        folder = tempfile.mkdtemp()
        self.addCleanup(shutil.rmtree, folder)
        os.chmod(folder, 0o755)
        copy = shutil.copy(program.PROGRAM, folder)
        shutil.copy("rack.csv", folder)
        os.chown(folder, 65534, 65534)
        other = subprocess.run(
            ["setpriv", "--reuid=65534", "--regid=65534", "--clear-groups", copy, "apply",
             "rack.csv", "--yes", "--json"], cwd=folder,
            env=program.environment(), capture_output=True, text=True, check=False)
        self.assertEqual(json.loads(other.stdout)["error"]["code"], "busy")
        os.write(self.person, b"n\n")
        end_of(process)

    def test_a_run_that_was_killed_keeps_nobody_out(self):
        process = self.first()
        process.kill()
        process.wait()
        end_of(process)
        self.assertEnds(self.apply("rack.csv"), 0)

    def test_a_plan_is_kept_out_by_nobody(self):
        process = self.first()
        self.assertEnds(kxctl("plan", "rack.csv"), 0)
        os.write(self.person, b"n\n")
        end_of(process)


class FilesThatAreWritten(ApplyTest):
    def test_each_is_looked_at_before_anything_is_sent(self):
        self.table(f"{FIRST},A,")
        self.write("something else\n", "other.txt")
        before = len(heard())
        for option in ("--journal", "--report"):
            for path in ("/nowhere/file", "."):
                self.assertEnds(self.apply("rack.csv", option, path), 2, "file")
        for path in ("other.txt", "/dev/null"):
            self.assertEnds(self.apply("rack.csv", "--journal", path), 2, "file")
        self.assertNothingSent(before)

    def test_the_journal_of_a_run_that_has_ended_is_not_written_over(self):
        self.table(f"{FIRST},A,")
        self.assertEnds(self.apply("rack.csv", "--journal", "j.jsonl"), 0)
        kept = pathlib.Path("j.jsonl").read_text(encoding="utf-8")
        self.table(f"{FIRST},B,")
        self.assertEnds(self.apply("rack.csv", "--journal", "j.jsonl"), 2, "file")
        self.assertEqual(pathlib.Path("j.jsonl").read_text(encoding="utf-8"), kept)

    def test_a_full_disk_ends_the_run_before_the_command(self):
        self.table(*(f"{serial_of(n)},A{n},3521" for n in (1, 2, 3)))
        os.mkdir("disk")
        self.assertEqual(os.system("mount -t tmpfs -o size=4k tmpfs disk"), 0)
        self.addCleanup(os.system, "umount disk")
        pathlib.Path("disk/filler").write_bytes(b"x" * 4096)
        before = len(heard())
        result = self.apply("rack.csv", "--journal", "disk/j.jsonl")
        self.assertEnds(result, 3, "file")
        self.assertEqual({state for _, state in self.states_of(result)}, {"untouched"})
        self.assertNoCommandSent(before)


class Interrupted(ApplyTest):
    def test_a_signal_during_the_search_sends_no_command(self):
        self.table("4B 58 00 00 00 77,A,", f"{FIRST},B,")
        before = len(heard())
        process = start("apply", "rack.csv", "--yes", "--json", "--keep-going")
        self.assertTrue(eventually(lambda: len(heard()) > before))
        process.send_signal(signal.SIGINT)
        result = end_of(process)
        self.assertEnds(result, 130, "interrupted")
        self.assertNoCommandSent(before)
        self.assertNotIn("silent", [state for _, state in self.states_of(result)])

    def permanent(self):
        return subprocess.run(["ip", "neigh", "show", "nud", "permanent"], check=True,
                              capture_output=True, text=True).stdout

    def killed_in_a_move(self):
        """A run that is killed while an entry of the ARP cache of its own is there."""
        self.table(f"{FIRST},192.0.2.70", header="serial,internal-ip")
        before = len(heard())
        process = start("apply", "rack.csv", "--yes", "--json")
        # Units that answer the discovery, and then no more, keep the entry there for some seconds.
        self.assertTrue(eventually(lambda: len(heard()) > before))
        time.sleep(0.5)
        os.kill(units_process(), signal.SIGSTOP)
        try:
            self.assertTrue(eventually(lambda: "192.0.2.70" in self.permanent(), 20))
        finally:
            process.kill()
            end_of(process)
            os.kill(units_process(), signal.SIGCONT)
        self.assertIn("192.0.2.70", self.permanent())

    def test_an_entry_of_a_killed_run_is_taken_out_by_the_next_apply(self):
        self.killed_in_a_move()
        result = self.apply("rack.csv")
        self.assertEnds(result, 0)
        self.assertEqual(self.permanent(), "")
        self.assertEqual(unit_states()[FIRST]["address"], "192.0.2.70")

    def test_or_by_the_next_set(self):
        self.killed_in_a_move()
        self.assertEnds(kxctl("set", SECOND, "unit-id=A", "--dry-run"), 0)
        self.assertIn("192.0.2.70", self.permanent())
        self.assertEnds(kxctl("set", SECOND, "unit-id=A"), 0)
        self.assertEqual(self.permanent(), "")


if __name__ == "__main__":
    main()
