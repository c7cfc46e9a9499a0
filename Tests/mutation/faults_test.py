"""What is planted in a file, and what is not."""

import pathlib
import tempfile
import unittest

from faults import faults_of


def faults_in(text):
    with tempfile.TemporaryDirectory() as folder:
        file = pathlib.Path(folder) / "file.cpp"
        file.write_text(text, encoding="utf-8")
        faults = faults_of("file.cpp", file, ["-x", "c++", "-std=c++20"])
        whole = file.read_bytes()
        planted = [(whole[:each.start] + each.replacement.encode() + whole[each.end:]).decode() for each in faults]
        return faults, planted


def results(before, condition, after):
    """What becomes of a piece of a text."""
    _, planted = faults_in(before + condition + after)
    return sorted(each[len(before):len(each) - len(after)] for each in planted)


class PlantedFaults(unittest.TestCase):
    def test_a_comparison_takes_in_its_limit_or_not_and_is_turned(self):
        self.assertEqual(results("bool f(int a, int b) { return ", "a < b", "; }"), ["a <= b", "a >= b"])
        self.assertEqual(results("bool f(int a, int b) { return ", "a == b", "; }"), ["a != b"])

    def test_a_comparison_of_a_class_is_one_too(self):
        point = "struct P { int x; bool operator==(const P&) const = default; };\n"
        self.assertEqual(results(point + "bool f(P a, P b) { return ", "a != b", "; }"), ["a == b"])

    def test_a_condition_loses_a_side_or_is_joined_in_the_other_way(self):
        self.assertEqual(results("void f(bool a, bool b) { if (", "a && b", ") {} }"),
                         ["!(a && b)", "a", "a || b", "b"])

    def test_a_condition_is_negated_once(self):
        self.assertEqual(results("void f(bool a) { if (", "!a", ") {} }"), ["a"])
        self.assertEqual(results("void f(int a) { while (", "a == a", ") {} }"), ["a != a"])
        self.assertEqual(results("void f(bool a, int b) { int c = ", "a", " ? b : b; }"), ["!(a)"])

    def test_a_number_is_one_more_or_less(self):
        self.assertEqual(results("const unsigned a = ", "0x0FU", ";"), ["0x10U", "0xEU"])

    def test_zero_is_never_less(self):
        self.assertEqual(results("const int a = ", "0", ";"), ["1"])

    def test_a_statement_is_left_out(self):
        self.assertEqual(results("void g(int); void f(int a) { ", "g(a)", "; }"), [""])
        self.assertEqual(results("void f(int a) { ", "++a", "; }"), ["", "--a"])

    def test_a_result_is_forgotten_but_never_a_reference(self):
        self.assertEqual(results("long f(long a) { return ", "a", "; }"), ["{}"])
        self.assertEqual(results("long& f(long& a) { return ", "a", "; }"), [])
        self.assertEqual(results("long* f() { return ", "nullptr", "; }"), [])

    def test_a_loop_ends_instead_of_going_on(self):
        self.assertEqual(results("void f() { for (;;) { ", "continue", "; } }"), ["break"])

    def test_equal_lines_are_told_apart_and_other_lines_do_not_count(self):
        text = "void f(int a) {\n    a += a;\n    a += a;\n}\n"
        names = [fault.name for fault in faults_in(text)[0]]
        self.assertEqual(names, [fault.name for fault in faults_in("// more\n\n" + text)[0]])
        self.assertEqual(sorted(name for name in names if "left out" in name),
                         ["In `a += a;` (2): `a += a` is left out.", "In `a += a;`: `a += a` is left out."])

    def test_headers_of_others_are_left_alone(self):
        self.assertEqual(faults_in("#include <vector>\n")[0], [])

    def test_a_file_that_cannot_be_read_is_no_file_without_faults(self):
        with self.assertRaises(SystemExit):
            faults_in("nonsense here")


if __name__ == "__main__":
    unittest.main()
