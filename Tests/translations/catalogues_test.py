"""Every text of the program is in every catalogue, and each translation fits its text."""

import re
import unittest

import checks

LANGUAGES = ["de", "es", "fr", "ja"]
PARAMETER = re.compile(r"(?:destination|device|internal) [A-Za-z ]+|serial number|unit ID")

# The calls that look up a key which another place marks with localizedKey(), or which another of the
# functions has got: the file, and how the argument begins.
KNOWN_LOOKUPS = {
    ("ParameterLines.cpp", "row.name)"),
    ("SystemConfiguration_Enumeration.cpp", "notAvailableText)"),
    ("SystemConfiguration_Queries.cpp", "notAvailableText)"),
    ("ConfigurationRecords.cpp", "namesOfKind(link.kind).userDefinedName)"),
    ("DataSourceTableModel.cpp", "text)"),
    ("MainWindow.cpp", "nameOfUnitParameter("),
    ("QtText.h", "key)"),
    ("LabelledNames.cpp", "label.key)"),
    ("LocalizedText.cpp", "key)"),
    ("EditForecast.cpp", "descriptionOf(edit.parameter).phrase,"),
    ("EditForecast.cpp", "target.objectionToARPEntry)"),
    ("EditOutcomeText.cpp", "nameOfUnitParameter("),
    ("TableComplaintText.cpp", "*key,"),
    ("TableComplaintText.cpp", "keyOfFileOrLine("),
    ("UnitColumns.cpp", "key)"),
    ("EditOutcomeText.cpp", "said)"),
    ("FromFileTable.cpp", "nameOfUnitParameter("),
    ("PlanCells.cpp", "key)"),
    ("PlanCells.cpp", "nameOfUnitParameter("),
    ("TableComplaintText.cpp", "keyOfFileOrLine("),
    ("TableComplaintText.cpp", "*key,"),
}


class TheCatalogues(unittest.TestCase):
    def setUp(self):
        self.keys = checks.script.keys()
        self.texts = {path.stem.removeprefix("kxconfig_"): path.read_text(encoding="utf-8")
                      for path in checks.script.CATALOGUES.iterdir()}
        self.catalogues = {language: checks.script.entries(text)
                           for language, text in self.texts.items()}

    def test_are_there_for_every_language(self):
        self.assertEqual(sorted(self.catalogues), LANGUAGES)
        for language, text in self.texts.items():
            self.assertIn(f'language="{language}"', text)

    def test_have_every_text_of_the_program_and_no_other_with_all_its_parts(self):
        for language, translations in self.catalogues.items():
            self.assertEqual(checks.faults_of_catalogue(self.keys, translations), [], language)

    def test_stand_as_the_script_writes_them(self):
        for language, translations in self.catalogues.items():
            written = checks.script.catalogue(language, self.keys, translations)
            self.assertEqual(self.texts[language], written,
                             f"{language}: run scripts/translations and commit what it writes")

    def test_give_no_mnemonic_twice(self):
        groups = checks.mnemonic_groups(checks.script.WINDOW.read_text(encoding="utf-8"))
        self.assertEqual(len(groups["window"]), 11)
        english = {key: key for key in self.keys}
        for language, translations in {"en": english, **self.catalogues}.items():
            self.assertEqual(checks.mnemonics_used_twice(groups, translations), [], language)

    def test_keep_apart_what_the_program_tells_apart(self):
        apart = [["work", "home", "iPhone", "mobile", "main", "home fax", "work fax", "pager",
                  "other", "vacation"],
                 [key for key in self.keys if PARAMETER.fullmatch(key)],
                 [key for key in self.keys if PARAMETER.fullmatch(key.removesuffix(" %@"))
                  and key.endswith("%@")]]
        self.assertEqual([len(keys) for keys in apart], [10, 8, 8])
        for language, translations in self.catalogues.items():
            for keys in apart:
                self.assertEqual(len({translations[key] for key in keys}), len(keys), language)

    def test_use_the_quotation_marks_of_their_language(self):
        foreign = {"de": "“[^“]*”|[«»「」]", "es": "[“”„「」]", "fr": "[“”„「」]|«[^\u00a0]|[^\u00a0]»",
                   "ja": "[“”„«»]"}
        for language, pattern in foreign.items():
            for translation in self.catalogues[language].values():
                self.assertNotRegex(translation or "", pattern, language)

    def test_set_a_fixed_blank_before_a_french_colon(self):
        for key, translation in self.catalogues["fr"].items():
            self.assertNotRegex(translation or "", r" [:;?!](?!=)", key)


class TheTable(unittest.TestCase):
    def test_has_the_finished_entries_in_the_order_of_their_keys_in_bytes(self):
        table = checks.script.table({"de": {"b": "B", "B": "\u00e4", "\u00e9": "E", "a": None}})
        self.assertIn('entriesOf_de[] = {\n    {"B", "\u00e4"},\n    {"b", "B"},\n    {"\u00e9", "E"},\n};\n', table)

    def test_escapes_what_a_literal_cannot_hold(self):
        table = checks.script.table({"de": {'say "\\"\n': "x"}})
        self.assertIn(r'{"say \"\\\"\n", "x"},', table)

    def test_leaves_out_a_language_that_has_only_begun(self):
        table = checks.script.table({"de": {"a": "A"}, "it": {"a": None}, "zh-Hans": {"a": "B"}})
        self.assertNotIn("it", re.findall(r'^    \{"([^"]*)", entries', table, re.MULTILINE))
        self.assertIn('    {"de", entriesOf_de},\n    {"zh-Hans", entriesOf_zh_Hans},\n', table)


class TheSources(unittest.TestCase):
    def test_look_up_no_key_that_nobody_has_listed(self):
        used = set()
        for path in checks.script.sources():
            for call in checks.script.keys_of_source(path.read_text(encoding="utf-8"))[1]:
                known = {(file, beginning) for file, beginning in KNOWN_LOOKUPS
                         if file == path.name and call.startswith(beginning)}
                self.assertTrue(known, f"{path.name}: {call}")
                used |= known
        self.assertEqual(KNOWN_LOOKUPS, used)

    def test_translate_by_no_other_way(self):
        for path in checks.script.sources():
            text = path.read_text(encoding="utf-8")
            self.assertNotRegex(text, r"(?<![\w.])(?:\w+::)?tr\(\"|QT_TR|translate\(", path.name)


if __name__ == "__main__":
    unittest.main()
