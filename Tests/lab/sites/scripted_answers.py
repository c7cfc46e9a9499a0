"""What the module of docs/many-sites tells Ansible about each answer that kxctl can give.

Ansible plays apply.yml for hosts that are this one. A stand-in for kxctl, which goes by the name of the
interface, gives the answers.
"""

import json
import os
import pathlib
import re
import subprocess
import sys
import tempfile
import unittest

HERE = pathlib.Path(__file__).resolve().parent
sys.path.insert(0, str(HERE.parent / "kxctl"))

from playbooks import EXAMPLE, play, recap, rows_of  # noqa: E402
from program import VALIDATORS, kxctl  # noqa: E402

FIRST, SECOND = "4B 58 00 00 00 01", "4B 58 00 00 00 02"
STATES = {"apply": ("done", "unchanged", "refused", "untouched", "half", "silent"),
          "plan": ("planned", "unchanged", "refused", "silent")}
STAND_IN = """\
#!/bin/sh
echo "$*" >>{folder}/calls
cat {folder}/$3.out
exit $(cat {folder}/$3.status)
"""


def row(state, *states_of_changes, serial=FIRST):
    return {"line": 2, "serial": serial, "state": state,
            "reason": None if state in ("done", "unchanged", "planned") else "because of \"this\", and that",
            "changes": [{"serial": serial, "parameter": "unit-id", "from": "1", "to": "RACK7A",
                         "command": "^^IdURACK7A", "state": each} for each in states_of_changes]}


def answer(status, *rows, code=None, warnings=(), command="apply"):
    document = {"schema": 1, "command": command, "exit": status,
                "error": code and {"code": code, "message": f"It is {code}."},
                "warnings": [{"code": "arp-entry", "message": each} for each in warnings], "rows": list(rows),
                "sums": {state: sum(each["state"] == state for each in rows) for state in STATES[command]}}
    VALIDATORS[command].validate(document)
    return json.dumps(document), status


def plan(status, *rows, code=None):
    return answer(status, *rows, code=code, command="plan")


# By the name of the case: the answer, and whether the site has changed and whether it has failed.
CASES = {
    "done": (answer(0, row("done", "done")), 1, 0),
    "unchanged": (answer(0, row("unchanged", "unchanged")), 0, 0),
    "warned": (answer(0, row("done", "done"), warnings=["An entry stayed."]), 1, 0),
    "half": (answer(4, row("half", "done", "different"), code="half"), 1, 1),
    "fell-silent": (answer(4, row("silent", "silent"), row("untouched", "planned", serial=SECOND),
                           code="silent"), 1, 1),
    "did-not-answer": (answer(1, row("silent", "planned"), row("untouched", "planned", serial=SECOND),
                              code="not-found"), 0, 1),
    "not-taken": (answer(1, row("refused", "different"), code="unchanged"), 0, 1),
    "held": (answer(1, row("refused", "planned"), code="held"), 0, 1),
    "went-on": (answer(1, row("done", "done"), row("silent", serial=SECOND), code="not-found"), 1, 1),
    "interrupted": (answer(130, row("done", "done"), row("untouched", "planned", serial=SECOND),
                           code="interrupted"), 1, 1),
    "faulty-table": (answer(2, code="file"), 0, 1),
    "no-document": (("units: 200\n", 0), 1, 1),
    "crashed": (("", 139), 1, 1),
}
# The same for the plan of check mode, where nothing has changed: whether a unit would.
PLANS = {
    "would-change": (plan(0, row("planned", "planned")), 1, 0),
    "nothing-to-do": (plan(0, row("unchanged", "unchanged")), 0, 0),
    "held-back-by-silence": (plan(1, row("planned", "planned"), row("silent", "refused", serial=SECOND),
                                  code="not-found"), 0, 1),
    "held-back-by-a-holder": (plan(1, row("planned", "planned"), row("refused", "refused", serial=SECOND),
                                   code="held"), 0, 1),
    "would-go-on": (plan(1, row("planned", "planned"), row("silent", "refused", serial=SECOND),
                         code="not-found"), 1, 1),
    "plan-of-a-faulty-table": (plan(2, code="file"), 0, 1),
    "plan-crashed": (("", 139), 0, 1),
}
KEEP_GOING = ("went-on", "would-go-on")


class Answers(unittest.TestCase):
    """Plays apply.yml for one host for each case."""

    cases, words = {}, ()

    @classmethod
    def setUpClass(cls):
        folder = tempfile.TemporaryDirectory()
        cls.addClassCleanup(folder.cleanup)
        cls.folder = pathlib.Path(folder.name)
        (cls.folder / "home").mkdir()
        program = cls.folder / "kxctl"
        program.write_text(STAND_IN.format(folder=cls.folder), encoding="utf-8")
        program.chmod(0o755)
        for name, ((text, status), _, _) in cls.cases.items():
            (cls.folder / f"{name}.out").write_text(text, encoding="utf-8")
            (cls.folder / f"{name}.status").write_text(str(status), encoding="utf-8")
            (cls.folder / f"{name}.csv").write_text(f"serial,unit-id\n{FIRST},RACK7A\n", encoding="utf-8")
        inventory = cls.folder / "inventory.yml"
        inventory.write_text("sites:\n  vars: {ansible_connection: local}\n  hosts:\n" + "".join(
            f"    {name}: {{kx_interface: {name}, kx_keep_going: {str(name in KEEP_GOING).lower()}}}\n"
            for name in cls.cases), encoding="utf-8")
        cls.report = cls.folder / "report.csv"
        cls.status, cls.printed = play(
            "apply.yml", inventory, "--diff", *cls.words, "-e", f"tables={folder.name}", "-e",
            f"report={cls.report}", home=cls.folder / "home", PATH=f"{folder.name}:{os.environ['PATH']}")

    def assert_outcomes_are_told(self):
        self.assertEqual(self.status, 2)
        self.assertEqual({site: (counts["changed"], counts["failed"])
                          for site, counts in recap(self.printed).items()},
                         {name: (changed, failed) for name, (_, changed, failed) in self.cases.items()},
                         self.printed)


class Planning(Answers):
    cases, words = PLANS, ("--check",)

    def test_a_site_is_changed_in_check_mode_where_apply_would_change_a_unit(self):
        self.assert_outcomes_are_told()

    def test_nothing_but_plans_are_asked_for(self):
        calls = (self.folder / "calls").read_text(encoding="utf-8").splitlines()
        self.assertEqual([call.split()[3] for call in calls], ["plan"] * len(PLANS))

    def test_a_difference_is_shown_where_apply_would_make_it(self):
        self.assertEqual(self.printed.count(f"+{FIRST} unit-id: RACK7A"), 1, self.printed)
        self.assertNotIn(f"+{SECOND}", self.printed)


class ScriptedAnswers(Answers):
    cases = CASES

    def test_changed_and_failed_are_as_the_units_are(self):
        self.assert_outcomes_are_told()

    def test_the_error_of_kxctl_is_the_message(self):
        for name, said in (("half", "It is half."), ("faulty-table", "It is file."),
                           ("crashed", "kxctl ended with 139 and no document."),
                           ("no-document", "kxctl ended with 0 and no document.")):
            self.assertIn(f"fatal: [{name}]: FAILED! => \n    changed: false\n    msg: {said}\n", self.printed)

    def test_warnings_of_kxctl_are_warnings_of_ansible(self):
        self.assertIn("[WARNING]: An entry stayed.", self.printed)

    def test_the_report_has_every_row_of_a_failed_site(self):
        self.assertEqual([(row["serial"], row["state"], row["reason"]) for row in rows_of(self.report)
                          if row["site"] == "fell-silent"],
                         [("", "failed", "It is silent."), (FIRST, "silent", "because of \"this\", and that"),
                          (SECOND, "untouched", "because of \"this\", and that")])

    def test_a_difference_is_shown_where_every_value_was_read_back(self):
        shown = re.findall(rf"\+{FIRST} unit-id: RACK7A\n\n(?:\[WARNING\].*\n)?changed: \[(.*)\]", self.printed)
        self.assertEqual(sorted(shown), ["done", "warned"], self.printed)
        self.assertEqual(self.printed.count("+++ after"), 2, self.printed)

    def test_the_table_is_gone_from_the_host(self):
        self.assertEqual(list((self.folder / "home").rglob("*.csv")), [])
        tables = re.findall(r"apply (\S+) --yes", (self.folder / "calls").read_text(encoding="utf-8"))
        self.assertEqual(len(tables), len(CASES))
        self.assertFalse(any(pathlib.Path(table).exists() for table in tables))

    def test_only_a_site_that_is_told_to_keeps_going(self):
        calls = (self.folder / "calls").read_text(encoding="utf-8").splitlines()
        self.assertEqual([call.split()[2] for call in calls if "--keep-going" in call], ["went-on"])


class TheExample(unittest.TestCase):
    def test_every_site_has_a_table_without_a_fault(self):
        listed = subprocess.run(["ansible-inventory", "-i", EXAMPLE / "inventory.yml", "--list"],
                                capture_output=True, text=True, check=True)
        tables = sorted((EXAMPLE / "tables").glob("*.csv"))
        self.assertEqual(sorted(json.loads(listed.stdout)["sites"]["hosts"]), [path.stem for path in tables])
        for path in tables:
            # The interface is looked for once the table is known to be right, so nobody is asked here.
            self.assertEqual(kxctl("plan", path, "-i", "none", "--json").code, "interface", path)


if __name__ == "__main__":
    unittest.main()
