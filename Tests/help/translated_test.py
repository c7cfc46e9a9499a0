"""The script and the checks of the translated help book find what they are made for."""

import pathlib
import shutil
import tempfile
import unittest

import translated
from translations_test import BOOK, WINDOW_CATALOGUES, book


class TheScript(unittest.TestCase):
    """Works on a copy of the book with one catalogue, in which everything is translated by a mark."""

    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)
        self.pages = self.folder / "pages"
        self.catalogues = self.folder / "catalogues"
        self.catalogues.mkdir()
        shutil.copytree(BOOK, self.pages)
        self.update()
        for path in self.catalogues.glob("*.po"):
            head, _, rest = path.read_text(encoding="utf-8").partition("\n\n")
            # A translation ends with a line break where the English text does.
            rest = rest.replace('\\n"\nmsgstr ""', '\\n"\nmsgstr "marked\\n"').replace('msgstr ""', 'msgstr "marked"')
            path.write_text(f"{head}\n\n{rest}", encoding="utf-8")

    def update(self):
        book.update(self.catalogues, self.pages)

    def entries(self):
        return {entry.english: entry for entry in book.catalogues(self.catalogues)["de"]}

    def change(self, page, old, new):
        path = self.pages / page
        text = path.read_text(encoding="utf-8")
        self.assertEqual(text.count(old), 1)
        path.write_text(text.replace(old, new), encoding="utf-8")

    def test_leaves_catalogues_alone_that_are_up_to_date(self):
        self.update()
        before = (self.catalogues / "de.po").read_bytes()
        self.update()
        self.assertEqual((self.catalogues / "de.po").read_bytes(), before)
        self.assertTrue(all(entry.is_done for entry in self.entries().values()))

    def test_names_a_paragraph_that_has_changed(self):
        old = "A command can hold ASCII characters only; others are not sent."
        new = old.replace("not", "never")
        self.change("parameters.html", old, new)
        self.update()
        self.assertNotIn(old, self.entries())
        self.assertFalse(self.entries()[new].is_done)
        self.assertEqual(sum(not entry.is_done for entry in self.entries().values()), 1)

    def test_names_a_paragraph_that_is_new(self):
        self.change("trust.html", "</body>", "<p>Wholly different words stand here.</p></body>")
        self.update()
        self.assertEqual(self.entries()["Wholly different words stand here."].translation, "")

    def test_removes_a_paragraph_that_is_gone(self):
        self.change("parameters.html", "<li>An empty value sends nothing.</li>\n", "")
        self.update()
        self.assertNotIn("An empty value sends nothing.", self.entries())
        self.assertNotIn("#~", (self.catalogues / "de.po").read_text(encoding="utf-8"))

    def test_counts_no_paragraph_as_new_whose_lines_only_break_elsewhere(self):
        self.change("parameters.html", "A command can hold ASCII", "A command can\nhold ASCII")
        self.update()
        self.assertTrue(all(entry.is_done for entry in self.entries().values()))

    def test_a_paragraph_that_was_changed_is_english_in_the_page_until_it_is_translated_again(self):
        self.change("parameters.html", "<li>An empty value sends nothing.", "<li>No value sends nothing.")
        self.update()
        book.make_pages(self.folder, self.catalogues, self.pages)
        page = (self.folder / "de/parameters.html").read_text(encoding="utf-8")
        self.assertIn("<li>No value sends nothing.", page)
        self.assertEqual(page.count("<li>marked"), page.count("<li>") - 1)


class AFault(unittest.TestCase):
    def setUp(self):
        self.faults = translated.Faults("de", WINDOW_CATALOGUES / "kxconfig_de.ts")

    def expect(self, english, good, *bad):
        self.assertEqual(self.faults(book.Entry(english, good, False, False)), [])
        for translation in bad:
            self.assertNotEqual(self.faults(book.Entry(english, translation, False, False)), [], translation)

    def test_is_another_name_of_a_control(self):
        self.expect("Press <b>Apply</b>.", "Drücken Sie <b>Anwenden</b>.",
                    "Drücken Sie <b>Apply</b>.", "Drücken Sie <b>Übernehmen</b>.", "Drücken Sie Anwenden.")
        self.expect("Save Session…", "Sitzung sichern…", "Sitzung speichern…")

    def test_is_another_wording_of_a_sentence_of_the_window(self):
        self.expect("<i>Apply sends ^^IdT0DC1: destination port 3521.</i>",
                    "<i>„Anwenden“ sendet ^^IdT0DC1: Zielport 3521.</i>",
                    "<i>„Anwenden“ schickt ^^IdT0DC1: Zielport 3521.</i>")
        self.expect("<i>The unit … is heard on two interfaces …</i>",
                    "<i>Das Gerät … ist auf zwei Schnittstellen zu hören …</i>",
                    "<i>Das Gerät … wird auf zwei Schnittstellen gehört …</i>")

    def test_is_another_wording_of_a_line_of_the_event_log(self):
        self.expect('<code class="entry">Send to: <var>address</var> command: <var>command</var></code>',
                    '<code class="entry">Senden an: <var>Adresse</var> Befehl: <var>Befehl</var></code>',
                    '<code class="entry">Sende an: <var>Adresse</var> Befehl: <var>Befehl</var></code>')
        self.expect("UDP server did send data.\nReceived command: ^^IdX",
                    "UDP-Daten gesendet.\nBefehl empfangen: ^^IdX",
                    "UDP-Daten gesendet.\nEmpfangen: ^^IdX", "UDP-Daten gesendet.")

    def test_is_another_element_anchor_or_page(self):
        self.expect('See <a href="log.html#arp">here</a>.', 'Siehe <a href="log.html#arp">hier</a>.',
                    'Siehe <a href="log.html">hier</a>.', "Siehe hier.",
                    'Siehe <i><a href="log.html#arp">hier</a></i>.')

    def test_is_another_number(self):
        self.expect("It keeps 1,048,576 units.", "Es behält 1.048.576 Geräte.", "Es behält 1.048.567 Geräte.")

    def test_is_another_name_of_a_key(self):
        self.expect("Press <kbd>Ctrl+Shift+S</kbd>.", "Drücken Sie <kbd>Strg+Umschalt+S</kbd>.",
                    "Drücken Sie <kbd>Ctrl+Shift+S</kbd>.", "Drücken Sie <kbd>Strg+S</kbd>.")
        self.expect("Press <kbd>Ctrl+.</kbd>.", "Drücken Sie <kbd>Strg+.</kbd>.",
                    "Drücken Sie <kbd>Ctrl+.</kbd>.")

    def test_is_another_code(self):
        self.expect("Type <code>man kxctl</code>.", "Tippen Sie <code>man kxctl</code>.",
                    "Tippen Sie <code>man kxcfg</code>.")

    def test_is_not_the_systems_own_language(self):
        self.expect("<code>Permission denied</code>", "<code>Keine Berechtigung</code>")


if __name__ == "__main__":
    unittest.main()
