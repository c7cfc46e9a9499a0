"""The help book in other languages is whole, is not behind the English one, and agrees with the window."""

import importlib.machinery
import importlib.util
import pathlib
import shutil
import tempfile
import unittest

import checks
import translated

ROOT = pathlib.Path(__file__).resolve().parents[2]
BOOK = ROOT / "Resources/homepage"
WINDOW_CATALOGUES = ROOT / "Resources/translations"


def load_script():
    path = ROOT / "scripts/help-translations"
    loader = importlib.machinery.SourceFileLoader("help_translations", str(path))
    module = importlib.util.module_from_spec(importlib.util.spec_from_loader(loader.name, loader))
    loader.exec_module(module)
    return module


book = load_script()


class TheCatalogues(unittest.TestCase):
    def test_are_those_of_the_languages_of_the_window(self):
        window = {path.stem.removeprefix("kxconfig_") for path in WINDOW_CATALOGUES.glob("*.ts")}
        self.assertEqual(set(book.catalogues()), window)

    def test_have_a_translation_for_every_paragraph_of_the_english_pages_and_for_no_other(self):
        with tempfile.TemporaryDirectory() as scratch:
            copies = pathlib.Path(scratch) / "catalogues"
            shutil.copytree(book.CATALOGUES, copies)
            book.update(copies)
            updated = book.catalogues(copies)
        for language, needed in updated.items():
            with self.subTest(language=language):
                there = {entry.english: entry for entry in book.catalogues()[language]}
                behind = [entry.english for entry in needed
                          if entry.english not in there or not there[entry.english].is_done]
                self.assertEqual(behind, [], "run scripts/help-translations, and translate these")
                surplus = set(there) - {entry.english for entry in needed}
                self.assertEqual(surplus, set(), "run scripts/help-translations")

    def test_keep_elements_numbers_keys_and_code_and_name_everything_as_the_window_does(self):
        for language, entries in book.catalogues().items():
            faults = translated.Faults(language, WINDOW_CATALOGUES / f"kxconfig_{language}.ts")
            with self.subTest(language=language):
                self.assertEqual([fault for entry in entries if entry.is_done for fault in faults(entry)], [])


class ThePages(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        scratch = tempfile.TemporaryDirectory()
        cls.addClassCleanup(scratch.cleanup)
        cls.folder = pathlib.Path(scratch.name)
        book.make_pages(cls.folder)
        cls.english = checks.pages(BOOK)
        cls.books = {language: checks.pages(cls.folder / language) for language in book.catalogues()}

    def test_are_the_english_ones_with_the_same_anchors(self):
        for language, pages in self.books.items():
            self.assertEqual(set(pages), set(self.english), language)
            for name, page in pages.items():
                self.assertEqual(page.anchors, self.english[name].anchors, f"{language}/{name}")

    def test_are_well_formed_and_say_their_language(self):
        for language, pages in self.books.items():
            for name, page in pages.items():
                self.assertEqual(page.faults, [], f"{language}/{name}")
                self.assertIn(("html", {"lang": language}), page.elements, name)

    def test_refer_to_pages_of_their_own_language_and_to_the_pictures_of_all(self):
        for language in self.books:
            self.assertEqual(checks.broken_references(self.folder / language), [], language)

    def test_call_every_control_by_its_name(self):
        labels = checks.strings_of(ROOT / "Resources/MainWindow.ui", "text", "title", "accessibleName",
                                   "placeholderText") - {"KXConfig"}
        for language, pages in self.books.items():
            window = translated.Window(WINDOW_CATALOGUES / f"kxconfig_{language}.ts")
            missing = [label for label in sorted(map(translated.single_spaced, labels))
                       if " ".join((window(label) or label).split()) not in pages["controls.html"].text]
            self.assertEqual(missing, [], language)


if __name__ == "__main__":
    unittest.main()
