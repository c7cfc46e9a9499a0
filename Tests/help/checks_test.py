"""The checks of the help book find the faults that they are made for."""

import pathlib
import tempfile
import unittest

import checks


class Checks(unittest.TestCase):
    def setUp(self):
        self._folder = tempfile.TemporaryDirectory()
        self.addCleanup(self._folder.cleanup)
        self.folder = pathlib.Path(self._folder.name)

    def write(self, name, text):
        (self.folder / name).write_text(text, encoding="utf-8")
        return self.folder / name

    def page(self, body):
        return checks.Page(self.write("page.html", body))

    def test_a_link_to_a_missing_page_anchor_or_picture_is_broken(self):
        self.write("other.html", '<p id="here"></p>')
        self.write("page.html", '<a href="other.html#here"></a><a href="other.html#there"></a>'
                                '<a href="gone.html"></a><a href="#nowhere"></a>'
                                '<img src="gone.png" srcset="gone2.png 2x">')
        self.assertEqual(checks.broken_references(self.folder),
                         ["page.html: other.html#there", "page.html: gone.html",
                          "page.html: #nowhere", "page.html: gone.png", "page.html: gone2.png"])

    def test_a_link_out_of_the_book_is_broken(self):
        self.write("page.html", '<a href="https://example.com/"></a><a href="../page.html"></a>'
                                '<link href="/style.css">')
        self.assertEqual(len(checks.broken_references(self.folder)), 3)

    def test_elements_that_do_not_match_are_faults(self):
        self.assertEqual(self.page("<p><b>a</b></p><br>").faults, [])
        self.assertEqual(len(self.page("<p><b>a</p></b>").faults), 2)
        self.assertEqual(self.page("<p>a").faults, ["<p> is not closed"])
        self.assertEqual(len(self.page('<p id="a"></p><p id="a"></p>').faults), 1)

    def test_an_entry_is_read_with_its_variable_parts(self):
        page = self.page('<code class="entry">Send to: <var>a</var> ^^&lt;U&gt;</code><code>x</code>')
        self.assertEqual(page.entries, {"Send to: % ^^<U>"})

    def test_the_entries_of_a_source_are_found_however_they_are_written(self):
        path = self.write("a.cpp", 'return localizedText("[Begin]");\n'
                                   'std::string entry = localizedText("\\nStart. ");\n'
                                   'if (a) {\n entry += localizedText("%@:%d", {b});\n}\n'
                                   'localizedText("\\nLong "\n              "line: \\"%s\\"", {c});\n'
                                   'localizedText(key);\n')
        self.assertEqual(checks.logged_entries(path), {"[Begin]", "Start. %:%", 'Long line: "%"'})

    def test_what_is_appended_to_the_log_is_found_in_whatever_folder_it_stands(self):
        (self.folder / "below").mkdir()
        self.write("below/a.cpp", 'appendString(entryOfStart(a));\n'
                                  'appendString(a == 0 ? entryOfA({b, c})\n    : entryOfB(c));\n'
                                  'appendString("new");\n'
                                  'void C::appendString(std::string_view text) {\n f();\n}\n')
        self.assertEqual(checks.appended(self.folder),
                         {"entryOfStart", "entryOfA", "entryOfB", '"new"'})

    def test_the_functions_that_word_an_entry_are_found(self):
        path = self.write("a.h", "std::string entryOfStart();\nstd::string entryOfA(int a,\n int b);\n"
                                 "std::string reasonInEntry(int a);\nint lengthOfA(int a);\n")
        self.assertEqual(checks.functions_of_entries(path),
                         {"entryOfStart", "entryOfA", "reasonInEntry"})

    def test_the_texts_that_a_source_looks_up_are_found(self):
        path = self.write("a.cpp", 'return localizedText("No ä.");\nf(localizedText("It (%@ %d)."), a);\n'
                                   'localizedText(key);\n')
        self.assertEqual(checks.localized_texts(path), {"No ä.", "It (% %)."})

    def test_labels_lose_the_mark_of_their_key(self):
        path = self.write("a.ui", '<ui><property name="text"><string>Network &amp;interface:</string>'
                                  '</property><property name="other"><string>x</string></property></ui>')
        self.assertEqual(checks.strings_of(path, "text"), {"Network interface:"})


if __name__ == "__main__":
    unittest.main()
