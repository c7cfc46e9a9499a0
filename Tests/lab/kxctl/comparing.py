"""What kxctl saves of three units that can be relied on, and how it compares."""

import json
import os
import pathlib
import signal
import tempfile

from program import (FIRST, SECOND, Test, checked, end_of, eventually, heard, kxctl, main,
                     restore_units, start, units_process)

THIRD = "4B 58 00 00 00 03"


class Files(Test):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)
        self.before = str(self.folder / "a.json")
        self.now = str(self.folder / "b.json")

    def save(self, path):
        self.assertEnds(kxctl("discover", "--expect", "3", "--save", path), 0)
        return checked(json.loads(pathlib.Path(path).read_text(encoding="utf-8")))

    def rewrite(self, change):
        """Changes the saved document."""
        path = pathlib.Path(self.before)
        document = json.loads(path.read_text(encoding="utf-8"))
        change(document)
        path.write_text(json.dumps(document), encoding="utf-8")

    def names(self):
        return sorted(path.name for path in self.folder.iterdir())


class Comparing(Files):
    def test_nothing_differs_from_what_was_saved_just_now(self):
        self.save(self.before)
        document = kxctl("compare", self.before, "--json").document
        self.assertEqual((document["exit"], document["same"]), (0, 3))
        self.assertEqual((document["new"], document["missing"], document["changed"]), ([], [], []))

    def test_each_changed_parameter_is_told(self):
        self.save(self.before)
        self.assertEnds(kxctl("set", SECOND, "unit-id=RACK7A", "destination-port=3521"), 0)
        self.addCleanup(restore_units)
        result = kxctl("compare", self.before, "--json")
        self.assertEnds(result, 1, "differs")
        self.assertEqual(result.document["changed"], [
            {"serial": SECOND, "parameter": "destination-port", "from": "3520", "to": "3521"},
            {"serial": SECOND, "parameter": "unit-id", "from": "U00002", "to": "RACK7A"}])
        self.assertEqual(result.document["same"], 2)
        text = kxctl("compare", self.before)
        self.assertEqual([line.split()[0] for line in text.lines], ["state", "changed", "changed"])

    def test_a_unit_that_was_not_there_is_new(self):
        self.save(self.before)
        self.rewrite(lambda document: document["units"].pop())
        result = kxctl("compare", self.before, "--json")
        self.assertEnds(result, 1, "differs")
        self.assertEqual([unit["serial"] for unit in result.document["new"]], [THIRD])

    def test_a_unit_that_is_gone_is_missing_and_was_asked_at_its_last_address(self):
        self.save(self.before)
        gone = "4B 58 00 00 00 77"

        def add(document):
            document["units"].append({**document["units"][0], "serial": gone,
                                      "internal_mac": "02:4B:58:00:00:77",
                                      "internal_ip": "192.0.2.12"})
        self.rewrite(add)
        before = len(heard())
        result = kxctl("compare", self.before, "--json")
        self.assertEnds(result, 1, "differs")
        self.assertEqual([unit["serial"] for unit in result.document["missing"]], [gone])
        # The unit that holds this address now was asked, and is not the one that is sought.
        asked = [address for _, address, _, _ in heard()[before:] if address == "192.0.2.12"]
        self.assertEqual(len(asked), 8)

    def test_with_two_files_nobody_is_asked(self):
        self.save(self.before)
        self.save(self.now)
        self.rewrite(lambda document: document["units"].pop(0))
        before = len(heard())
        result = kxctl("compare", self.before, self.now, "--json")
        self.assertEnds(result, 1, "differs")
        self.assertEqual([unit["serial"] for unit in result.document["new"]], [FIRST])
        self.assertEqual(len(heard()), before)

    def test_discover_compares_too(self):
        self.save(self.before)
        self.assertEnds(kxctl("discover", "--compare", self.before, "--expect", "3"), 0)
        self.rewrite(lambda document: document["units"].pop())
        result = kxctl("discover", "--compare", self.before, "--save", self.before, "--json")
        self.assertEnds(result, 1, "differs")
        self.assertEqual(len(result.document["compare"]["new"]), 1)
        self.assertEnds(kxctl("compare", self.before), 0)

    def test_all_units_that_are_dead_are_missing(self):
        self.save(self.before)
        os.kill(units_process(), signal.SIGSTOP)
        try:
            result = kxctl("compare", self.before, "--json")
        finally:
            os.kill(units_process(), signal.SIGCONT)
        self.assertEnds(result, 1, "differs")
        self.assertEqual(len(result.document["missing"]), 3)

    def test_an_interrupted_comparison_calls_nobody_missing(self):
        self.save(self.before)
        os.kill(units_process(), signal.SIGSTOP)
        try:
            process = start("compare", self.before, "--json")
            with self.assertRaises(Exception):
                process.wait(2.5)  # it is asking at the last addresses
            process.send_signal(signal.SIGINT)
            result = end_of(process)
        finally:
            os.kill(units_process(), signal.SIGCONT)
        self.assertEnds(result, 130, "interrupted")
        self.assertEqual(result.document["missing"], [])


class Saving(Files):
    def test_leaves_one_file(self):
        self.save(self.before)
        self.save(self.before)
        self.assertEqual(self.names(), ["a.json"])

    def test_an_empty_result_replaces_no_file(self):
        saved = self.save(self.before)
        os.kill(units_process(), signal.SIGSTOP)
        try:
            result = kxctl("discover", "--wait", "1", "--save", self.before, "--json")
        finally:
            os.kill(units_process(), signal.SIGCONT)
        self.assertEnds(result, 1, "not-found")
        self.assertEqual([warning["code"] for warning in result.document["warnings"]], ["kept"])
        self.assertEqual(json.loads(pathlib.Path(self.before).read_text(encoding="utf-8")), saved)

    def test_a_full_disk_leaves_the_old_file_and_nothing_besides(self):
        saved = self.save(self.before)
        disk = self.folder / "disk"
        disk.mkdir()
        # 64 KiB hold the file that is there, and a file of the same size beside it does not fit.
        self.assertEqual(os.system(f"mount -t tmpfs -o size=64k tmpfs {disk}"), 0)
        self.addCleanup(os.system, f"umount {disk}")
        full = disk / "a.json"
        full.write_text(json.dumps(saved), encoding="utf-8")
        filler = disk / "filler"
        with filler.open("wb", buffering=0) as file:
            try:
                while file.write(b"x" * 4096):
                    pass
            except OSError:
                pass
        result = kxctl("discover", "--expect", "3", "--save", str(full), "--json")
        self.assertEnds(result, 3, "file")
        self.assertIn("No space left", result.err)
        self.assertEqual(json.loads(full.read_text(encoding="utf-8")), saved)
        self.assertEqual(sorted(path.name for path in disk.iterdir()), ["a.json", "filler"])


class FilesThatAreNone(Files):
    def test_each_is_told_before_anything_is_sent(self):
        document = self.save(self.before)
        whole = json.dumps(document)
        cases = {
            "is damaged": ["", whole[:-40], whole.replace('"schema": 1', '"schema": 1,,')],
            "another version": [json.dumps({**document, "schema": 2})],
            "is no saved discovery": ["{}", "serial,unit-id\n",
                                      json.dumps({**document, "command": "show"})],
            "could not ask": [json.dumps({**document, "port": None})],
        }
        before = len(heard())
        for reason, texts in cases.items():
            for text in texts:
                pathlib.Path(self.now).write_text(text, encoding="utf-8")
                for words in (["compare", self.now], ["compare", self.before, self.now],
                              ["discover", "--compare", self.now]):
                    result = kxctl(*words, "--json")
                    self.assertEnds(result, 2, "file")
                    self.assertIn(reason, result.err)
        self.assertEqual(len(heard()), before)

    def test_what_has_no_end_and_what_nobody_writes_is_not_waited_for(self):
        pipe = str(self.folder / "pipe")
        os.mkfifo(pipe)
        for path in (pipe, "/dev/zero", str(self.folder), "/nowhere"):
            self.assertEnds(kxctl("compare", path, "--json"), 2, "file")

    def test_a_wrong_number_of_files_is_a_wrong_command_line(self):
        for words in ([], ["a", "b", "c"]):
            self.assertEnds(kxctl("compare", *words, "--json"), 2, "usage")


if __name__ == "__main__":
    main()
