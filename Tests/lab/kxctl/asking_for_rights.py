"""kxctl of an ordinary user at a terminal, under a real polkit daemon, with a person at the dialogs and
without one. A new address of a unit needs administrator rights for a moment.
"""

import os
import pty
import subprocess
import time

from program import PROGRAM, ROOT, Test, commands_heard, environment, heard, main, seen_until

IN_POLKIT = str(ROOT / "Tests/linux/polkit/in_polkit.sh")
MOVE = "set 4B5800000001 internal-ip=192.0.2.50"


def at_terminal(*options, patience=25):
    """The status of kxctl, and what a person sees. The terminal is also that of everything that kxctl
    starts."""
    words = [IN_POLKIT, *options, "--", "bash", "-c", f"exec {PROGRAM} {MOVE}"]
    process, terminal = pty.fork()
    if process == 0:
        os.execvpe(words[0], words, environment())
    watchdog = subprocess.Popen(["sh", "-c", f"sleep {patience}; kill -TERM {process}"])
    try:
        seen = seen_until(terminal, None)
        status = os.waitstatus_to_exitcode(os.waitpid(process, 0)[1])
    finally:
        watchdog.kill()
        watchdog.wait()
        os.close(terminal)
    return status, seen


def entry():
    return subprocess.run(["ip", "neigh", "show", "192.0.2.50", "nud", "permanent"],
                          capture_output=True, text=True, check=True).stdout


class Rights(Test):
    def setUp(self):
        self.before = len(heard())
        self.began = time.monotonic()

    def assertNothingHappened(self):
        self.assertEqual(commands_heard(self.before), [])
        self.assertEqual(entry(), "")

    def test_where_nobody_can_be_asked_it_says_so_and_does_not_wait(self):
        status, seen = at_terminal()
        self.assertEqual(status, 3, seen)
        self.assertIn("administrator rights were not given", seen)
        self.assertIn("root", seen)
        self.assertNotIn("Password", seen)
        self.assertLess(time.monotonic() - self.began, 10)
        self.assertNothingHappened()

    def test_who_refuses_or_dismisses_the_dialog_is_told_what_became_of_it(self):
        for answer in ("refuse", "dismiss"):
            status, seen = at_terminal("--person", answer)
            self.assertEqual(status, 3, seen)
            self.assertIn("administrator rights were not given", seen)
            self.assertNothingHappened()

    def test_with_rights_the_unit_moves_and_the_entry_is_gone(self):
        status, seen = at_terminal("--person", "allow")
        self.assertEqual(status, 0, seen)
        self.assertEqual([text for _, text in commands_heard(self.before)], ["^^IdIC0000232"])
        self.assertEqual(entry(), "")


if __name__ == "__main__":
    main()
