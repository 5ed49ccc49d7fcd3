"""The single changes that can be made to a C++ source, found token by token.

Our layout (clang-format) tells what a parser would have to: what is written with a blank on both
sides is an operator of two operands, not a template's bracket, a pointer or a reference. A change
that does not compile costs a compilation and is not counted, so nothing here has to be exact.
"""

import re
from typing import Iterator, NamedTuple


class Change(NamedTuple):
    kind: str
    start: int  # Of what is replaced, in the text of the file.
    end: int
    text: str  # What stands there instead.


KINDS = ('condition', 'relation', 'logic', 'constant', 'return', 'statement', 'text', 'arithmetic')

TOKEN = re.compile(r'''
    (?P<skip>//[^\n]*|/\*.*?\*/|\s+|^[ \t]*\#(?:[^\\\n]|\\.)*)
  | (?P<text>(?:u8|[uUL])?"(?:[^"\\]|\\.)*")
  | (?P<char>(?:u8|[uUL])?'(?:[^'\\]|\\.)*')
  | (?P<number>(?:0[xX][0-9a-fA-F']+|\d[\d']*)[uUlL]*)
  | (?P<word>[A-Za-z_]\w*)
  | (?P<sign><=>|<<=|>>=|\.\.\.|::|->|\+\+|--|&&|\|\||[-+*/%&|^=!<>]=|<<|>>|.)
''', re.VERBOSE | re.DOTALL | re.MULTILINE)

RELATIONS = {'<': '<=', '<=': '<', '>': '>=', '>=': '>', '==': '!=', '!=': '=='}
LOGIC = {'&&': '||', '||': '&&'}
ARITHMETIC = {'+': '-', '-': '+', '*': '/', '/': '*', '%': '*', '&': '|', '|': '&',
              '+=': '-=', '-=': '+=', '++': '--', '--': '++'}
OPENING = {'(': ')', '[': ']', '{': '}'}
NOT_CODE = {'class', 'struct', 'union', 'enum', 'namespace'}
NO_CALL = {'return', 'throw', 'delete', 'case', 'using', 'goto', 'static_assert', 'else', 'do', 'if',
           'for', 'while', 'switch', 'default', 'try', 'catch', 'template', 'typedef', 'break',
           'continue', 'public', 'private', 'protected', 'explicit', 'friend', 'operator'}
NOTHING = {'{}', 'nullptr', '0', 'false', '""', 'std::nullopt', '*this'}


class Token(NamedTuple):
    kind: str
    text: str
    start: int
    end: int


class Source:
    def __init__(self, text: str):
        self.text = text
        self.tokens = [Token(m.lastgroup, m.group(), m.start(), m.end())
                       for m in TOKEN.finditer(text) if m.lastgroup != 'skip']
        self.partner = {}  # From each bracket to the one that it goes with.
        self.is_code = []  # For each token: whether it stands in the body of a function.
        self._match()

    def _match(self):
        """Finds the pairs of brackets, and which braces are the bodies of functions."""
        opened, head, scopes = [], [], [False]
        for i, token in enumerate(self.tokens):
            self.is_code.append(scopes[-1])
            if token.text in OPENING:
                opened.append(i)
            elif token.text in OPENING.values() and opened:
                other = opened.pop()
                self.partner[i], self.partner[other] = other, i
            if token.text == '{':
                scopes.append(scopes[-1] or (')' in head and not NOT_CODE & set(head)))
            elif token.text == '}' and len(scopes) > 1:
                scopes.pop()
            head = [] if token.text in ';{}' else head + [token.text]

    def at(self, i: int) -> str:
        return self.tokens[i].text if 0 <= i < len(self.tokens) else ''

    def between(self, i: int, j: int) -> str:
        """What stands between two tokens."""
        return self.text[self.tokens[i].end:self.tokens[j].start]

    def is_spaced(self, i: int) -> bool:
        """Whether there is a blank on both sides, as around operators of two operands."""
        token = self.tokens[i]
        return self.text[token.start - 1:token.start] in (' ', '\n') and \
            self.text[token.end:token.end + 1] in (' ', '\n')

    def split(self, first: int, last: int, at: str) -> list:
        """The places of `at` among the tokens, inside no further bracket."""
        found, i = [], first
        while i < last:
            if self.at(i) == at:
                found.append(i)
            i = self.partner.get(i, i) + 1 if self.at(i) in OPENING else i + 1
        return found

    def changes(self) -> Iterator[Change]:
        for i, token in enumerate(self.tokens):
            if token.kind == 'word':
                yield from self._of_word(i)
            elif token.kind == 'number':
                yield from self._of_number(i)
            elif token.kind in ('text', 'char'):
                yield from self._of_text(i)
            else:
                yield from self._of_sign(i)
            if self.is_code[i]:
                yield from self._of_statement(i)

    def _replace(self, kind: str, i: int, text: str) -> Change:
        return Change(kind, self.tokens[i].start, self.tokens[i].end, text)

    def _of_word(self, i: int) -> Iterator[Change]:
        word = self.at(i)
        if word in ('true', 'false'):
            yield self._replace('constant', i, 'false' if word == 'true' else 'true')
        elif word in ('if', 'while', 'for') and self.at(i + 1) == '(':
            yield from self._of_condition(i + 1, word == 'for')
        elif word == 'return':
            end = self.split(i, len(self.tokens), ';')[0]
            value = self.between(i, end).strip()
            if value and value not in NOTHING:
                yield Change('return', self.tokens[i].end, self.tokens[end].start, ' {}')

    def _of_condition(self, opening: int, is_for: bool) -> Iterator[Change]:
        closing = self.partner[opening]
        parts = self.split(opening + 1, closing, ';')
        if is_for and len(parts) != 2:
            return
        first = parts[0] if parts else opening
        last = parts[1] if is_for else closing
        start, end = self.tokens[first].end, self.tokens[last].start
        condition = self.text[start:end].strip()
        declared = re.match(r'[^=(]*[\s*&](\w+) = ', condition)
        if declared and not is_for:
            yield Change('condition', start, end, f'{condition}; !{declared[1]}')
        elif condition and not re.fullmatch(r'![^&|?]*', condition):  # (There the ! goes, below.)
            yield Change('condition', start, end, f' !({condition})')

    def _of_number(self, i: int) -> Iterator[Change]:
        if self.at(i) == '0' and self.at(i - 1) == '=' and self.at(i + 1) == ';' and \
                self.at(i - 2) in (')', 'const', 'override', 'noexcept'):
            return  # A function that is nowhere defined.
        yield self._replace('constant', i, f'({self.at(i)} + 1)')
        if self.at(i) != '0':
            yield self._replace('constant', i, f'({self.at(i)} - 1)')

    def _of_text(self, i: int) -> Iterator[Change]:
        text = self.at(i)
        if self.at(i - 1) == 'extern':
            return
        # The first character becomes another.
        quote = text.index(text[-1]) + 1
        first = 4 if text[quote:].startswith('\\x') else 2 if text[quote] == '\\' else 1
        rest = '"' if len(text) == quote + 1 else text[quote + first:]
        other = chr(ord(text[quote]) + 1) if text[-1] == "'" and first == 1 else '~'
        yield self._replace('text', i, text[:quote] + other + rest)

    def _of_sign(self, i: int) -> Iterator[Change]:
        sign = self.at(i)
        if sign == '!' and self.at(i - 1) != 'operator':
            yield self._replace('condition', i, '')
        elif sign in ('++', '--') and self.at(i - 1) != 'operator':
            yield self._replace('arithmetic', i, ARITHMETIC[sign])
        elif not self.is_spaced(i):
            return
        elif sign == '?':
            yield self._replace('condition', i, '== false ?')
        else:
            for kind, table in (('relation', RELATIONS), ('logic', LOGIC),
                                ('arithmetic', ARITHMETIC)):
                if sign in table:
                    yield self._replace(kind, i, table[sign])

    def _begins_statement(self, i: int) -> bool:
        before = self.at(i - 1)
        if before == ')':
            return self.at(self.partner.get(i - 1, 0) - 1) in ('if', 'for', 'while', 'switch')
        return before in (';', '{', '}', 'else', 'do')

    def _of_statement(self, i: int) -> Iterator[Change]:
        """Calls, assignments and what is streamed: a name, its parts, then an end or an operator."""
        if not self._begins_statement(i) or self.at(i) in NO_CALL:
            return
        end = i
        while self.at(end) in ('++', '--', '*'):
            end += 1
        if self.tokens[end].kind != 'word':
            return
        end += 1
        while self.at(end) in ('.', '->', '::', '(', '['):
            end = self.partner.get(end, end + 1) + 1 if self.at(end) in '([' else end + 2
        is_call = self.at(end) == ';' and end > i + 1
        is_set = self.at(end) in ('=', '+=', '-=', '|=', '&=', '<<', '++', '--')
        if not is_call and not is_set:
            return
        ends = self.split(end, len(self.tokens), ';')
        if ends:
            yield Change('statement', self.tokens[i].start, self.tokens[ends[0]].end, '{}')


def changes_of(text: str) -> list:
    return list(Source(text).changes())
