"""kxctl of an ordinary user, under a real polkit daemon, with a person at the dialogs of a desktop and
without one. A new address of a unit needs administrator rights for a moment.
"""

import os
import pty
import signal
import threading
import time

from program import PROGRAM, ROOT, Test, commands_heard, environment, heard, main, run_for_text, seen_until

IN_POLKIT = str(ROOT / "Tests/linux/polkit/in_polkit.sh")
MOVE = "set 4B5800000001 internal-ip=192.0.2.50"


def at_terminal(*options, command=f"exec {PROGRAM} {MOVE}", patience=25):
    """The status of the command, and what a person sees. The terminal is also that of everything that
    the command starts."""
    words = [IN_POLKIT, *options, "--", "bash", "-c", command]
    process, terminal = pty.fork()
    if process == 0:
        os.execvpe(words[0], words, environment())
    watchdog = threading.Timer(patience, os.kill, (process, signal.SIGTERM))
    watchdog.start()
    try:
        seen = seen_until(terminal, None)
        status = os.waitstatus_to_exitcode(os.waitpid(process, 0)[1])
    finally:
        watchdog.cancel()
        os.close(terminal)
    return status, seen


def entry():
    return run_for_text("ip", "neigh", "show", "192.0.2.50", "nud", "permanent")


class Rights(Test):
    def setUp(self):
        self.before = len(heard())
        self.began = time.monotonic()

    def assertNothingHappened(self):
        self.assertEqual(commands_heard(self.before), [])
        self.assertEqual(entry(), "")

    def test_where_its_words_go_to_no_terminal_nobody_is_asked_in_one(self):
        status, seen = at_terminal(command=f"{PROGRAM} {MOVE} 2>&1 | cat; exit ${{PIPESTATUS[0]}}")
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
