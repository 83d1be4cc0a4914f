# SPDX-License-Identifier: MIT
"""Writes mutants into a source: around each condition and constant a call that breaks it
when its number is the one that lives (VyMutant.h)."""
import collections
import re

from clang import cindex
from clang.cindex import CursorKind as Kind

Mutant = collections.namedtuple("Mutant", "number file line column text change")

ORDER = {"<": "less", "<=": "lessOrEqual", ">": "greater", ">=": "greaterOrEqual"}
CONDITIONS = {Kind.IF_STMT: 0, Kind.WHILE_STMT: 0, Kind.FOR_STMT: 1, Kind.DO_STMT: 1,
              Kind.CONDITIONAL_OPERATOR: 0}
# What is not run, or must be a constant.
SKIPPED = {Kind.CASE_STMT, Kind.ENUM_DECL, Kind.STATIC_ASSERT, Kind.TEMPLATE_REF,
           Kind.CLASS_TEMPLATE, Kind.TYPE_ALIAS_DECL}


class Source:
    """One source file; the calls that go into it are collected, then written."""

    def __init__(self, path, arguments, first):
        self.path, self.next = path, first
        self.bytes = path.read_bytes()
        self.mutants, self.edits, self.seen = [], {}, set()
        unit = cindex.Index.create().parse(str(path), args=arguments)
        faults = [d for d in unit.diagnostics if d.severity >= cindex.Diagnostic.Error]
        if faults:
            raise RuntimeError(f"{path}: {faults[0]}")
        for cursor in unit.cursor.get_children():
            if cursor.location.file and cursor.location.file.name == str(path):
                self.visit(cursor)

    def span(self, cursor):
        return cursor.extent.start.offset, cursor.extent.end.offset

    def text(self, start, end):
        return self.bytes[start:end].decode()

    def add(self, cursor, call, change, operator=None):
        start, end = self.span(cursor)
        if (start, end, call) in self.seen or end <= start:
            return
        self.seen.add((start, end, call))
        number, self.next = self.next, self.next + 1
        place = cursor.extent.start
        self.mutants.append(Mutant(number, self.path.name, place.line, place.column,
                                   " ".join(self.text(start, end).split()), change))
        separator, close = ", ", ")"
        if call in ("both", "either"):
            separator, close = ", [&]() -> bool { return static_cast<bool>(", "); })"
        self.edits[number] = [(start, end, f"VyMutant::{call}({number}, ", close)]
        if operator:
            self.edits[number].append((*operator, separator))

    def operator(self, cursor):
        """The place of the operator between the two operands."""
        operands = list(cursor.get_children())
        left, right = self.span(operands[0])[1], self.span(operands[-1])[0]
        found = re.search(r"&&|\|\||[<>]=?|[=!]=", self.text(left, right))
        return (found.group(), (left + found.start(), left + found.end())) if found else (None, None)

    def visit(self, cursor, logical=False):
        if cursor.kind in SKIPPED or self.is_constexpr(cursor):
            return
        children = list(cursor.get_children())
        self.mutate(cursor, children, logical)
        condition = self.condition(cursor, children)
        for index, child in enumerate(children):
            is_operand = cursor.kind in (Kind.PAREN_EXPR, Kind.UNEXPOSED_EXPR) and logical
            is_part = self.is_logical(cursor) or self.is_not(cursor)
            self.visit(child, index == condition or is_operand or is_part)

    def is_constexpr(self, cursor):
        if cursor.kind != Kind.VAR_DECL:
            return False
        return "constexpr" in [token.spelling for token in cursor.get_tokens()][:3]

    def condition(self, cursor, children):
        if cursor.kind == Kind.IF_STMT and children and children[0].kind == Kind.DECL_STMT:
            return -1
        if cursor.kind == Kind.RETURN_STMT and children:
            return 0 if children[0].type.spelling in ("bool", "BOOL") else -1
        return CONDITIONS.get(cursor.kind, -1)

    def is_logical(self, cursor):
        return cursor.kind == Kind.BINARY_OPERATOR and self.operator(cursor)[0] in ("&&", "||")

    def is_not(self, cursor):
        return cursor.kind == Kind.UNARY_OPERATOR and self.text(*self.span(cursor)).startswith("!")

    def mutate(self, cursor, children, logical):
        kind = cursor.kind
        compares = kind == Kind.CALL_EXPR and cursor.spelling in ("operator==", "operator!=")
        if kind == Kind.BINARY_OPERATOR or compares:
            sign, place = self.operator(cursor)
            if sign in ORDER:
                self.add(cursor, ORDER[sign], "the bound on the other side", place)
            elif sign in ("&&", "||"):
                self.add(cursor, "both" if sign == "&&" else "either", "and for or", place)
            if sign in ORDER or sign in ("==", "!="):
                self.add(cursor, "flip", "the opposite")
        elif kind == Kind.INTEGER_LITERAL and self.text(*self.span(cursor))[:1].isdigit():
            self.add(cursor, "more", "one more")
        elif self.text(*self.span(cursor)) in ("true", "false", "YES", "NO"):
            self.add(cursor, "flip", "the opposite")
        elif kind == Kind.DECL_REF_EXPR and self.text(*self.span(cursor)).startswith("VyStatus::"):
            self.add(cursor, "more", "another status")
        elif logical and kind not in (Kind.PAREN_EXPR, Kind.UNEXPOSED_EXPR) and \
                not self.is_not(cursor) and kind.is_expression():
            self.add(cursor, "flip", "the opposite")

    def drop(self, lines):
        """Takes out the mutants on these lines, which do not compile."""
        self.mutants = [each for each in self.mutants if each.line not in lines]

    def write(self):
        events = []
        for mutant in self.mutants:
            wrap, *operators = self.edits[mutant.number]
            start, end, opening, closing = wrap
            # At one place what is inside is closed first and opened last. Of two calls
            # around the same the later one is outside.
            events.append((end, 0, end - start, mutant.number, 0, closing))
            events.append((start, 2, start - end, -mutant.number, 0, opening))
            for begin, stop, text in operators:
                events.append((begin, 1, 0, 0, stop - begin, text))
        result, at = [], 0
        for place, _, _, _, length, text in sorted(events):
            result += [self.bytes[at:place], text.encode()]
            at = place + length
        self.path.write_bytes(b"".join(result + [self.bytes[at:]]))
