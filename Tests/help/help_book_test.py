"""The help book is complete in itself, and agrees with the program."""

import pathlib
import re
import struct
import unittest

import checks

ROOT = pathlib.Path(__file__).resolve().parents[2]
BOOK = ROOT / "Resources/homepage"
WINDOW = ROOT / "Resources/MainWindow.ui"
SOURCES = ROOT / "Sources"


def size_of_png(path):
    header = path.read_bytes()[:24]
    assert header.startswith(b"\x89PNG\r\n\x1a\n"), path
    return struct.unpack(">II", header[16:24])


class TheBook(unittest.TestCase):
    def setUp(self):
        self.pages = checks.pages(BOOK)

    def test_has_every_page_that_a_person_needs(self):
        wanted = {"index", "first-steps", "controls", "parameters", "options", "address", "no-answer",
                  "log", "trust", "command-line", "many-units", "all-units", "saving"}
        self.assertEqual({name.removesuffix(".html") for name in self.pages}, wanted)

    def test_every_reference_leads_somewhere_in_the_book(self):
        self.assertEqual(checks.broken_references(BOOK), [])

    def test_every_page_can_be_reached_from_the_contents_and_leads_back(self):
        contents = {link.partition("#")[0] for link in self.pages["index.html"].links}
        for name, page in self.pages.items():
            if name != "index.html":
                self.assertIn(name, contents)
                self.assertIn("index.html", page.links, name)

    def test_every_page_is_well_formed_and_says_its_title_and_language(self):
        for name, page in self.pages.items():
            self.assertEqual(page.faults, [], name)
            self.assertEqual(len(page.titles), 1, name)
            self.assertIn(("html", {"lang": "en"}), page.elements, name)
            self.assertIn(("meta", {"charset": "utf-8"}), page.elements, name)
            self.assertEqual([tag for tag, _ in page.elements].count("h1"), 1, name)

    def test_every_page_uses_the_one_style_sheet_and_no_style_of_its_own(self):
        sheet = {"rel": "stylesheet", "type": "text/css", "href": "style.css"}
        for name, page in self.pages.items():
            self.assertEqual([a for tag, a in page.elements if tag == "link"], [sheet], name)
            for tag, attributes in page.elements:
                self.assertNotEqual(tag, "style", name)
                self.assertNotIn("style", attributes, name)

    def test_no_page_runs_anything(self):
        for name, page in self.pages.items():
            for tag, attributes in page.elements:
                self.assertNotIn(tag, {"script", "iframe", "object", "embed", "form"}, name)
                self.assertEqual([key for key in attributes if key.startswith("on")], [], name)

    def test_the_style_sheet_follows_the_readers_preference_and_fetches_nothing(self):
        sheet = (BOOK / "style.css").read_text(encoding="utf-8")
        self.assertRegex(sheet, r"color-scheme:\s*light dark")
        self.assertNotRegex(sheet, r"@import|url\(")
        self.assertNotIn("@media", re.sub(r"/\*.*?\*/", "", sheet, flags=re.DOTALL))

    def test_every_picture_is_described_and_shown_in_its_own_size(self):
        pictures = [picture for page in self.pages.values() for picture in page.pictures]
        self.assertGreaterEqual(len(pictures), 3)
        for picture in pictures:
            self.assertGreater(len(picture.get("alt", "")), 40, picture)
            size = (int(picture["width"]), int(picture["height"]))
            self.assertEqual(size_of_png(BOOK / picture["src"]), size)
            sharp, scale = picture["srcset"].split()
            self.assertEqual(scale, "2x")
            self.assertEqual(size_of_png(BOOK / sharp), (2 * size[0], 2 * size[1]))

    def test_no_file_is_without_use(self):
        used = {BOOK / "style.css"} | {BOOK / name for name in self.pages}
        for page in self.pages.values():
            for picture in page.pictures:
                used |= {BOOK / picture["src"], BOOK / picture["srcset"].split()[0]}
        self.assertEqual({path for path in BOOK.rglob("*") if path.is_file()}, used)


class TheBookAndTheProgram(unittest.TestCase):
    def setUp(self):
        self.pages = checks.pages(BOOK)

    def test_every_line_of_the_event_log_is_explained_and_no_other(self):
        logged = checks.logged_entries(SOURCES / "words/EventLogEntries.cpp")
        self.assertGreater(len(logged), 10)
        shown = {"%: %"}  # a line of a unit's parameters, made by words/ParameterLines.cpp
        self.assertEqual(self.pages["log.html"].entries, logged | shown)

    def test_nothing_else_gets_into_the_event_log(self):
        entries = checks.functions_of_entries(SOURCES / "words/EventLogEntries.h")
        self.assertEqual(checks.appended(SOURCES), entries)

    def test_every_reason_that_the_program_words_itself_is_explained(self):
        reasons = checks.localized_texts(SOURCES / "support/Error.cpp")
        reasons |= {text for text in checks.localized_texts(SOURCES / "words/SendFailureText.cpp")
                    if not text.startswith("Not sent: ")}
        self.assertEqual(len(reasons), 4)
        text = self.pages["log.html"].text
        for reason in reasons:
            words = re.escape(reason).replace("%", r"\w+")
            self.assertRegex(text, words)

    def test_every_visible_label_is_on_the_page_about_the_window(self):
        labels = checks.strings_of(WINDOW, "text", "title", "accessibleName", "placeholderText",
                                   "shortcut")
        labels -= {"KXConfig"}
        self.assertGreater(len(labels), 30)
        text = self.pages["controls.html"].text
        self.assertEqual([label for label in sorted(labels) if " ".join(label.split()) not in text], [])

    def test_every_name_of_an_interface_that_only_the_kernel_knows_is_on_the_page_about_the_window(self):
        source = (SOURCES / "System Configuration/SystemConfiguration_Enumeration.cpp").read_text()
        body = source.partition("::_userNameForKernelInterface(")[2].partition("\n}")[0]
        names = {literal for literal in checks.literals(body) if literal[0].isupper()}
        self.assertEqual(len(names), 3)
        text = self.pages["controls.html"].text
        self.assertEqual([name for name in sorted(names) if name not in text], [])

    def test_every_parameter_is_on_the_page_about_parameters_with_a_section_of_its_own(self):
        source = (SOURCES / "units/UnitParameter.h").read_text(encoding="utf-8")
        names = set(re.findall(r'\{UnitParameter::\w+,\s*localizedKey\("([a-z]+ [A-Za-z ]+)"\)', source))
        self.assertEqual(len(names), 8)
        headings = self.pages["parameters.html"].text
        page = (BOOK / "parameters.html").read_text(encoding="utf-8")
        for name in names:
            self.assertIn(name, headings)
            self.assertRegex(page, rf'<h2 id="[a-z-]+">{name}</h2>')

    def test_every_option_is_on_the_page_about_options(self):
        options = {text for text in checks.strings_of(WINDOW, "text") if "  " in text}
        self.assertEqual(len(options), 2)
        text = self.pages["options.html"].text
        for option in options:
            self.assertIn(" ".join(option.split()), text)


if __name__ == "__main__":
    unittest.main()
