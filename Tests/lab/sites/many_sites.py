"""The example of docs/many-sites, with three sites of 200 units each: Ansible plays the playbooks as they
stand there, and the example of a watch runs on a host."""

import json
import pathlib
import re
import shlex
import tempfile
import unittest

from playbooks import EXAMPLE, play, recap, rows_of
from sites import NO_LEAK_SEARCH, Office, serial_of

UNITS = 200
# The units answer so many milliseconds late, so that a run takes its time by waiting and not by computing.
LATE = 10


# A site whose host does not listen.
NOBODY = "    hall-d: {ansible_host: 10.77.1.2, ansible_port: 2299}\n"

OFFICE = None  # where all tests of this file work


def setUpModule():
    global OFFICE
    folder = tempfile.TemporaryDirectory()
    unittest.addModuleCleanup(folder.cleanup)
    OFFICE = Office(pathlib.Path(folder.name), UNITS, LATE)
    unittest.addModuleCleanup(OFFICE.close)
    OFFICE.open()


class SitesTest(unittest.TestCase):
    maxDiff = None

    def setUp(self):
        self.office, self.sites = OFFICE, OFFICE.sites
        folder = tempfile.TemporaryDirectory(dir=self.office.folder)
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)
        self.report = self.folder / "report.csv"

    def write_table(self, site, lines):
        (self.folder / f"{site}.csv").write_text("\n".join(lines) + "\n", encoding="utf-8")

    def apply(self, *words, extra=""):
        return play("apply.yml", self.office.inventory(UNITS, extra), "-e", f"tables={self.folder}",
                    "-e", f"report={self.report}", *words, home=self.office.home)

    def counts(self, printed, name):
        return {site: counts[name] for site, counts in recap(printed).items()}

    def sums(self):
        """How many rows of each state the report has, by site; the site's own state has no number."""
        found = {}
        for row in rows_of(self.report):
            states = found.setdefault(row["site"], {})
            states[row["state"]] = states.get(row["state"], 0) + 1
        return found


class Discovering(SitesTest):
    def discover(self, extra=""):
        return play("discover.yml", self.office.inventory(UNITS, extra), "-e", f"list={self.report}",
                    home=self.office.home)

    def test_lists_the_units_of_all_sites(self):
        status, printed = self.discover()
        self.assertEqual(status, 0, printed)
        self.assertEqual(set(self.counts(printed, "changed").values()), {0}, printed)
        units = [(row["site"], row["serial"]) for row in rows_of(self.report) if row["serial"]]
        self.assertEqual(units, [(site.name, serial_of(number)) for site in self.sites
                                 for number in site.numbers])

    def test_lists_unit_ids_as_they_are(self):
        hostile = ["{{7}}", "a,\"b\"", "=1+1"]
        site = self.sites[0]
        for number, unit_id in zip(site.numbers, hostile):
            done = self.office.on_host(site, "kxctl -i kx0 set " + shlex.join(
                [serial_of(number), f"unit-id={unit_id}"]))
            self.assertEqual(done.returncode, 0, done.stderr)
        status, printed = self.discover()
        self.assertEqual(status, 0, printed)
        self.assertEqual([row["unit-id"] for row in rows_of(self.report) if row["serial"]][:3], hostile)

    def test_tells_the_site_with_too_few_units_and_lists_them_all_the_same(self):
        site = self.sites[1]
        more = f"    {site.name}: {{ansible_host: {site.address}, ansible_port: {site.port}, kx_units: 201}}\n"
        status, printed = self.discover(more)
        self.assertEqual(status, 2, printed)
        self.assertEqual(self.counts(printed, "failed"), {"hall-a": 0, "hall-b": 1, "hall-c": 0})
        self.assertEqual({row["site"]: row["state"] for row in rows_of(self.report) if not row["serial"]},
                         {"hall-a": "ok", "hall-b": "failed", "hall-c": "ok"})
        self.assertEqual(sum(1 for row in rows_of(self.report) if row["serial"]), 3 * UNITS)


class Applying(SitesTest):
    def tables(self, letter, address, port):
        for site in self.sites:
            self.write_table(site.name, ["serial,unit-id,destination-ip,destination-port,note"] + [
                f"{serial_of(number)},{letter}{number},{address},{port},\"left, {{{{ 1/0 }}}}\""
                for number in site.numbers])

    def test_check_mode_changes_nothing_and_tells_what_would_change(self):
        self.tables("K", "192.0.2.7", 3522)
        before = [(site.commands(), site.left_files()) for site in self.sites]
        status, printed = self.apply("--check", "--diff")
        self.assertEqual(status, 0, printed)
        self.assertEqual(self.counts(printed, "changed"), {"hall-a": 1, "hall-b": 1, "hall-c": 1})
        self.assertEqual([(site.commands(), site.left_files()) for site in self.sites], before)
        self.assertEqual({site: states["planned"] for site, states in self.sums().items()},
                         {"hall-a": UNITS, "hall-b": UNITS, "hall-c": UNITS})
        for site in self.sites:
            self.assertIn(f"+{serial_of(site.numbers[0])} unit-id: K{site.numbers[0]}\n", printed)
            self.assertFalse([words for _, _, words in site.calls()[-1:] if "apply" in words])

    def test_changes_all_sites_at_once_and_then_nothing(self):
        self.tables("A", "192.0.2.9", 3521)
        status, printed = self.apply()
        self.assertEqual(status, 0, printed)
        self.assertEqual(self.counts(printed, "changed"), {"hall-a": 1, "hall-b": 1, "hall-c": 1})
        self.assertEqual(self.sums(), {site.name: {"ok": 1, "done": UNITS} for site in self.sites})
        self.assert_bound_by_the_slowest()
        self.assert_units_show("A", "192.0.2.9", 3521)

        before = [(site.commands(), site.left_files()) for site in self.sites]
        status, printed = self.apply()
        self.assertEqual(status, 0, printed)
        self.assertEqual(self.counts(printed, "changed"), {"hall-a": 0, "hall-b": 0, "hall-c": 0})
        self.assertEqual([(site.commands(), site.left_files()) for site in self.sites], before)
        self.assertEqual(self.sums(), {site.name: {"ok": 1, "unchanged": UNITS} for site in self.sites})

    def assert_bound_by_the_slowest(self):
        calls = [site.calls()[-1] for site in self.sites]
        lasted = [ended - begun for begun, ended, _ in calls]
        together = max(ended for _, ended, _ in calls) - min(begun for begun, _, _ in calls)
        print(f"{UNITS} units at each site: {', '.join(f'{each:.1f}' for each in lasted)} s, "
              f"together {together:.1f} s")
        self.assertLess(together, sum(lasted) * 0.7)

    def assert_units_show(self, letter, address, port):
        for site in self.sites:
            shown = self.office.on_host(site, f"kxctl -i kx0 --json discover --expect {UNITS}")
            units = json.loads(shown.stdout)["units"]
            keys = ("unit_id", "destination_ip", "destination_port")
            self.assertEqual([tuple(unit[key] for key in keys) for unit in units],
                             [(f"{letter}{number}", address, port) for number in site.numbers])

    def test_a_site_that_fails_does_not_stop_the_others(self):
        for site, last in zip(self.sites, ("", "4B 58 00 00 00 77,LOST", "")):
            first = f"{serial_of(site.numbers[0])},B{site.number}"
            self.write_table(site.name, ["serial,unit-id", first, last])
        self.write_table("hall-d", ["serial,unit-id"])  # and hall-e has none
        before = self.sites[1].commands()
        status, printed = self.apply(extra=NOBODY + "    hall-e: {ansible_host: 10.77.1.2}\n")
        self.assertEqual(status, 2, printed)
        self.assertEqual(self.counts(printed, "failed"),
                         {"hall-a": 0, "hall-b": 1, "hall-c": 0, "hall-d": 1, "hall-e": 1}, printed)
        self.assertEqual(self.counts(printed, "changed"),
                         {"hall-a": 1, "hall-b": 0, "hall-c": 1, "hall-d": 0, "hall-e": 0})
        self.assertEqual(self.sums(), {
            "hall-a": {"ok": 1, "done": 1}, "hall-b": {"failed": 1, "untouched": 1, "silent": 1},
            "hall-c": {"ok": 1, "done": 1}, "hall-d": {"unreachable": 1}, "hall-e": {"failed": 1}})
        self.assertEqual(self.sites[1].commands(), before)
        for row in rows_of(self.report):
            if row["state"] in ("failed", "unreachable", "silent"):
                self.assertTrue(row["reason"], row)

    def test_the_report_is_written_although_no_site_succeeds(self):
        self.write_table("hall-b", ["serial,unit-idea", f"{serial_of(self.sites[1].numbers[0])},X"])
        self.write_table("hall-d", ["serial,unit-id"])
        for site, state, reason in (("hall-b", "failed", "unit-idea"), ("hall-d", "unreachable", "port 2299")):
            status, printed = self.apply("--limit", site, extra=NOBODY)
            self.assertEqual(status, 2, printed)
            self.assertEqual(self.sums(), {site: {state: 1}})
            self.assertIn(reason, rows_of(self.report)[0]["reason"])


class Watching(SitesTest):
    """systemd itself does not run here. Its own tool checks the units, and the test carries their commands out
    as systemd would."""

    MISSING = "4B 58 00 00 77 01"
    HEAD = ("To: root\n"
            "Subject: hall-c: units on kx0 differ from the list, or could not be asked\n\n")
    # The path that systemd gives to services.
    PATH = "/usr/local/sbin:/usr/local/bin:/usr/sbin:/usr/bin"

    def setUp(self):
        super().setUp()
        self.site = self.sites[2]
        self.list = self.folder / "kx0.json"
        saved = self.office.on_host(
            self.site, f"kxctl -i kx0 --quiet discover --expect {UNITS} --save {self.list}")
        self.assertEqual(saved.returncode, 0, saved.stderr)

    def command(self, service):
        """The command of a service for kx0, for a shell."""
        text = (EXAMPLE / "watch" / f"kxctl-{service}@.service").read_text(encoding="utf-8")
        line = re.search(r"^ExecStart=(.*)$", text, re.MULTILINE).group(1)
        meaning = {"%%": "%", "%i": "kx0", "%H": "hall-c", "$$": "$"}
        words = [re.sub(r"%.|\$\$", lambda found: meaning[found.group()], word) for word in shlex.split(line)]
        return shlex.join(words)

    def carry_out(self, service, **environment):
        command = self.command(service).replace("/etc/kxconfig/kx0.json", str(self.list))
        variables = {"PATH": self.PATH, "LC_ALL": "C.UTF-8", **NO_LEAK_SEARCH, **environment}
        given = " ".join(f"{name}={shlex.quote(value)}" for name, value in variables.items())
        return self.office.on_host(self.site, f"env -i {given} {command} 2>&1")

    def list_a_unit_that_is_not_there(self):
        """In the place of the first one."""
        known = serial_of(self.site.numbers[0])
        text = self.list.read_text(encoding="utf-8")
        self.assertIn(known, text)
        self.list.write_text(text.replace(known, self.MISSING), encoding="utf-8")
        return known

    def test_systemd_finds_no_fault_in_the_units(self):
        names = " ".join(f"{EXAMPLE}/watch/kxctl-compare@kx0.{kind}" for kind in ("service", "timer"))
        names += f" {EXAMPLE}/watch/kxctl-compare-mail@kx0.service"
        done = self.office.on_host(self.site, f"systemd-analyze verify --man=no {names} 2>&1")
        self.assertEqual((done.returncode, done.stdout), (0, ""))

    def test_a_comparison_without_differences_succeeds(self):
        done = self.carry_out("compare")
        self.assertEqual(done.returncode, 0, done.stdout)
        self.assertIn(f"{UNITS} the same", done.stdout)

    def test_a_unit_that_is_missing_is_logged_and_mailed(self):
        new = self.list_a_unit_that_is_not_there()
        done = self.carry_out("compare")
        self.assertEqual(done.returncode, 1, done.stdout)
        for serial, what in ((self.MISSING, "missing"), (new, "new")):
            self.assertRegex(done.stdout, rf"(?m)^{what} +{serial}")
        self.assertEqual(self.mail_about(done.stdout), self.HEAD + done.stdout)

    def test_a_comparison_that_could_not_ask_is_mailed_with_its_reason(self):
        self.list.unlink()
        done = self.carry_out("compare")
        self.assertEqual(done.returncode, 2, done.stdout)
        self.assertIn("cannot be read: No such file or directory", done.stdout)
        self.assertEqual(self.mail_about(done.stdout), self.HEAD + done.stdout)

    def mail_about(self, logged):
        """What sendmail gets. A stand-in for journalctl has what the comparison wrote to the journal."""
        (self.folder / "logged").write_text(logged, encoding="utf-8")
        journal = (f"case \"$*\" in *_SYSTEMD_INVOCATION_ID=1f2e*) cat {self.folder}/logged ;; "
                   "--sync) ;; *) exit 1 ;; esac")
        mail = f"test \"$*\" = -t && cat >{self.folder}/mail"
        for name, script in (("journalctl", journal), ("sendmail", mail)):
            path = self.site.folder / "bin" / name
            path.write_text(f"#!/bin/sh\n{script}\n", encoding="utf-8")
            path.chmod(0o755)
            self.addCleanup(path.unlink)
        sent = self.carry_out("compare-mail", MONITOR_INVOCATION_ID="1f2e")
        self.assertEqual((sent.returncode, sent.stdout), (0, ""))
        return (self.folder / "mail").read_text(encoding="utf-8")


if __name__ == "__main__":
    unittest.main()
