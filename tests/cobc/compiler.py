"""Asks the compiler where it puts the items of programs, by the C text that it translates them to.

Items that statements show stand there with size, place and kind; those without a name, which no
statement can show, in the dump that the compiler makes code for.
"""

import re
import subprocess
from pathlib import Path
from typing import Dict, List, NamedTuple, Optional, Tuple

from writer import Source

COMMAND = ['cobc', '-w', '-C', '-fdump=ALL',
           # These allow more, and change no place.
           '-findirect-redefines', '-flarger-redefines-ok', '-frelax-level-hierarchy']
BATCH = 50
SECONDS = 60  # For a batch of programs; what takes longer hangs, and each of them is asked for alone
SECONDS_ALONE = 10
TOO_LONG = 'takes too long'

ATTRIBUTE = re.compile(r'cob_field_attr (a_\d+) =\s*\{(\w+),\s*(\d+),\s*(-?\d+), (\w+),')
FIELD = re.compile(r'cob_field (f_\d+)\s*= \{(.*), (.*), &(a_\d+)\};')
DUMPED = re.compile(r'cob_dump_field_ext \(\s*(\d+), "([^"]*)", (.*)\);')
STORAGE = re.compile(r'cob_u8_t\s+(b_\d+)\[(\d+)\]')
PLACE = re.compile(r'\b(b_\d+|cob_local_ptr)((?: \+ \d+)*)')


class Kind(NamedTuple):
    type: int
    digits: int
    scale: int
    flags: int


class Field(NamedTuple):
    base: str  # The storage it is in; its names mean nothing beyond the program.
    offset: int
    size: Optional[int]  # None: depends on more than is known.
    kind: Kind


class Told(NamedTuple):
    """What the compiler told of a program."""
    shown: List[Field]  # Of each statement that shows an item.
    dumped: List[Tuple[int, str, Field]]  # Level, name and place of what is dumped.
    storage: Dict[str, int]  # Bytes of each storage.
    error: str = ''


def arguments(text: str) -> List[str]:
    """The parts of a list with commas, whatever stands in parentheses."""
    parts, depth, begin = [], 0, 0
    for at, character in enumerate(text):
        if character in '({':
            depth += 1
        elif character in ')}':
            depth -= 1
        elif character == ',' and depth == 0:
            parts.append(text[begin:at].strip())
            begin = at + 1
    return parts + [text[begin:].strip()]


def split_top(text: str, separator: str) -> List[str]:
    """The operands of an operator with blanks around, whatever stands in parentheses."""
    parts, depth, begin = [], 0, 0
    for at, character in enumerate(text):
        if character == '(':
            depth += 1
        elif character == ')':
            depth -= 1
        elif character == separator and depth == 0 and text[at - 1:at] == ' ':
            parts.append(text[begin:at].strip())
            begin = at + 1
    return parts + [text[begin:].strip()]


class Reader:
    """Reads the C text of one program."""

    def __init__(self, folder: Path, name: str):
        self.code = (folder / f'{name}.c').read_text(errors='replace')
        header = (folder / f'{name}.c.h').read_text(errors='replace')
        local = (folder / f'{name}.c.l.h').read_text(errors='replace')
        self.kinds = {match[1]: Kind(int(match[2], 16), int(match[3]), int(match[4]), int(match[5], 16))
                      for match in ATTRIBUTE.finditer(header)}
        self.fields = {match[1]: (match[2], match[3], match[4]) for match in FIELD.finditer(header + local)}
        self.storage = {match[1]: int(match[2]) for match in STORAGE.finditer(header + local)}
        # The most that items hold which tables depend on, by place.
        self.most: Dict[Tuple[str, int], int] = {}

    def field(self, text: str) -> Field:
        if text.startswith('&f_'):
            size, data, kind = self.fields[text[1:]]
        else:
            function, inside = text.split(' (', 1) if ' (' in text.split('(')[0] + '(' else \
                text.split('(', 1)
            parts = arguments(inside.rstrip()[:-1])
            if function.strip() == 'COB_SET_DATA':
                size, _, kind = self.fields[parts[0]]
                data = parts[1]
            else:
                _, size, data, kind = parts
        base, offset = self.place(data)
        return Field(base, offset, self.number(size), self.kinds[kind.lstrip('&')])

    def place(self, text: str) -> Tuple[str, int]:
        base, offset = '', 0
        for term in split_top(text.replace('(cob_u8_t *)&', '').replace('(cob_u8_ptr)&', ''), '+'):
            if term.isdigit():
                offset += int(term)
            elif re.fullmatch(r'b_\d+|cob_local_ptr|NULL', term):
                base = term
            else:
                value = self.number(term)
                if value is None:
                    return 'unknown', 0
                offset += value
        return base, offset

    def number(self, text: str) -> Optional[int]:
        sum_ = 0
        for term in split_top(text, '+'):
            product = 1
            for factor in split_top(term, '*'):
                if factor.isdigit():
                    product *= int(factor)
                    continue
                value = self.counter(factor)
                if value is None:
                    return None
                product *= value
            sum_ += product
        return sum_

    def counter(self, text: str) -> Optional[int]:
        """What an item holds at most that a table depends on."""
        match = re.search(r'&(f_\d+)', text)
        if match and match[1] in self.fields:
            return self.most.get(self.place(self.fields[match[1]][1]))
        match = PLACE.search(text)
        return self.most.get(self.place(match[0])) if match else None

    def shown(self) -> List[str]:
        return [arguments(line.strip()[len('cob_display ('):-2])[3]
                for line in self.code.splitlines() if line.strip().startswith('cob_display (')]

    def dumped(self) -> List[Tuple[int, str, str]]:
        found = []
        for match in DUMPED.finditer(self.code):
            if int(match[1]):
                found.append((int(match[1]), match[2], arguments(match[3])[0]))
        return found


class Compiler:
    def __init__(self, options: List[str]):
        self.options = options

    def ask(self, folder: Path, sources: Dict[str, Source], options: Dict[str, List[str]],
            counters: Dict[str, Dict[int, int]]) -> Dict[str, Told]:
        """What is told of programs whose files are written into the folder. Of each, further options
        and the most of the items that tables depend on, by the number of the statement that shows
        them."""
        batches: Dict[Tuple[str, ...], List[str]] = {}
        for name in sources:
            batches.setdefault(tuple(options[name]), []).append(name)
        for further, names in batches.items():
            for begin in range(0, len(names), BATCH):
                self.run(folder, names[begin:begin + BATCH], further)
        told = {}
        for name, source in sources.items():
            if (folder / f'{name}.c.l.h').exists():
                told[name] = self.read(folder, name, source, counters[name])
            else:
                error = self.run(folder, [name], options[name])
                told[name] = self.read(folder, name, source, counters[name]) if not error else \
                    Told([], [], {}, error)
        return told

    def run(self, folder: Path, names, further) -> str:
        try:
            result = subprocess.run([*COMMAND, *self.options, *further, *(f'{name}.cob' for name in names)],
                                    cwd=folder, capture_output=True, text=True, errors='replace',
                                    timeout=SECONDS if len(names) > 1 else SECONDS_ALONE,
                                    check=False)
        except subprocess.TimeoutExpired:
            return TOO_LONG
        return '' if result.returncode == 0 else (result.stderr.strip() or 'fails')

    @staticmethod
    def read(folder: Path, name: str, source: Source, counters: Dict[int, int]) -> Told:
        reader = Reader(folder, name)
        shown = reader.shown()
        if len(shown) != len(source.shown):
            return Told([], [], {}, f'shows {len(shown)} items, not {len(source.shown)}')
        for number, most in counters.items():
            field = reader.field(shown[number])
            reader.most[field.base, field.offset] = most
        fields = [reader.field(text) for text in shown]
        dumped = []
        for level, called, text in reader.dumped():
            field = reader.field(text)
            if field.base != 'NULL':
                dumped.append((level, called, field))
        return Told(fields, dumped, reader.storage)
