"""The manual page of the window agrees with the program."""

import pathlib
import re
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[2]
PAGE = ROOT / "Resources/man/kxconfig.1.in"
WINDOW = ROOT / "Resources/MainWindow.ui"
WIRING = ROOT / "Sources/kxconfig.cpp"
HELP = ROOT / "Sources/platform/qt/QtHelpServices.cpp"
CATALOGUES = ROOT / "Resources/help-translations"
LANGUAGES = {"de": "German", "es": "Spanish", "fr": "French", "ja": "Japanese"}


class TheManual(unittest.TestCase):
    def setUp(self):
        self.text = PAGE.read_text(encoding="utf-8").replace("\\-", "-")
        self.sections = dict(re.findall(r"^\.SH (.+)\n((?:(?!\.SH ).*\n)*)", self.text, re.MULTILINE))

    def test_names_every_variable_that_the_window_reads(self):
        read = re.findall(r'value\("([A-Z_]+)"\)', WIRING.read_text(encoding="utf-8"))
        read += re.findall(r'qEnvironmentVariable\("([A-Z_]+)"\)', HELP.read_text(encoding="utf-8"))
        self.assertEqual(sorted(read), ["BROWSER", "HOME", "XDG_STATE_HOME"])
        for name in read:
            self.assertRegex(self.sections["ENVIRONMENT"], rf"(?m)^\.BR? .*\b{name}\b")

    def test_names_the_folder_in_which_journals_are_kept(self):
        folder = re.search(r'home \+ "(/[a-z./]+)"', WIRING.read_text(encoding="utf-8")).group(1)
        self.assertIn(f"~{folder}/", self.sections["FILES"])

    def test_names_every_window_that_a_menu_opens(self):
        items = re.findall(r"<string>([^<]+)…</string>", WINDOW.read_text(encoding="utf-8"))
        names = {item.replace("&amp;", "") for item in items} - {"Find in Event Log"}
        self.assertIn("Configure from File", names)
        for name in names | {"All Units"}:
            self.assertIn(name, " ".join(self.sections["DESCRIPTION"].split()))

    def test_gives_the_help_the_languages_that_it_has(self):
        self.assertEqual({path.stem for path in CATALOGUES.glob("*.po")}, set(LANGUAGES))
        language = " ".join(self.sections["ENVIRONMENT"].split())
        told = re.search(r"The language of the window, its event log and its help: ([^.]+)\.", language).group(1)
        for name in ("English", *LANGUAGES.values()):
            self.assertIn(name, told)
        self.assertNotIn("help is in English", language)


if __name__ == "__main__":
    unittest.main()
