"""kxctl for an ordinary user, who may not send ARP frames. Runs in the lab as root and gives its
rights away."""

import os
import shutil
import tempfile
import time

import program
from program import FIRST, START, Test, commands_heard, heard, kxctl, main, run


class WithoutRights(Test):
    def test_the_neighbour_table_tells_who_holds_an_address(self):
        result = kxctl("check", "192.0.2.11", "192.0.2.78", "--json")
        self.assertEnds(result, 1, "held")
        self.assertEqual(result.document["addresses"], [
            {"address": "192.0.2.11", "state": "held",
             "holders": [{"mac": "02:4B:58:00:00:01", "serial": FIRST}]},
            {"address": "192.0.2.78", "state": "free", "holders": []}])

    def test_a_free_address_is_told_within_four_seconds(self):
        began = time.monotonic()
        self.assertEnds(kxctl("check", "192.0.2.80"), 0)
        self.assertLess(time.monotonic() - began, 4 + START)

    def test_a_fixed_entry_leaves_it_unknown(self):
        result = kxctl("check", "192.0.2.79", "--json")
        self.assertEnds(result, 3, "interface")
        self.assertEqual(result.document["addresses"][0]["state"], "unknown")

    def test_a_move_without_rights_sends_nothing(self):
        before = len(heard())
        result = kxctl("set", "4B5800000001", "internal-ip=192.0.2.90", "--json")
        self.assertEnds(result, 3, "rights")
        self.assertIn("No ARP entry was made for 192.0.2.90", result.document["error"]["message"])
        self.assertEqual(result.document["changes"][0]["state"], "refused")
        self.assertEqual(commands_heard(before), [])


if __name__ == "__main__":
    run("ip", "neigh", "add", "192.0.2.79", "lladdr", "02:4b:58:00:00:01", "dev", "kx0", "nud",
        "permanent")
    # Everybody may reach the program.
    folder = tempfile.mkdtemp()
    os.chmod(folder, 0o755)
    program.PROGRAM = shutil.copy(program.PROGRAM, folder)
    os.setgroups([])
    os.setgid(65534)
    os.setuid(65534)
    main()
