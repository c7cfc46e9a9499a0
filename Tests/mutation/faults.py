"""Lists the faults that can be planted in a C++ file, from its syntax tree.

A fault is one small change that a person makes by mistake: a comparison that takes in its limit or not, a
condition negated or left out, another operator, a number off by one, a statement left out, a value of a
result forgotten, a loop ended instead of gone on with.
"""

import collections
import dataclasses
import re

from clang.cindex import CursorKind, Diagnostic, Index, TypeKind

COMPARISONS = {"<": ("<=", ">="), "<=": ("<", ">"), ">": (">=", "<="), ">=": (">", "<"), "==": ("!=",), "!=": ("==",)}
OPERATORS = COMPARISONS | {
    "&&": ("||",), "||": ("&&",),
    "+": ("-",), "-": ("+",), "*": ("/",), "/": ("*",), "%": ("*",),
    "&": ("|",), "|": ("&",), "^": ("|",), "<<": (">>",), ">>": ("<<",),
    "+=": ("-=",), "-=": ("+=",), "*=": ("/=",), "/=": ("*=",),
    "&=": ("|=",), "|=": ("&=",), "<<=": (">>=",), ">>=": ("<<=",)}

INTEGER = re.compile(r"(?P<base>0[xX])(?P<hex>[0-9a-fA-F']+)[uUlLzZ]*$|(?P<decimal>0|[1-9][0-9']*)[a-zA-Z_]*$")
# Results that `{}` would not change.
NOTHING = {"{}", "0", "nullptr", "std::nullopt", "false", "true", '""'}


@dataclasses.dataclass(frozen=True)
class Fault:
    """The bytes from `start` to `end` of the file become `replacement`.

    `name` stays the same as long as nobody changes the line: `line` is its text, and `number` tells apart
    equal changes of equal lines of one file, counted from 1.
    """

    path: str
    start: int
    end: int
    replacement: str
    line_number: int
    line: str
    change: str
    number: int = 1

    @property
    def name(self):
        count = f" ({self.number})" if self.number > 1 else ""
        return f"In `{self.line}`{count}: {self.change}."


class Finder:
    """Walks through the syntax tree of one file and collects the faults."""

    def __init__(self, path, text):
        self._path, self._text, self._faults = path, text, {}

    def faults(self):
        counts = collections.Counter()
        numbered = []
        for fault in sorted(self._faults.values(), key=lambda each: (each.start, each.end, each.replacement)):
            counts[fault.line, fault.change] += 1
            numbered.append(dataclasses.replace(fault, number=counts[fault.line, fault.change]))
        return numbered

    def visit(self, cursor, returns_reference=False):
        if cursor.kind == CursorKind.COMPOUND_STMT and not self._source_of(cursor).startswith("{"):
            return  # the compiler's own body of a function
        if cursor.kind == CursorKind.LAMBDA_EXPR:
            returns_reference = False
        elif cursor.kind.is_declaration() and cursor.result_type.kind != TypeKind.INVALID:
            returns_reference = cursor.result_type.kind == TypeKind.LVALUEREFERENCE
        children = list(cursor.get_children())
        self._look_at(cursor, children, returns_reference)
        for child in children:
            self.visit(child, returns_reference)

    def _look_at(self, cursor, children, returns_reference):
        kind = cursor.kind
        if kind in (CursorKind.BINARY_OPERATOR, CursorKind.COMPOUND_ASSIGNMENT_OPERATOR):
            self._change_operator(cursor, children, OPERATORS)
        elif kind == CursorKind.CALL_EXPR and cursor.spelling.startswith("operator"):
            self._change_operator(cursor, list(cursor.get_arguments()), COMPARISONS)
        elif kind == CursorKind.UNARY_OPERATOR:
            self._change_sign(cursor)
        elif kind == CursorKind.CONDITIONAL_OPERATOR:
            self._negate(children[0])
        elif kind in (CursorKind.IF_STMT, CursorKind.WHILE_STMT):
            self._negate_condition(children)
        elif kind == CursorKind.RETURN_STMT and children:
            self._change_result(children[0], returns_reference)
        elif kind == CursorKind.COMPOUND_STMT:
            self._leave_out_statements(children)
        elif kind == CursorKind.INTEGER_LITERAL:
            self._change_number(cursor)
        elif kind in WORDS:
            self._replace(cursor.extent.start.offset, cursor.extent.end.offset, WORDS[kind])

    def _text_of(self, start, end):
        return self._text[start:end].decode()

    def _source_of(self, cursor):
        return self._text_of(cursor.extent.start.offset, cursor.extent.end.offset)

    def _replace(self, start, end, replacements):
        before = self._text_of(start, end)
        replacement = replacements.get(before) if isinstance(replacements, dict) else replacements
        if replacement is None or replacement == before:
            return
        line_number = self._text.count(b"\n", 0, start) + 1
        line = self._text.splitlines()[line_number - 1].decode().strip()
        removed = " ".join(before.split())
        added = " ".join(replacement.split())
        change = f"`{removed}` becomes `{added}`" if added else f"`{removed}` is left out"
        self._faults[start, end, replacement] = Fault(self._path, start, end, replacement, line_number, line, change)

    def _change_operator(self, cursor, operands, operators):
        if len(operands) != 2:
            return
        left, right = sorted((each.extent for each in operands), key=lambda extent: extent.start.offset)
        between = self._text_of(left.end.offset, right.start.offset)
        operator = between.strip()
        if operator not in operators:
            return
        start = left.end.offset + len(between[:between.index(operator)].encode())
        for other in operators[operator]:
            self._replace(start, start + len(operator), other)
        if operator in ("&&", "||"):
            whole = cursor.extent
            for side in left, right:
                kept = self._text_of(side.start.offset, side.end.offset)
                self._replace(whole.start.offset, whole.end.offset, kept)

    def _change_sign(self, cursor):
        start, source = cursor.extent.start.offset, self._source_of(cursor)
        for sign, other in ("++", "--"), ("--", "++"), ("!", ""), ("-", ""), ("~", ""):
            # The compiler makes `!(a == b)` of `a != b`.
            if source.startswith(sign) and not source.startswith(f"{sign}="):
                self._replace(start, start + len(sign), other)
                return

    def _negate_condition(self, children):
        bodies = [index for index, child in enumerate(children) if child.kind == CursorKind.COMPOUND_STMT]
        if not bodies or bodies[0] == 0:
            return
        before, condition = children[:bodies[0] - 1], children[bodies[0] - 1]
        # The condition of `if (auto x = f())` has no text of its own.
        if not before or before[-1].extent.end.offset <= condition.extent.start.offset:
            self._negate(condition)

    def _negate(self, condition):
        source = self._source_of(condition)
        if not source.startswith("!") and source not in ("true", "false") and not self._is_comparison(condition):
            self._replace(condition.extent.start.offset, condition.extent.end.offset, f"!({source})")

    def _is_comparison(self, cursor):
        """Whether another operator negates the condition already."""
        children = list(cursor.get_children())
        while len(children) == 1 and cursor.kind in (CursorKind.UNEXPOSED_EXPR, CursorKind.UNARY_OPERATOR):
            cursor, children = children[0], list(children[0].get_children())
        operands = list(cursor.get_arguments()) if cursor.kind == CursorKind.CALL_EXPR else children
        if len(operands) != 2:
            return False
        left, right = sorted((each.extent for each in operands), key=lambda extent: extent.start.offset)
        return self._text_of(left.end.offset, right.start.offset).strip() in COMPARISONS

    def _change_result(self, value, returns_reference):
        source = self._source_of(value)
        if value.type.get_canonical().kind == TypeKind.BOOL:
            self._negate(value)
        elif source not in NOTHING and not returns_reference:
            self._replace(value.extent.start.offset, value.extent.end.offset, "{}")

    def _leave_out_statements(self, statements):
        for statement in statements:
            start, end = statement.extent.start.offset, statement.extent.end.offset
            if statement.kind.is_expression() and self._text[end:end + 1] == b";":
                self._replace(start, end, "")

    def _change_number(self, cursor):
        start, match = cursor.extent.start.offset, INTEGER.match(self._source_of(cursor))
        if match is None:
            return
        group = "hex" if match["base"] else "decimal"
        number = int(match[group].replace("'", ""), 16 if match["base"] else 10)
        for other in {number + 1, max(number - 1, 0)} - {number}:
            text = format(other, "X" if match["base"] else "d")
            self._replace(start + match.start(group), start + match.end(group), text)


WORDS = {
    CursorKind.CXX_BOOL_LITERAL_EXPR: {"true": "false", "false": "true"},
    CursorKind.CONTINUE_STMT: {"continue": "break"},
    CursorKind.BREAK_STMT: {"break": "continue"}}


def faults_of(path, file, arguments):
    """The faults of a file. `path` is its name in the project, and `arguments` are those of its compiler."""
    unit = Index.create().parse(str(file), args=arguments)
    errors = [str(each) for each in unit.diagnostics if each.severity >= Diagnostic.Error]
    if errors:
        raise SystemExit(f"mutation: {path} cannot be read: {errors[0]}")
    finder = Finder(path, file.read_bytes())
    for cursor in unit.cursor.get_children():
        if cursor.location.file is not None and cursor.location.file.name == str(file):
            finder.visit(cursor)
    return finder.faults()
