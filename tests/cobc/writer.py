"""Writes a program down: in fixed or free format, with what a source may have besides its entries.

A file that holds it all comes first; copybooks behind it. Statements that show every item are put
into the procedure division of what the compiler is given.
"""

from random import Random
from typing import Dict, List, NamedTuple, Optional, Tuple

from entries import Entry, Program, Section, items_of, references_of

CLAUSE = Tuple[str, ...]  # Words that stand one behind the other; lines may break between any two.


class Source(NamedTuple):
    files: Dict[str, str]  # The first is the program; the others are copybooks.
    shown: List[int]  # The numbers of the items that are shown, in their order.
    lines: Dict[int, int]  # Of entries that stand in the program itself: id() to line.


class Style:
    """How a program is written; everything plain when there is no seed."""

    def __init__(self, seed: int):
        self.rng = Random(seed)
        self.is_plain = seed == 0
        self.is_free = not self.is_plain and self.rng.random() < 0.3
        self.has_numbers = self.chance(0.2)
        self.has_comments = self.chance(0.4)
        self.has_debugging = self.chance(0.2)
        self.is_small = self.chance(0.25)
        self.is_mixed = self.chance(0.25)
        self.shuffles = self.chance(0.7)
        self.breaks = 0.2 if self.chance(0.3) else 0.0
        self.has_commas = self.chance(0.3)
        self.continues = self.chance(0.25)
        self.copies = self.chance(0.25)

    def chance(self, probability: float) -> bool:
        return not self.is_plain and self.rng.random() < probability

    def choice(self, plain: str, *others: str) -> str:
        return plain if self.is_plain else self.rng.choice((plain,) + others)

    def word(self, word: str) -> str:
        """A word of the language in some letters."""
        if self.is_small:
            return word.lower()
        return word.capitalize() if self.is_mixed and self.rng.random() < 0.5 else word


def clauses_of(entry: Entry, style: Style) -> List[CLAUSE]:
    """The clauses behind the name, REDEFINES first."""
    def words(text: str) -> CLAUSE:
        return tuple(style.word(word) for word in text.split())

    first: List[CLAUSE] = []
    rest: List[CLAUSE] = []
    if entry.redefines is not None:
        first.append(words('REDEFINES') + (entry.redefines.name,))
    if entry.typedef:
        first.append(words(style.choice('TYPEDEF', 'IS TYPEDEF')))
    if entry.like is not None:
        rest.append(words(entry.like_words) + (entry.like.name,))
    if entry.picture is not None:
        text = entry.picture.text
        if style.chance(0.1):
            text = text.lower() if 'K-' not in text else text
        clause = words(style.choice('PIC', 'PICTURE', 'PIC IS', 'PICTURE IS')) + (text,)
        # The compiler loses its way after a currency symbol that begins a line.
        rest.append((' '.join(clause),) if text[:1] == '$' else clause)
    if entry.usage:
        rest.append(words(style.choice('', 'USAGE', 'USAGE IS')) + words(entry.usage))
    if entry.sign:
        rest.append(words(style.choice('SIGN', 'SIGN IS', '')) + words(entry.sign))
    if entry.sync:
        rest.append(words(entry.sync))
    if entry.just:
        rest.append(words(style.choice('JUST', 'JUSTIFIED', 'JUST RIGHT', 'JUSTIFIED RIGHT')))
    if entry.blank:
        rest.append(words(style.choice('BLANK WHEN ZERO', 'BLANK ZERO', 'BLANK WHEN ZEROS')))
    if entry.occurs is not None:
        rest.append(occurs_of(entry, style))
    for flag in entry.flags:
        rest.append(words(style.choice(flag, f'IS {flag}') if flag != 'BASED' else flag))
    if entry.value:
        rest.append(words(style.choice('VALUE', 'VALUE IS')) + (entry.value,))
    if style.shuffles:
        style.rng.shuffle(rest)
    return first + rest


def occurs_of(entry: Entry, style: Style) -> CLAUSE:
    occurs = entry.occurs
    words = ['OCCURS']
    if occurs.depending is not None:
        words += [str(occurs.least), 'TO']
    words.append(occurs.written or str(occurs.most))
    words += style.choice('', 'TIMES').split()
    words = [style.word(word) if not word[0].isdigit() and word != occurs.written else word
             for word in words]
    if occurs.depending is not None:
        words += [style.word(word) for word in style.choice('DEPENDING ON', 'DEPENDING').split()]
        words.append(occurs.depending.name)
    if occurs.key is not None:
        words += [style.word(word) for word in style.choice(
            'ASCENDING KEY IS', 'ASCENDING', 'DESCENDING KEY').split()]
        words.append(occurs.key.name)
    if occurs.indexes:
        words += [style.word(word) for word in style.choice('INDEXED BY', 'INDEXED').split()]
        words += occurs.indexes
    return tuple(words)


def words_of(entry: Entry, style: Style) -> List[str]:
    """An entry without what is below it."""
    level = f'{entry.level:02d}' if not style.chance(0.2) else str(entry.level)
    if entry.kind == 'constant':
        if entry.level == 78:
            clauses = [(entry.name,), (style.word('VALUE'),) + tuple(entry.value.split())]
        else:
            clauses = [(entry.name,), (style.word('CONSTANT'), style.word('AS')) +
                       tuple(entry.value.split())]
    elif entry.kind == 'renames':
        first, last = entry.renamed
        clauses = [(entry.name,), (style.word('RENAMES'), first.name)]
        if last is not None:
            clauses.append((style.word(style.choice('THRU', 'THROUGH')), last.name))
    else:
        clauses = clauses_of(entry, style)
        name = entry.name or style.choice('FILLER', '')
        # Words that other compilers do not reserve are names where a name may stand.
        if clauses and clauses[0] and clauses[0][0].upper() in ('BIT', 'DOUBLE', 'FLOAT'):
            name = name or 'FILLER'
        clauses = [(name,)] * bool(name) + clauses
    words = [level]
    for clause in clauses:
        words += clause
        if style.has_commas and clause is not clauses[-1] and len(clause) > 1 and \
                style.chance(0.3):
            words[-1] += style.rng.choice(',;')
    words[-1] += '.'
    return words


def statements_of(entry: Entry, style: Style) -> List[List[str]]:
    """An entry and what is below it, an entry each."""
    found = [(entry, words_of(entry, style))]
    for condition in entry.conditions:
        words = ['88', condition.name, style.word(style.choice('VALUE', 'VALUE IS', 'VALUES ARE'))]
        found.append((None, words[:2] + words[2].split() + [condition.values[0] + '.']))
    for member in entry.members:
        found += statements_of(member, style)
    return found


class Lines:
    """The lines of a file in one of the formats."""

    def __init__(self, style: Style, is_free: bool, left: int = 0):
        self.style = style
        self.is_free = is_free
        self.lines: List[str] = []
        self.left = left

    def put(self, words: List[str], indent: int = 0) -> int:
        """Puts a statement onto lines of its own; answers the number of the first one."""
        style = self.style
        self.put_between()
        first = len(self.lines) + 1
        begin = ' ' * (indent if self.is_free else indent)
        text = begin
        for word in words:
            width = 70 if self.is_free else 65
            is_broken = style.chance(style.breaks)
            if text.strip() and (len(text) + 1 + len(word) > width or is_broken):
                if style.continues and not self.is_free and self.continued(text, word):
                    text = self.rest
                    continue
                self.line(text)
                text = begin + '    '
                if len(text) + len(word) > width:
                    text = ''
                self.put_between(0.3)
            text += (' ' if text.strip() else '') + word
        self.line(text)
        return first

    def continued(self, text: str, word: str) -> bool:
        """Breaks a word or literal at the end of the line."""
        room = 65 - len(text) - 1
        if room < 1 or len(word) - room < 2 or len(word) > 40:
            return False
        head, tail = word[:room], word[room:]
        is_literal = word[0] in '"\''
        if is_literal:
            quote = word[0]
            if quote in head[-1:] or tail[0] == quote or head.count(quote) != 1 or room < 2:
                return False
            self.line(text + ' ' + head)
            self.rest = '    ' + quote + tail
        else:
            if not word.rstrip('.').replace('-', '').isalnum() or tail[0] in '-.' or head[-1] in '-,;':
                return False
            self.line(text + ' ' + head)
            self.rest = '    ' + tail
        self.continuation = True
        return True

    def line(self, text: str, indicator: str = ' ') -> None:
        style = self.style
        if self.is_free:
            self.lines.append(text + self.trailing(text, 70))
            return
        if getattr(self, 'continuation', False) and indicator == ' ':
            indicator = '-'
            self.continuation = False
            begin = ' ' * 6 + indicator
            self.lines.append(begin + text)
            return
        number = f'{(len(self.lines) + 1) * 100 % 1000000:06d}' if style.has_numbers else ' ' * 6
        line = number + indicator + text
        if style.has_numbers and style.chance(0.3):
            line = f'{line:72}' + 'IDENTIF.'
        else:
            line += self.trailing(text, 60)
        self.lines.append(line.rstrip())

    def trailing(self, text: str, width: int) -> str:
        if self.style.has_comments and len(text) < width - 20 and self.style.chance(0.1):
            return ' *> 05 G PIC X.'
        return ''

    def put_between(self, probability: float = 0.15) -> None:
        """Lines that say nothing."""
        style = self.style
        if getattr(self, 'continuation', False):
            return
        if style.has_comments and style.chance(probability):
            text = style.rng.choice(('', ' 05 GHOST PIC X(10).', ' "an open quote', ' COPY NOTHING.', '*> x'))
            if self.is_free:
                self.lines.append(style.rng.choice(('', '  ')) + '*>' + text)
            else:
                self.lines.append(style.rng.choice(('      *', '      *', '      /', '000100*')) + text)
        if style.has_comments and style.chance(probability / 2):
            self.lines.append('')
        if style.has_debugging and not self.is_free and style.chance(probability / 2):
            self.lines.append('      D    05 GHOST PIC X(10).')


def copied(statements: List[Tuple[Optional[Entry], List[str]]], name: str, style: Style,
           is_free: bool) -> Tuple[List[str], str]:
    """A copybook of some entries: its COPY statement and its text."""
    way = style.rng.choice(('plain', 'tag', 'word', 'leading', 'picture'))
    book = Lines(style, is_free)
    replacing: List[str] = []
    names = [words[1] for entry, words in statements
             if entry is not None and entry.name and len(words) > 1]
    prefix = names[0].split('-')[0] if names else ''
    if not prefix or any(character.isdigit() for character in prefix):
        way = 'plain'
    written = [list(words) for _, words in statements]
    if way == 'tag':
        written = [[word.replace(prefix + '-', ':T:-') if word.startswith(prefix + '-') else word
                    for word in words] for words in written]
        replacing = ['REPLACING', '==:T:==', 'BY', f'=={prefix}==']
    elif way == 'leading':
        written = [['QQ' + word[len(prefix):] if word.startswith(prefix + '-') else word
                    for word in words] for words in written]
        replacing = ['REPLACING', 'LEADING', '==QQ==', 'BY', f'=={prefix}==']
    elif way == 'word':
        whole = names[0].rstrip('.,;')
        written = [['PLACE-HOLDER' + word[len(whole):] if word.rstrip('.,;') == whole else word
                    for word in words] for words in written]
        replacing = ['REPLACING', 'PLACE-HOLDER', 'BY', whole]
    for words in written:
        book.put(words, 4)
    quote = style.rng.choice(('', '"', "'"))
    statement = ['COPY', f'{quote}{name}{quote}'] + replacing
    statement[-1] += '.'
    return statement, '\n'.join(book.lines) + '\n'


def write(program: Program, shows: bool = True, procedure: Optional[List[List[str]]] = None) -> Source:
    style = Style(program.style)
    out = Lines(style, style.is_free)
    files: Dict[str, str] = {program.name + '.cob': ''}
    lines: Dict[int, int] = {}
    has_free_directive = style.is_free

    def put(text: str, indent: int = 0) -> None:
        out.put(text.split(), indent)

    if has_free_directive:
        out.lines.append('       >>SOURCE FORMAT IS FREE')
    put('IDENTIFICATION DIVISION.')
    put(f'PROGRAM-ID. {program.name}.')
    put('ENVIRONMENT DIVISION.')
    if program.is_comma or program.currency:
        put('CONFIGURATION SECTION.')
        put('SPECIAL-NAMES.')
        phrases = []
        if program.currency:
            phrases.append(f'CURRENCY SIGN IS "{program.currency}"')
        if program.is_comma:
            phrases.append('DECIMAL-POINT IS COMMA')
        put(' '.join(phrases) + '.', 4)
    names = [section.file for section in program.sections if section.name == 'FILE']
    if names:
        put('INPUT-OUTPUT SECTION.')
        put('FILE-CONTROL.')
        for name in names:
            put(f'SELECT {name} ASSIGN TO "{name}".', 4)
    put('DATA DIVISION.')
    previous: Optional[Section] = None
    books = 0
    for section in program.sections:
        if previous is None or previous.name != section.name:
            put(f'{section.name} SECTION.')
        previous = section
        if section.file:
            put(f'FD {section.file}.')
        statements: List[Tuple[Optional[Entry], List[str]]] = []
        for record in section.records:
            statements += statements_of(record, style)
        at = 0
        while at < len(statements):
            entry, words = statements[at]
            if style.copies and style.chance(0.12) and len(statements) - at > 1:
                end = min(len(statements), at + style.rng.randint(1, 8))
                books += 1
                name = f'{program.name}{chr(64 + books)}' if books < 27 else ''
                if name:
                    copy, text = copied(statements[at:end], name, style, style.is_free)
                    out.put(copy, 4)
                    files[name + '.cpy'] = text
                    at = end
                    continue
            line = out.put(words, 0 if words[0].lstrip('0') in ('1', '77', '78', '66') else 4)
            if entry is not None:
                lines[id(entry)] = line
            at += 1
    shown: List[int] = []
    style.has_comments = style.has_debugging = style.continues = False
    style.breaks = 0.0
    if shows:
        put('PROCEDURE DIVISION.')
        if procedure is not None:
            for statement in procedure:
                out.put(statement, 4)
        else:
            items = items_of(program)
            for number, reference in enumerate(references_of(items)):
                if reference is not None and not items[number].is_type:
                    out.put(['DISPLAY'] + reference.split() + ['UPON', 'SYSERR'], 4)
                    shown.append(number)
        put('GOBACK.', 4)
        put(f'END PROGRAM {program.name}.')
    files[program.name + '.cob'] = '\n'.join(out.lines) + '\n'
    return Source(files, shown, lines)
