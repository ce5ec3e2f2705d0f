"""Walks the syntax tree of one file and names the places where it can be changed.

Only what runs in functions: a constexpr one is left out, since its callers need constants. A place that must be a constant
after all does not compile, and is dropped then.
"""

import hashlib
import re

from clang.cindex import CursorKind as Kind
from clang.cindex import Index, TranslationUnit, TypeKind

COMPARISONS = {"<": "<=", "<=": "<", ">": ">=", ">=": ">", "==": "!=", "!=": "=="}
LOGIC = {"&&": "||", "||": "&&"}
ARITHMETIC = {"+": "-", "-": "+", "*": "/", "/": "*", "%": "/", "&": "|", "|": "&", "<<": ">>", ">>": "<<"}
ASSIGNMENTS = {"+=": "-=", "-=": "+=", "|=": "&=", "&=": "|=", "*=": "/=", "/=": "*=", "<<=": ">>=", ">>=": "<<="}
FUNCTIONS = {Kind.FUNCTION_DECL, Kind.CXX_METHOD, Kind.CONSTRUCTOR, Kind.DESTRUCTOR, Kind.FUNCTION_TEMPLATE, Kind.CONVERSION_FUNCTION}
BODIES = {Kind.COMPOUND_STMT, Kind.CXX_TRY_STMT}
REMOVABLE = {Kind.CALL_EXPR, Kind.UNEXPOSED_EXPR, Kind.BINARY_OPERATOR, Kind.COMPOUND_ASSIGNMENT_OPERATOR,
             Kind.UNARY_OPERATOR, Kind.BREAK_STMT, Kind.CONTINUE_STMT, Kind.CXX_DELETE_EXPR}
NUMBERS = {TypeKind.BOOL, TypeKind.CHAR_U, TypeKind.UCHAR, TypeKind.CHAR16, TypeKind.CHAR32, TypeKind.USHORT, TypeKind.UINT,
           TypeKind.ULONG, TypeKind.ULONGLONG, TypeKind.CHAR_S, TypeKind.SCHAR, TypeKind.WCHAR, TypeKind.SHORT, TypeKind.INT,
           TypeKind.LONG, TypeKind.LONGLONG, TypeKind.FLOAT, TypeKind.DOUBLE, TypeKind.POINTER}


def places(root, file, text, arguments):
    """@param text  the file's bytes as Latin-1, so that an offset is a byte"""
    unit = Index.create().parse(str(root / file), args=arguments,
                                options=TranslationUnit.PARSE_DETAILED_PROCESSING_RECORD)
    errors = [message for message in unit.diagnostics if message.severity >= 3]
    if errors:
        raise SystemExit(f"mutate: {file} is not understood: {errors[0]}")
    return Finder(unit, file, text).places()


class Finder:
    def __init__(self, unit, file, text):
        self.unit = unit
        self.file = file
        self.text = text
        self.found = {}
        self.function = ""
        self.body = ""
        self.returns_bool = False
        self.macros = [(cursor.extent.start.offset, cursor.extent.end.offset) for cursor in unit.cursor.get_children()
                       if cursor.kind == Kind.MACRO_INSTANTIATION and self.is_here(cursor)]

    def places(self):
        self.find_functions(self.unit.cursor)
        return [self.found[key] for key in sorted(self.found)]

    def is_here(self, cursor):
        return cursor.location.file is not None and cursor.location.file.name.endswith("/" + self.file)

    def span(self, cursor):
        return cursor.extent.start.offset, cursor.extent.end.offset

    def source(self, cursor):
        start, end = self.span(cursor)
        return self.text[start:end]

    def find_functions(self, parent):
        for cursor in parent.get_children():
            if cursor.kind == Kind.MACRO_INSTANTIATION or not self.is_here(cursor):
                continue
            if cursor.kind in FUNCTIONS:
                self.visit_function(cursor)
            else:
                self.find_functions(cursor)

    def visit_function(self, cursor):
        children = list(cursor.get_children())
        if not children or children[-1].kind not in BODIES:
            return
        body = children[-1]
        head = self.text[cursor.extent.start.offset:body.extent.start.offset]
        if re.search(r"\b(constexpr|consteval)\b", head):
            return
        parent = cursor.semantic_parent
        owner = f"{parent.spelling}::" if parent.kind in (Kind.CLASS_DECL, Kind.STRUCT_DECL) else ""
        self.function = owner + cursor.spelling
        self.body = hashlib.sha256(" ".join(self.source(cursor).split()).encode()).hexdigest()[:12]
        self.returns_bool = cursor.result_type.get_canonical().kind == TypeKind.BOOL
        self.visit(body)

    def visit(self, cursor):
        kind = cursor.kind
        children = list(cursor.get_children())
        if kind == Kind.LAMBDA_EXPR:
            outer, self.returns_bool = self.returns_bool, False
            self.visit_all(children)
            self.returns_bool = outer
            return
        if kind == Kind.DECL_STMT and re.match(r"(static|constexpr)\b", self.source(cursor)):
            return
        if kind == Kind.CASE_STMT:
            children = children[1:]
        self.find_statements(kind, children)
        self.find_condition(cursor, kind, children)
        self.find_operator(cursor, kind, children)
        self.find_constant(cursor, kind)
        self.visit_all(children)

    def visit_all(self, cursors):
        for cursor in cursors:
            self.visit(cursor)

    def add(self, kind, span, after):
        start, end = span
        before = self.text[start:end]
        # A macro may hold anything: it is left whole, inside or outside.
        cut = any(first < start < last or first < end < last or (first <= start and end <= last)
                  for first, last in self.macros)
        if cut or start >= end:
            return
        first_line = self.text.count("\n", 0, start) + 1
        self.found.setdefault((start, -end, kind, after), {
            "file": self.file, "function": self.function, "kind": kind, "line": first_line,
            "last_line": first_line + before.count("\n"), "start": start, "end": end, "before": before, "after": after,
            "body": self.body})

    def find_statements(self, kind, children):
        if kind in (Kind.COMPOUND_STMT, Kind.CASE_STMT, Kind.DEFAULT_STMT):
            statements = children
        elif kind == Kind.IF_STMT:
            statements = children[1:]
        elif kind in (Kind.FOR_STMT, Kind.WHILE_STMT, Kind.CXX_FOR_RANGE_STMT):
            statements = children[-1:]
        else:
            return
        for statement in statements:
            start, end = self.span(statement)
            semicolon = re.match(r"\s*;", self.text[end:])
            bare_return = statement.kind == Kind.RETURN_STMT and self.text[start:end] == "return"
            # Room that is made beforehand changes nothing but the time.
            only_speed = re.search(r"[.>](reserve|shrink_to_fit)\([^;]*$", self.text[start:end])
            if semicolon and (statement.kind in REMOVABLE or bare_return) and not only_speed:
                self.add("statement", (start, end + semicolon.end()), "nothing")

    def find_condition(self, cursor, kind, children):
        if kind in (Kind.IF_STMT, Kind.CONDITIONAL_OPERATOR) and children:
            condition = children[0]
            lead = self.text[cursor.extent.start.offset:condition.extent.start.offset]
            if condition.kind in (Kind.DECL_STMT, Kind.VAR_DECL) or "constexpr" in lead or ";" in lead:
                return
            self.negate("condition", condition)
        elif kind == Kind.RETURN_STMT and self.returns_bool and children:
            self.negate("result", children[0])

    def negate(self, kind, condition):
        text = self.source(condition)
        # The opposite of a single comparison, or of a constant, is found by itself.
        if text in ("true", "false") or (re.search(r"[!=]=", text) and not re.search(r"&&|\|\||\[", text)):
            return
        self.add(kind, self.span(condition), f"!({text})")

    def find_operator(self, cursor, kind, children):
        if kind == Kind.UNARY_OPERATOR:
            self.find_step(cursor)
            return
        if kind == Kind.CALL_EXPR and cursor.spelling.startswith("operator"):
            children = [child for child in children if not child.spelling.startswith("operator") or self.span(child)[1] - self.span(child)[0] > 3]
            children.sort(key=self.span)
        elif kind not in (Kind.BINARY_OPERATOR, Kind.COMPOUND_ASSIGNMENT_OPERATOR):
            return
        if len(children) != 2:
            return
        left, right = self.span(children[0])[1], self.span(children[1])[0]
        operator = re.sub(r"//[^\n]*|/\*.*?\*/", "", self.text[left:right], flags=re.S).strip()
        for name, table in (("comparison", COMPARISONS), ("logic", LOGIC), ("arithmetic", ARITHMETIC), ("arithmetic", ASSIGNMENTS)):
            number = cursor.type.get_canonical().kind in NUMBERS
            if operator in table and (name != "arithmetic" or (number and kind != Kind.CALL_EXPR)):
                start, end = self.span(cursor)
                changed = self.text[left:right].replace(operator, table[operator], 1)
                self.add(name, (start, end), self.text[start:left] + changed + self.text[right:end])

    def find_step(self, cursor):
        text = self.source(cursor)
        for step, other in (("++", "--"), ("--", "++")):
            if text.startswith(step):
                self.add("arithmetic", self.span(cursor), other + text[2:])
            elif text.endswith(step):
                self.add("arithmetic", self.span(cursor), text[:-2] + other)

    def find_constant(self, cursor, kind):
        text = self.source(cursor)
        if kind == Kind.CXX_BOOL_LITERAL_EXPR:
            self.add("constant", self.span(cursor), {"true": "false", "false": "true"}.get(text, text))
        elif kind == Kind.INTEGER_LITERAL:
            self.add("constant", self.span(cursor), f"{text} + 1")
        elif kind == Kind.CHARACTER_LITERAL:
            self.add("constant", self.span(cursor), f"decltype({text})({text} + 1)")
        elif kind == Kind.STRING_LITERAL and re.fullmatch(r'u?8?"[^"\n]*"', text):
            self.add("constant", self.span(cursor), '"?"' if text == '""' else '""')
