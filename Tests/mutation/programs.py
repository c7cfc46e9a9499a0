"""The build and its test programs, with files of the project replaced by faulty copies."""

import collections
import functools
import json
import os
import pathlib
import re
import shlex
import signal
import subprocess
import sys
import tempfile
import threading
import time

SOURCES = "Sources/"

# The programs that run whole for a fault, by the folder of the file; the first that fits counts. Of all others
# the suites run that are about the file.
ROOMS = {
    "Sources/platform/posix/": ["kxplatform_tests"],
    "Sources/platform/linux/": ["kxlinux_tests"],
    "Sources/platform/": ["kxwindow_tests"],
    "Sources/": ["kxcore_tests", "kxcommands_tests"]}
# The sources of each program. The quick ones are first.
PROGRAMS = {
    "kxcore_tests": "Tests/core", "kxcommands_tests": "Tests/commands", "kxwire_tests": "Tests/wire",
    "kxarp_tests": "Tests/linux/arp", "kxplatform_tests": "Tests/platform", "kxlinux_tests": "Tests/linux",
    "kxwindow_tests": "Tests/window", "kxnetworkmanager_tests": "Tests/linux/networkmanager",
    "kxpolkit_tests": "Tests/linux/polkit"}
# What these programs start.
STARTED = ["kxarp", "kxperson", "kxunits"]
INCLUDE = re.compile(r'^#include "([^"]+)"', re.MULTILINE)
SUITE = re.compile(r"^(?:TEST|TEST_F|TEST_P|TYPED_TEST|TYPED_TEST_P)\(\s*(\w+)", re.MULTILINE)

# A fault may allocate or write without an end. Tests may use ports that others use, and all signals, of which this
# script may have been told to ignore some.
LIMITS = ["env", "--default-signal", "prlimit", "--as=17179869184", "--fsize=134217728", "--core=0"]
NETWORK = ["unshare", "--net"] if os.geteuid() == 0 else ["unshare", "--user", "--map-root-user", "--net"]
LOOPBACK = ["sh", "-c", 'ip link set lo up && exec "$@"', "sh"]


class CannotCompile(Exception):
    """The compiler refuses the fault."""


class NoTimeLeft(Exception):
    """The time is over before the tests are."""


class SharedFolder(tempfile.TemporaryDirectory):
    """A temporary folder for programs that tests run as other users, too."""

    def __init__(self, **options):
        super().__init__(**options)
        os.chmod(self.name, 0o755)


def run(command, seconds, **options):
    """Runs a command with all that it starts. The status, or None after so many seconds, and the output."""
    with tempfile.TemporaryFile() as output:
        process = subprocess.Popen(command, stdin=subprocess.DEVNULL, stdout=output, stderr=subprocess.STDOUT,
                                   start_new_session=True, **options)
        try:
            status = process.wait(seconds)
        except subprocess.TimeoutExpired:
            status = None
            end(process)
        output.seek(0)
        return status, output.read().decode(errors="replace")


def end(process):
    for number in signal.SIGTERM, signal.SIGKILL:
        os.killpg(process.pid, number)
        try:
            process.wait(5)
            return
        except subprocess.TimeoutExpired:
            pass


def suites_about(folder, path):
    """The suites of a folder of tests whose files have the name of the source, or include its header. A class with
    files of several subjects, as Name_Subject.cpp, has one header."""
    stem = pathlib.Path(path).stem
    name = path.removeprefix(SOURCES).rpartition(".")[0]
    headers, suites = {f"{name}.h", f"{name.partition('_')[0]}.h"}, set()
    for file, text in texts_of(folder).items():
        if file.suffix == ".cpp" and (file.stem.startswith(stem) or headers & included_by(folder, text)):
            suites |= set(SUITE.findall(text))
    return tuple(sorted(suites))


@functools.cache
def texts_of(folder):
    inner = [other for other in PROGRAMS.values() if other.startswith(f"{folder}/")]
    files = (file for file in pathlib.Path(folder).rglob("*") if file.suffix in (".h", ".cpp"))
    return {file: file.read_text(encoding="utf-8") for file in files
            if not any(str(file).startswith(f"{other}/") for other in inner)}


def included_by(folder, text):
    """What a test includes, also by the headers of its own folder."""
    headers = {file.name: other for file, other in texts_of(folder).items() if file.suffix == ".h"}
    included, new = set(), set(INCLUDE.findall(text))
    while new:
        included |= new
        new = {name for each in new if each in headers for name in INCLUDE.findall(headers[each])} - included
    return included


class Program:
    """A program of tests, and the tests of CTest that run it. A faulty program can take its place in them.
    `linked_anew` makes the program once more without any fault, in another folder as the faulty ones."""

    def __init__(self, path, descriptions, linked_anew, end):
        self.path, self._linked_anew, self._end = str(path), functools.cache(linked_anew), end
        self._runs = [each for each in descriptions if self.path in each.get("command", [])]
        self._wholes = [each for each in self._runs if not any("--gtest_filter" in word for word in each["command"])]
        self._seconds, self._lock = {}, threading.Lock()

    def failing_test(self, program, suites):
        """The name of the first test of the suites that fails; empty when all pass. No suites are all of them."""
        return self._first_failing(program, suites, self._seconds_at_most(suites))

    def _seconds_at_most(self, suites):
        """Four times what the same tests take without a fault. They must pass then."""
        with self._lock:
            if suites not in self._seconds:
                begun = time.monotonic()
                failed = self._first_failing(self._linked_anew(), suites, 600)
                if failed:
                    raise SystemExit(f"mutation: without any fault {failed} fails in {self.path}")
                self._seconds[suites] = 20 + 4 * (time.monotonic() - begun)
            return self._seconds[suites]

    def _first_failing(self, program, suites, seconds):
        patterns = [form.format(suite) for suite in suites for form in ("{}.*", "*/{}.*", "{}/*", "*/{}/*")]
        runs, words = self._runs, []
        if suites and self._wholes:
            runs, words = self._wholes, [f"--gtest_filter={':'.join(patterns)}"]
        results = (self._run(each, program, words, seconds) for each in runs)
        return next((each for each in results if each), "")

    def _run(self, description, program, words, seconds):
        properties = {each["name"]: each["value"] for each in description["properties"]}
        environment = os.environ | {"LANGUAGE": "en", "LC_ALL": "C.UTF-8"}
        environment |= dict(each.split("=", 1) for each in properties.get("ENVIRONMENT", []))
        command = [program if each == self.path else each for each in description["command"]]
        command = [*NETWORK, *LIMITS, *LOOPBACK, *command, "--gtest_brief=1", "--gtest_fail_fast", *words]
        left = self._end - time.monotonic()
        status, output = run(command, min(seconds, left), env=environment, cwd=properties["WORKING_DIRECTORY"])
        if status == 0:
            return ""
        if status is None and left <= seconds:
            raise NoTimeLeft
        if failed := re.search(r"^\[  FAILED  \] ([^\s,]+)", output, re.MULTILINE):
            return failed[1]
        if status is None:
            return "a time limit"
        return signal.Signals(-status).name if status < 0 else f"status {status}"


class Build:
    """A build folder, which may join files. Once it is built, tests run for so many seconds at most."""

    def __init__(self, folder, seconds):
        self.folder, self._root = folder.resolve(), pathlib.Path.cwd()
        if not (self.folder / "CMakeCache.txt").exists():
            subprocess.run(["cmake", "--preset", "dev", "-B", str(folder)], stdout=subprocess.DEVNULL, check=True)
        subprocess.run(["cmake", "--build", str(folder), "--parallel", str(os.cpu_count()), "--target", *PROGRAMS,
                        *STARTED], stdout=sys.stderr, check=True)
        listing = subprocess.run(["ctest", "--test-dir", str(folder), "--show-only=json-v1"],
                                 stdout=subprocess.PIPE, check=True)
        descriptions = json.loads(listing.stdout)["tests"]
        self.end = time.monotonic() + seconds
        self._anew = SharedFolder()
        self._programs = {name: Program(self.folder / "bin" / name, descriptions, functools.partial(
            self.link, name, {}, pathlib.Path(self._anew.name) / name), self.end) for name in PROGRAMS}
        entries = json.loads((self.folder / "compile_commands.json").read_text(encoding="utf-8"))
        self._commands = {re.search(r" -o (\S+)", each["command"])[1]: each for each in entries}
        self._readers = self._objects_by_file()

    def _objects_by_file(self):
        """The objects that are made of a file of the project, or include it."""
        listing = subprocess.run(["ninja", "-C", str(self.folder), "-t", "deps"], stdout=subprocess.PIPE, check=True)
        readers, current, sources = collections.defaultdict(list), None, str(self._root / SOURCES)
        for line in listing.stdout.decode().splitlines():
            if line.startswith(" "):
                path = os.path.normpath(self.folder / line.strip())
                if path.startswith(sources) and current in self._commands:
                    readers[path.removeprefix(f"{self._root}/")].append(current)
            elif line:
                current = line.split(": #deps")[0]
        return readers

    def objects_of(self, path):
        """The objects that read a file, of the programs of the tests."""
        return [name for name in self._readers[path] if any(self.is_part(name, program) for program in PROGRAMS)]

    def arguments_for(self, path):
        """Arguments of the compiler for reading a file by itself."""
        words = shlex.split(self._commands[self.objects_of(path)[0]]["command"])
        kept = [word for word in words if word.startswith(("-I", "-D", "-std="))]
        for index, word in enumerate(words):
            if word in ("-isystem", "-include"):
                kept += words[index:index + 2]
        return ["-x", "c++", *kept]

    def compile(self, name, path, text, scratch):
        """Compiles an object with another text for one file, quickly."""
        entry = self._commands[name]
        copy = scratch / "include" / path.removeprefix(SOURCES)
        copy.parent.mkdir(parents=True, exist_ok=True)
        copy.write_bytes(text)
        source, original = pathlib.Path(entry["file"]), str(self._root / path)
        if str(source) == original:
            source = copy
        elif path.endswith(".cpp"):  # a file that joins others
            joined = source.read_text(encoding="utf-8").replace(f'"{original}"', f'"{copy}"')
            source = scratch / "joined.cpp"
            source.write_text(joined, encoding="utf-8")
        result = scratch / f"{name.replace('/', '-')}.o"
        words = shlex.split(entry["command"])
        words = words[1:] if pathlib.Path(words[0]).name == "ccache" else words
        replaced = {entry["file"]: str(source), name: str(result)}
        words = [replaced.get(word, word) for word in words]
        words[1:1] = [f"-I{scratch / 'include'}"]
        words += ["-O0", "-g0", "-w"]
        status, output = run(words, 300, cwd=entry["directory"])
        if status != 0:
            raise CannotCompile(output)
        return result

    @functools.cache
    def check_compiler(self, path):
        """Ends the run when a file does not compile without a fault either."""
        with tempfile.TemporaryDirectory() as scratch:
            try:
                self.compile(self.objects_of(path)[0], path, pathlib.Path(path).read_bytes(), pathlib.Path(scratch))
            except CannotCompile as refusal:
                raise SystemExit(f"mutation: without any fault {path} cannot be compiled: {refusal}") from refusal

    @functools.cache
    def _link_command(self, program):
        listing = subprocess.run(["ninja", "-C", str(self.folder), "-t", "commands", f"bin/{program}"],
                                 stdout=subprocess.PIPE, check=True)
        return [word for word in shlex.split(listing.stdout.decode().splitlines()[-1]) if word not in (":", "&&")]

    def is_part(self, name, program):
        """Whether an object is in the program, by itself or in a library."""
        library = re.search(r"/(\w+)\.dir/", name)[1]
        words = self._link_command(program)
        return name in words or any(word.endswith(f"/lib{library}.a") for word in words)

    def link(self, program, objects, scratch):
        """Links a program with other objects. An object in front is taken instead of that in a library. The program
        finds its resources beside its own folder, as in the build."""
        result = scratch / "bin" / program
        result.parent.mkdir(parents=True, exist_ok=True)
        if not (scratch / "share").exists():
            (scratch / "share").symlink_to(self.folder / "share")
        words = list(self._link_command(program))
        for name, file in objects.items():
            if name in words:
                words[words.index(name)] = str(file)
            elif self.is_part(name, program):
                words[1:1] = [str(file)]
        words[words.index("-o") + 1] = str(result)
        words += ["-fuse-ld=lld", "-Wl,--strip-debug"]
        status, output = run(words, 300, cwd=self.folder)
        if status != 0:
            raise SystemExit(f"mutation: {program} cannot be linked: {output}")
        return str(result)

    def failing_test(self, path, text, scratch):
        """The test that notices another text of a file; empty when none does."""
        room = next(programs for folder, programs in ROOMS.items() if path.startswith(folder))
        about = {name: suites_about(folder, path) for name, folder in PROGRAMS.items()}
        wanted = {name for name in PROGRAMS if about[name] or name in room}
        objects = {name: self.compile(name, path, text, scratch) for name in self.objects_of(path)
                   if any(self.is_part(name, program) for program in wanted)}
        linked = functools.cache(lambda program: self.link(program, objects, scratch))

        steps = [(name, about[name]) for name in room] + [(name, ()) for name in room]
        steps += [(name, about[name]) for name in PROGRAMS if name not in room]
        steps = [(name, suites) for name, suites in steps
                 if (suites or name in room) and any(self.is_part(each, name) for each in objects)]
        results = (self._programs[name].failing_test(linked(name), suites) for name, suites in steps)
        return next((failed for failed in results if failed), "")
