"""kxctl of an ordinary user at a terminal without a desktop, under a real polkit daemon: polkit's own agent
asks for the administrator's password there. A new address of a unit needs these rights for a moment.
"""

import os
import pathlib
import pty
import signal
import termios
import threading
import time

from program import (PROGRAM, ROOT, Test, commands_heard, environment, eventually, heard, main,
                     restore_units, run_for_text, seen_until)

IN_POLKIT = str(ROOT / "Tests/linux/polkit/in_polkit.sh")
PASSWORD = "door side"
PROMPT = "Password: "

# At the end it tells whether the terminal shows again what is typed.
SESSION = f"""unset DISPLAY WAYLAND_DISPLAY
trap : INT
{PROGRAM} set 4B5800000001 internal-ip=192.0.2.50
status=$?
stty -a
exit $status"""


def descendants(process):
    for task in pathlib.Path(f"/proc/{process}/task").glob("*/children"):
        for child in task.read_text(encoding="ascii").split():
            yield int(child)
            yield from descendants(child)


def is_running(process):
    try:
        return "\nState:\tZ" not in pathlib.Path(f"/proc/{process}/status").read_text("ascii")
    except OSError:  # it is gone
        return False


class AtTerminal:
    """kxctl in a session of a user, with a terminal of its own. What is typed at the test's terminal
    goes there as it is. The session is ended when it takes too long."""

    def __init__(self, patience=40):
        words = [IN_POLKIT, "--password", PASSWORD, "--", "script", "-qefc", SESSION, "/dev/null"]
        self._process, self._terminal = pty.fork()
        if self._process == 0:
            os.execvpe(words[0], words, environment(TERM="xterm", SHELL="/bin/sh"))
        self._watchdog = threading.Timer(patience, os.kill, (self._process, signal.SIGTERM))

    def __enter__(self):
        self._watchdog.start()
        return self

    def __exit__(self, *reason):
        self._watchdog.cancel()
        self._watchdog.join()
        os.close(self._terminal)

    def program(self):
        """The number of kxctl's process."""
        return next(each for each in descendants(self._process) if os.path.realpath(
            f"/proc/{each}/exe") == os.path.realpath(PROGRAM))

    def interrupt_while_the_program_does_not_run(self):
        """The question ends before the program can attend to the interruption."""
        program = self.program()
        os.kill(program, signal.SIGSTOP)
        asking = list(descendants(program))
        self.type("\x03")
        if not asking or not eventually(lambda: not any(is_running(each) for each in asking)):
            raise AssertionError("the question goes on")
        os.kill(program, signal.SIGCONT)

    def shows_what_is_typed(self):
        terminal = os.open(f"/proc/{self.program()}/fd/2", os.O_RDWR | os.O_NOCTTY)
        try:
            return bool(termios.tcgetattr(terminal)[3] & termios.ECHO)
        finally:
            os.close(terminal)

    def asks(self):
        """What was seen until the question, when what is typed is hidden."""
        seen = seen_until(self._terminal, PROMPT)
        if PROMPT not in seen:
            raise AssertionError("nobody was asked: " + seen)
        if not eventually(lambda: not self.shows_what_is_typed()):
            raise AssertionError("what is typed is shown: " + seen)
        return seen

    def type(self, text):
        os.write(self._terminal, text.encode())

    def end(self):
        """The status, and what was seen since the question."""
        seen = seen_until(self._terminal, None)
        return os.waitstatus_to_exitcode(os.waitpid(self._process, 0)[1]), seen


def entry():
    return run_for_text("ip", "neigh", "show", "192.0.2.50", "nud", "permanent")


class InTheTerminal(Test):
    def setUp(self):
        self.before = len(heard())

    def assertNothingHappened(self):
        self.assertEqual(commands_heard(self.before), [])
        self.assertEqual(entry(), "")

    def test_one_password_gives_the_rights_for_the_whole_move(self):
        self.addCleanup(restore_units)
        with AtTerminal() as session:
            asked = session.asks()
            session.type(PASSWORD + "\r")
            status, seen = session.end()
        self.assertEqual(status, 0, seen)
        self.assertIn("kxarp -s 192.0.2.50", asked.replace("\r\n", ""))
        self.assertNotIn(PASSWORD, seen)
        self.assertNotIn(PROMPT, seen)
        self.assertRegex(seen, r"internal-ip .* done")
        self.assertEqual([text for _, text in commands_heard(self.before)], ["^^IdIC0000232"])
        self.assertEqual(entry(), "")

    def test_nothing_is_written_over_the_question(self):
        with AtTerminal() as session:
            asked = session.asks()
            time.sleep(0.5)  # the progress is renewed five times in it
            session.type("\r")
            status, seen = session.end()
        self.assertEqual(status, 3, seen)
        question = asked[asked.index("===="):] + seen[:seen.index("FAILED")]
        self.assertNotRegex(question, r"\d\.\d s")

    def test_a_wrong_password_changes_nothing(self):
        with AtTerminal() as session:
            session.asks()
            session.type("rack side\r")
            status, seen = session.end()
        self.assertEqual(status, 3, seen)
        self.assertIn("administrator rights were not given", seen)
        self.assertNothingHappened()

    def test_an_interruption_takes_the_question_back_and_what_is_typed_is_shown_again(self):
        ways = ((lambda session: session.type("\x03"), 130),
                (AtTerminal.interrupt_while_the_program_does_not_run, 130),
                (lambda session: os.kill(session.program(), signal.SIGINT), 130),
                (lambda session: os.kill(session.program(), signal.SIGTERM), 143))
        for interrupt, wanted in ways:
            with self.subTest(wanted), AtTerminal() as session:
                session.asks()
                interrupt(session)
                status, seen = session.end()
                self.assertEqual(status, wanted, seen)
                self.assertIn("Interrupted", seen)
                self.assertRegex(seen, r"[^-]\becho\b")
                self.assertNothingHappened()


if __name__ == "__main__":
    main()
