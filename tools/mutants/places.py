"""Finds the places of a source that can be changed, with libclang."""

from dataclasses import dataclass, field

from clang import cindex
from clang.cindex import CursorKind as Kind
from clang.cindex import TypeKind

NEGATED = {'==': '!=', '!=': '==', '<': '>=', '>': '<=', '<=': '>', '>=': '<'}
BOUNDS = {'<': ('Less', '<='), '>': ('Greater', '>='), '<=': ('NotGreater', '<'), '>=': ('NotLess', '>')}
LOGICAL = {'&&': '||', '||': '&&'}
ARITHMETIC = {'+': ('Sum', '-'), '-': ('Difference', '+'), '*': ('Product', '/'), '/': ('Quotient', '*'),
              '%': ('Rest', '*')}
ASSIGNING = {'+=': ('Raise', '-='), '-=': ('Lower', '+=')}

NUMBERS = {TypeKind.INT, TypeKind.UINT, TypeKind.LONG, TypeKind.ULONG, TypeKind.LONGLONG, TypeKind.ULONGLONG,
           TypeKind.SHORT, TypeKind.USHORT, TypeKind.DOUBLE, TypeKind.FLOAT, TypeKind.CHAR_S, TypeKind.SCHAR,
           TypeKind.UCHAR}
# What the compiler must know cannot be chosen at run time.
FIXED = {Kind.CASE_STMT, Kind.STATIC_ASSERT, Kind.ENUM_CONSTANT_DECL, Kind.FIELD_DECL, Kind.PARM_DECL,
         Kind.TEMPLATE_TYPE_PARAMETER, Kind.TEMPLATE_NON_TYPE_PARAMETER}


@dataclass
class Mutant:
    line: int
    last_line: int
    text: str    # the expression
    change: str  # "< becomes <="
    edits: list = field(default_factory=list)  # (offset, length, text with {id}); an end counts before a start


def is_constexpr(cursor):
    if cursor.kind not in (Kind.VAR_DECL, Kind.FUNCTION_DECL, Kind.CXX_METHOD):
        return False
    names = []
    for token in cursor.get_tokens():
        if token.spelling in ('{', '(', '=', ';'):
            break
        names.append(token.spelling)
    return 'constexpr' in names or 'consteval' in names


class Places:
    """The mutants of one file. Edits of nested expressions fit into one another."""

    def __init__(self, path, arguments):
        self.path = path
        self.bytes = open(path, 'rb').read()
        self.unit = cindex.Index.create().parse(path, args=arguments)
        self.mutants = []

    def find(self):
        for cursor in self.unit.cursor.get_children():
            if cursor.location.file and cursor.location.file.name == self.path:
                self.visit(cursor)
        return self.mutants

    def visit(self, cursor):
        if cursor.kind in FIXED or is_constexpr(cursor):
            return
        self.take_binary(cursor)
        self.take_constant(cursor)
        self.take_condition(cursor)
        if cursor.kind == Kind.UNARY_OPERATOR and self.text(cursor).startswith('!'):
            self.negate(cursor, '! is left out')
        for child in cursor.get_children():
            if not (cursor.kind == Kind.VAR_DECL and child.kind == Kind.INTEGER_LITERAL
                    and cursor.type.kind == TypeKind.CONSTANTARRAY):
                self.visit(child)

    def span(self, cursor):
        return cursor.extent.start.offset, cursor.extent.end.offset

    def text(self, cursor):
        start, end = self.span(cursor)
        return self.bytes[start:end].decode()

    def add(self, cursor, change, edits):
        self.mutants.append(Mutant(cursor.extent.start.line, cursor.extent.end.line, ' '.join(self.text(cursor).split()), change, edits))

    def wrap(self, cursor, before, after):
        start, end = self.span(cursor)
        return [(start, 0, before), (end, 0, after)]

    def negate(self, cursor, change):
        self.add(cursor, change, self.wrap(cursor, '(mutants::Is({id}) != static_cast<bool>(', '))'))

    def take_binary(self, cursor):
        if cursor.kind not in (Kind.BINARY_OPERATOR, Kind.COMPOUND_ASSIGNMENT_OPERATOR, Kind.CALL_EXPR):
            return
        children = list(cursor.get_children())
        if cursor.kind == Kind.CALL_EXPR:
            if len(children) != 3 or not cursor.spelling.startswith('operator'):
                return
            children = [children[0], children[2]]
        if len(children) != 2:
            return
        gap = self.span(children[0])[1], self.span(children[1])[0]
        operator = self.bytes[gap[0]:gap[1]].decode().strip() if gap[0] < gap[1] else ''
        self.take_operator(cursor, operator, gap, children)

    def take_operator(self, cursor, operator, gap, operands):
        start, end = self.span(cursor)
        numbers = all(one.type.get_canonical().kind in NUMBERS for one in operands)
        whole = (gap[0], gap[1] - gap[0])

        def call(name, becomes):
            self.add(cursor, f'{operator} becomes {becomes}',
                     [(start, 0, f'mutants::{name}({{id}}, '), (*whole, ', '), (end, 0, ')')])

        if operator in NEGATED:
            self.negate(cursor, f'{operator} becomes {NEGATED[operator]}')
        if operator in BOUNDS:
            call(*BOUNDS[operator])
        if operator in LOGICAL:
            self.add(cursor, f'{operator} becomes {LOGICAL[operator]}', [
                (start, 0, '(mutants::Is({id}) != ((mutants::Is({id}) != static_cast<bool>('),
                (*whole, f')) {operator} (mutants::Is({{id}}) != static_cast<bool>('), (end, 0, '))))')])
        if numbers and operator in ARITHMETIC:
            call(*ARITHMETIC[operator])
        if numbers and operator in ASSIGNING:
            call(*ASSIGNING[operator])

    def take_constant(self, cursor):
        if cursor.kind in (Kind.INTEGER_LITERAL, Kind.FLOATING_LITERAL) and self.text(cursor)[:1].isdigit():
            self.add(cursor, 'is one more', self.wrap(cursor, 'mutants::Constant({id}, ', ')'))
        if cursor.kind == Kind.CXX_BOOL_LITERAL_EXPR and self.text(cursor) in ('true', 'false'):
            self.negate(cursor, 'is the other')
        if cursor.kind == Kind.DECL_REF_EXPR and cursor.type.get_canonical().kind in NUMBERS:
            named = cursor.referenced
            if named is not None and named.kind == Kind.VAR_DECL and is_constexpr(named):
                self.add(cursor, 'is one more', self.wrap(cursor, 'mutants::Constant({id}, ', ')'))

    def take_condition(self, cursor):
        """A condition that is a call or a variable; the others hold an operator."""
        if cursor.kind not in (Kind.IF_STMT, Kind.CONDITIONAL_OPERATOR):
            return
        first = next(iter(cursor.get_children()), None)
        if first is None or not first.kind.is_expression() or first.type.get_canonical().kind != TypeKind.BOOL:
            return
        text = self.text(first)
        if not text.startswith('!') and not any(f' {operator} ' in text for operator in [*NEGATED, *LOGICAL]):
            self.negate(first, 'the condition is turned')


def rewritten(source, mutants):
    """The source with all the mutants, given as (number, mutant). No line moves."""
    edits = []
    for order, (number, mutant) in enumerate(mutants):
        size = mutant.edits[-1][0] - mutant.edits[0][0]
        for offset, length, text in mutant.edits:
            is_end = offset != mutant.edits[0][0] and length == 0
            # At one place, ends of inner expressions come first, then starts of outer ones.
            if length:
                key = (offset, 1, 0, 0)
            else:
                key = (offset, 0, size, -order) if is_end else (offset, 2, -size, order)
            edits.append((key, offset, length, text.replace('{id}', str(number))))
    result, at = [], 0
    for key, offset, length, text in sorted(edits, key=lambda edit: edit[0]):
        result.append(source[at:offset])
        result.append(text.encode() + b'\n' * source[offset:offset + length].count(b'\n'))
        at = max(at, offset + length)
    result.append(source[at:])
    return b''.join(result)
