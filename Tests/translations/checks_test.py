"""The checks of the catalogues find the faults that they are made for."""

import unittest

import checks

CATALOGUE = """<!DOCTYPE TS>
<TS version="2.1" language="de"><context><name>{context}</name>
<message><source>Apply</source><translation>Anwenden</translation></message>
<message><source>Send</source><translation{state}>{text}</translation></message>
</context></TS>
"""


def catalogue(context="KXConfig", state="", text="Senden"):
    return checks.script.entries(CATALOGUE.format(context=context, state=state, text=text))


class Checks(unittest.TestCase):
    def assertFault(self, words, key, translation):
        faults = checks.faults_of_translation(key, translation)
        self.assertEqual([fault.split(":")[0] for fault in faults], [words])

    def test_a_whole_catalogue_has_no_fault(self):
        self.assertEqual(checks.faults_of_catalogue(["Apply", "Send"], catalogue()), [])

    def test_a_missing_key_and_one_too_many_are_faults(self):
        self.assertEqual(checks.faults_of_catalogue(["Apply", "Send", "Reload"], catalogue()),
                         ["'Reload' is missing"])
        self.assertEqual(checks.faults_of_catalogue(["Send"], catalogue()),
                         ["'Apply' is not in the program"])

    def test_what_is_unfinished_empty_or_vanished_is_a_fault(self):
        for entry in ({"state": ' type="unfinished"'}, {"state": ' type="vanished"'}, {"text": ""}):
            self.assertEqual(checks.faults_of_catalogue(["Apply", "Send"], catalogue(**entry)),
                             ["'Send' is unfinished"])

    def test_another_context_is_refused(self):
        with self.assertRaises(ValueError):
            catalogue(context="MainWindow")

    def test_placeholders_agree_in_kind_number_and_order(self):
        self.assertEqual(checks.faults_of_translation("%@ has %d", "%@ hat %d"), [])
        for translation in ("%@ hat", "%d hat %@", "%@ hat %@", "%@ hat %d %d", "%1 hat %d"):
            self.assertFault("other placeholders", "%@ has %d", translation)

    def test_white_space_around_a_text_is_kept(self):
        self.assertEqual(checks.faults_of_translation("\nStart. ", "\nBeginn. "), [])
        self.assertFault("other white space around it", "\nStart. ", "Beginn. ")
        self.assertFault("other white space around it", "\nStart. ", "\nBeginn.")

    def test_endings_agree_in_every_script(self):
        for key, translation in (("Not found.", "ありません。"), ("Port:", "ポート:"),
                                 ("Find…", "検索(&F)…".replace("&", "")), ("Find", "検索"),
                                 ("Port:", "Port\u00a0:")):
            self.assertEqual(checks.faults_of_translation(key, translation), [])
        for key, translation in (("Not found.", "ありません"), ("Port:", "Port"), ("Find…", "Suchen"),
                                 ("Find…", "Suchen..."), ("Find", "Suchen."), ("Find", "Suchen:")):
            self.assertFault("another ending", key, translation)

    def test_mnemonics_are_there_where_the_key_has_one_and_only_there(self):
        self.assertEqual(checks.faults_of_translation("&File", "ファイル(&F)"), [])
        self.assertFault("a mnemonic too many or too few", "&File", "Datei")
        self.assertFault("a mnemonic too many or too few", "File", "&Datei")
        self.assertFault("a mnemonic that is not on every keyboard", "&Edit", "&Édition")

    def test_an_option_command_stays_what_it_is(self):
        self.assertEqual(checks.faults_of_translation("-Z  Set clock", "-Z  Uhr stellen"), [])
        self.assertFault("another option command", "-Z  Set clock", "-U  Uhr stellen")
        self.assertFault("another option command", "-Z  Set clock", "-Z Uhr stellen")

    def test_mnemonics_that_work_at_the_same_time_differ(self):
        groups = checks.mnemonic_groups("""<ui>
            <widget class="QMenu" name="menu"><property name="title"><string>&amp;A</string></property>
             <addaction name="one"/><addaction name="separator"/><addaction name="two"/></widget>
            <widget class="QLabel" name="label"><property name="text"><string>&amp;B</string></property>
            </widget>
            <widget class="QLabel" name="other"><property name="text"><string>C</string></property>
            </widget>
            <action name="one"><property name="text"><string>&amp;One</string></property></action>
            <action name="two"><property name="text"><string>&amp;Two</string></property></action></ui>
        """)
        self.assertEqual(groups, {"menu": ["&One", "&Two"], "window": ["&A", "&B"]})
        differ = {"&A": "&A", "&B": "&B", "&One": "&Eins", "&Two": "&Zwei"}
        self.assertEqual(checks.mnemonics_used_twice(groups, differ), [])
        self.assertEqual(len(checks.mnemonics_used_twice(groups, {**differ, "&B": "a&a"})), 1)
        self.assertEqual(len(checks.mnemonics_used_twice(groups, {**differ, "&Two": "Zw&ei"})), 1)
        self.assertEqual(len(checks.mnemonics_used_twice(groups, {**differ, "&Two": "&Eins"})), 1)


class TheTextsOfTheProgram(unittest.TestCase):
    def test_are_found_however_a_source_writes_them(self):
        source = ('localizedText("No ä.");\nf(localizedQtText(\n    "It (%@ "\n    "%d)."), a);\n'
                  'localizedText("Is \\"b\\".", {c});\nlocalizedText("\\nStart. ");\n'
                  '{localizedKey("work"), "01"}\n')
        self.assertEqual(checks.script.keys_of_source(source),
                         (["No ä.", "It (%@ %d).", 'Is "b".', "\nStart. ", "work"], []))

    def test_are_not_found_in_what_has_no_words(self):
        source = 'localizedText("\\n  %@", {a});\nlocalizedText("%@:%d", {a, b});\n'
        self.assertEqual(checks.script.keys_of_source(source), ([], []))

    def test_a_key_that_is_no_literal_is_told(self):
        source = ("std::string localizedText(std::string_view key);\n"
                  "inline QString localizedQtText(const char* key) {\n"
                  "return localizedText(label.key);\n")
        self.assertEqual(checks.script.keys_of_source(source), ([], ["label.key)"]))

    def test_are_those_of_the_windows_description_that_are_for_people(self):
        window = '<ui><string>&amp;File</string><string notr="true">3520</string><string/></ui>'
        self.assertEqual(checks.script.keys_of_window(window), ["&File"])

    def test_come_back_from_the_catalogue_that_is_written_of_them(self):
        path = checks.ROOT / "Sources/kxconfig.cpp"
        keys = {"\nA <b> & \"c\": ": [path], "New": [path]}
        written = checks.script.catalogue("de", keys, {"\nA <b> & \"c\": ": "\nÄ <b> & „c“: "})
        self.assertEqual(checks.script.entries(written),
                         {"\nA <b> & \"c\": ": "\nÄ <b> & „c“: ", "New": None})


if __name__ == "__main__":
    unittest.main()
