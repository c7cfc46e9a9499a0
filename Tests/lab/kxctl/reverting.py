"""What kxctl revert does to three units that can be relied on."""

import pathlib

from program import FIRST, SECOND, heard, kxctl, main, restore_units
from tables import TableTest, of_another_version, unit_states


class Reverting(TableTest):
    def tearDown(self):
        restore_units()

    def test_brings_every_old_value_back(self):
        before = unit_states()
        self.table(f"{FIRST},RACK7A,192.0.2.41,3521,10001,,", f"{SECOND},RACK7B,,3522,,024B580000AA,"
                   "4B58000000F2",
                   header="serial,unit-id,internal-ip,destination-port,device-port,internal-mac,"
                          "new-serial")
        self.assertEnds(self.apply("rack.csv", "--journal", "j.jsonl"), 0)
        self.assertNotEqual(unit_states(), before)
        result = kxctl("revert", "j.jsonl", "--yes", "--json", "--journal", "k.jsonl")
        self.assertEnds(result, 0)
        self.assertEqual([row["state"] for row in result.document["rows"]], ["done", "done"])
        self.assertEqual(unit_states(), before)
        self.assertEnds(kxctl("revert", "k.jsonl", "--yes"), 0)
        self.assertEqual(unit_states()["4B 58 00 00 00 F2"]["hardware"], "02:4B:58:00:00:AA")

    def test_reverting_twice_changes_nothing(self):
        self.table(f"{FIRST},RACK7A,")
        self.assertEnds(self.apply("rack.csv", "--journal", "j.jsonl"), 0)
        self.assertEnds(kxctl("revert", "j.jsonl", "--yes"), 0)
        before = len(heard())
        self.assertEnds(kxctl("revert", "j.jsonl", "--yes"), 0)
        self.assertNoCommandSent(before)

    def test_has_a_report_of_its_own(self):
        self.table(f"{FIRST},RACK7A,")
        self.assertEnds(self.apply("rack.csv", "--journal", "j.jsonl"), 0)
        self.assertEnds(kxctl("revert", "j.jsonl", "--yes", "--report", "r.csv"), 0)
        self.assertEqual([(row["serial"], row["unit-id"], row["state"]) for row in
                          self.report("r.csv")], [(FIRST, "1", "done")])

    def test_a_file_that_is_no_journal_is_told(self):
        self.table(f"{FIRST},RACK7A,")
        self.assertEnds(self.apply("rack.csv", "--journal", "j.jsonl"), 0)
        text = pathlib.Path("j.jsonl").read_text(encoding="utf-8")
        before = len(heard())
        for changed, reason in ((text.replace("RACK7A", "RACK7B"), "damaged"),
                                (of_another_version(text), "another version"),
                                ("{}\n", "another kind"), ("serial,unit-id\n", "another kind"),
                                ("", "damaged")):
            self.write(changed, "other")
            result = kxctl("revert", "other", "--yes", "--json")
            self.assertEnds(result, 2, "file")
            self.assertIn(reason, result.err)
        self.assertNothingSent(before)


if __name__ == "__main__":
    main()
