"""Makes up programs that say much in their data divisions, the same for the same seed."""

from random import Random
from typing import Dict, FrozenSet, List, Optional

import pictures
from entries import Condition, Entry, Occurs, Picture, Program, Section
from usages import BY_WORD, USAGES, Usage

WORDS = ('AMOUNT', 'Branch', 'CUSTOMER', 'DATE-OF', 'entry', 'FLAG', 'GROSS', 'HOLDER', 'ITEM',
         'KEY-2', 'LIMIT-X', 'MONTH', 'NET', 'ORDER-NO', 'PART', 'QTY', 'RATE', 'STATE', 'TOTAL',
         'UNIT', 'VALUE-OF', 'WEIGHT', '2ND', 'Year')
MOST_DEPTH = 5


class Generator:
    def __init__(self, seed: str, name: str, without: FrozenSet[str] = frozenset()):
        self.rng = Random(seed)
        self.program = Program(name)
        self.without = without
        self.names = 0
        self.room = self.rng.choice((4, 8, 12, 20, 40))  # How many entries are still made.
        self.constants: Dict[str, int] = {}
        self.types: List[Entry] = []
        self.counters: List[Entry] = []
        self.most: Dict[int, int] = {}
        self.named: List[Entry] = []  # Complete records, to be the same as.
        self.section: Optional[Section] = None
        self.pending: List[Entry] = []  # Counters of tables in files.

    def make(self) -> Program:
        rng, program = self.rng, self.program
        program.style = rng.randint(1, 10 ** 9) if rng.random() < 0.9 else 0
        program.is_comma = rng.random() < 0.1
        program.currency = rng.choice('#FH~') if rng.random() < 0.1 else ''
        if rng.random() < 0.2 and 'slides' not in self.without:
            program.options.append('-fcomplex-odo')
        names = [name for name in ('FILE', 'WORKING-STORAGE', 'LOCAL-STORAGE', 'LINKAGE')
                 if rng.random() < {'FILE': 0.25, 'WORKING-STORAGE': 0.95, 'LOCAL-STORAGE': 0.15,
                                    'LINKAGE': 0.4}[name]] or ['WORKING-STORAGE']
        for name in names:
            for number in range(rng.randint(1, 2) if name == 'FILE' else 1):
                self.section = Section(name, file=f'{self.name("F")}' if name == 'FILE' else '')
                program.sections.append(self.section)
                self.fill(self.section, min(self.room, rng.randint(1, 20)), names[-1] == name)
        if self.pending:
            files = [section for section in program.sections if section.name == 'FILE']
            behind = program.sections[len(files):]
            if not behind or behind[0].name != 'WORKING-STORAGE':
                program.sections.insert(len(files), Section('WORKING-STORAGE'))
            program.sections[len(files)].records[:0] = self.pending
        return program

    def fill(self, section: Section, room: int, is_last: bool) -> None:
        rng = self.rng
        end = 0 if is_last else self.room - room
        while True:
            way = rng.random()
            if way < 0.12:
                self.add_constant(section)
            elif way < 0.2 and section.name == 'WORKING-STORAGE' and 'types' not in self.without:
                self.add_type(section)
            elif way < 0.35 and section.name != 'FILE':
                section.records.append(self.elementary(77, None, 0))
            else:
                self.add_record(section)
            if self.room <= end and any(entry.kind == 'item' for entry in section.records):
                break

    def name(self, word: str = '') -> str:
        self.names += 1
        return f'{word or self.rng.choice(WORDS)}-{self.names}'

    def chance(self, probability: float) -> bool:
        return self.rng.random() < probability

    # Constants, types, counters.

    def add_constant(self, section: Section) -> None:
        rng = self.rng
        value = rng.randint(1, 12)
        name = self.name('K')
        written = str(value)
        if self.constants and self.chance(0.3):
            other = rng.choice(sorted(self.constants))
            value = self.constants[other] + rng.randint(1, 5)
            written = f'{other} + {value - self.constants[other]}'
        level = rng.choice((78, 1))
        section.records.append(Entry(level, name, 'constant', value=written))
        self.constants[name] = value

    def add_type(self, section: Section) -> None:
        entry = self.group(1, 2, None, frozenset(('plain',))) if self.chance(0.7) else \
            self.elementary(1, None, 0, frozenset(('plain',)))
        entry.name = entry.name or self.name()
        entry.typedef = True
        section.records.append(entry)
        self.types.append(entry)

    def counter(self, section: Section) -> Entry:
        """An item for tables to depend on: one that is there, or one more in this section."""
        if self.counters and self.chance(0.6):
            return self.rng.choice(self.counters)
        entry = Entry(77, self.name('COUNT'))
        usage = self.rng.choice(('', 'COMP', 'COMP-3', 'COMP-5', 'BINARY-LONG', 'COMP-X'))
        entry.usage = usage
        if usage != 'BINARY-LONG':
            sign = 'S' if usage != 'COMP-X' and self.chance(0.4) else ''
            entry.picture = Picture(f'{sign}9({self.rng.randint(3, 6)})', 'numeric', 6)
        self.counters.append(entry)
        if section.name == 'FILE':
            self.pending.append(entry)
        else:
            section.records.insert(0, entry)
        return entry

    # Records.

    def add_record(self, section: Section) -> None:
        previous = section.records[-1] if section.records else None
        if self.chance(0.7):
            record = self.group(1, 1, None)
        else:
            record = self.elementary(1, None, 0)
        if previous is not None and section.name != 'FILE' and self.chance(0.2):
            self.redefine_record(record, previous)
        if record.redefines is None and self.chance(0.08) and section.name != 'FILE':
            flag = self.rng.choice(('GLOBAL', 'BASED', 'EXTERNAL'))
            # To be the same as another and BASED is wrong to the compiler.
            if flag == 'BASED' and record.like is not None:
                flag = 'GLOBAL'
            if section.name == 'WORKING-STORAGE' and record.name and \
                    not has_variable(record) and not record.is_table():
                record.flags.append(flag)
                if flag != 'GLOBAL':
                    strip_values(record)
        section.records.append(record)
        if record.name and not has_variable(record) and record.redefines is None and \
                not record.flags and not record.sync:
            self.named.append(record)
        if record.members and not has_variable(record) and record.redefines is None:
            while self.chance(0.15):
                renaming = self.renaming(record)
                if renaming is None:
                    break
                section.records.append(renaming)
                if record in self.named:
                    self.named.remove(record)  # The compiler copies RENAMES entries, too.

    def redefine_record(self, record: Entry, previous: Entry) -> None:
        if previous.kind != 'item' or previous.typedef or not previous.name or previous.level != 1:
            return
        if has_variable(record) or has_variable(previous) or 'EXTERNAL' in previous.flags or \
                'BASED' in previous.flags or previous.is_table():
            return
        record.redefines = previous
        strip_values(record)

    def renaming(self, record: Entry) -> Optional[Entry]:
        found: List[Entry] = []

        def collect(group: Entry) -> None:
            for member in group.members:
                if member.is_table() or member.redefines is not None:
                    continue
                if member.name:
                    found.append(member)
                collect(member)

        collect(record)
        if not found or any(is_address(entry) or entry.like is not None or entry.usage for entry in record.walk()):
            return None
        first = self.rng.choice(found)
        inside = list(first.walk())
        later = [entry for entry in found[found.index(first) + 1:] if entry not in inside
                 and first not in entry.walk()]
        last = self.rng.choice(later) if later and self.chance(0.6) else None
        self.room -= 1
        return Entry(66, self.name('R'), 'renames', renamed=(first, last))

    def group(self, level: int, depth: int, inherited: Optional[Usage],
              traits: FrozenSet[str] = frozenset()) -> Entry:
        """A group; traits of what is around it: table, redefinition, plain (nothing but items)."""
        rng = self.rng
        entry = Entry(level, self.name() if self.chance(0.85) else '')
        self.room -= 1
        if not entry.name:
            traits |= {'unnamed'}  # The compiler hangs on the keys of tables in such groups.
        if self.chance(0.15) and inherited is None:
            usage = self.choose_usage()
            if usage is not None and usage.picture not in ('bits',):
                entry.usage = self.word_of(usage)
                inherited = usage
        if self.chance(0.08):
            entry.sign = self.sign()
        if self.chance(0.06) and 'groupsync' not in self.without:
            entry.sync = 'SYNC'
        if level > 1 and self.chance(0.3) and 'plain' not in traits:
            entry.occurs = self.table()
            traits |= {'table'}
        step = rng.choice((1, 1, 2, 5, 5, 10))
        below = min(level + step, 49)
        count = rng.randint(1, 6)
        for number in range(count):
            previous = entry.members[-1] if entry.members else None
            within = traits
            redefined = None
            if previous is not None and previous.name and self.chance(0.15) and 'plain' not in traits:
                redefined = previous
                while redefined.redefines is not None:
                    redefined = redefined.redefines
                if has_variable(redefined):
                    redefined = None
            if redefined is not None:
                within |= {'redefinition'}
            if depth < MOST_DEPTH and below < 45 and self.room > 0 and self.chance(0.3):
                member = self.group(below, depth + 1, inherited, within)
            else:
                member = self.elementary(below, inherited, depth, within)
            if redefined is not None:
                member.redefines = redefined if self.chance(0.8) else previous
                if member.occurs is not None and member.occurs.depending is not None:
                    member.occurs = None
                strip_values(member)
            entry.members.append(member)
            if self.room <= 0:
                break
        if entry.sign and not all(may_have_sign_above(below) for below in entry.walk()):
            entry.sign = ''
        if 'plain' not in traits:
            self.add_variable(entry, traits)
        if 'unnamed' not in traits and entry.occurs is not None:
            self.set_key(entry)
        return entry

    def table(self) -> Occurs:
        rng = self.rng
        most = rng.choice((1, 2, 2, 3, 4, 5, 10, rng.randint(1, 30)))
        occurs = Occurs(most, most)
        for name, value in self.constants.items():
            if self.chance(0.3):
                occurs.least = occurs.most = value
                occurs.written = name
        if self.chance(0.2):
            occurs.indexes = [self.name('IX') for _ in range(rng.randint(1, 2))]
        return occurs

    def set_key(self, entry: Entry) -> None:
        keys = [member for member in entry.members if member.name and not member.members
                and not member.is_table() and member.redefines is None
                and (member.picture is None or member.picture.category in ('numeric', 'alphanumeric'))
                and member.picture is not None]
        if keys and self.chance(0.2):
            entry.occurs.key = self.rng.choice(keys)

    def add_variable(self, entry: Entry, traits: FrozenSet[str]) -> None:
        """Makes the last member a table that depends on an item, where that may be."""
        rng = self.rng
        if not entry.members or traits & {'table', 'redefinition'} or entry.level != 1:
            return
        if not self.chance(0.25):
            return
        if '-fcomplex-odo' in self.program.options and self.chance(0.5):
            candidate = rng.choice(entry.members)
        else:
            candidate = entry.members[-1]
            while candidate.members and self.chance(0.4) and candidate.redefines is None and \
                    not candidate.is_table():
                candidate = candidate.members[-1]
        place = entry.members.index(candidate) if candidate in entry.members else -1
        following = entry.members[place + 1] if 0 <= place < len(entry.members) - 1 else None
        if candidate.redefines is not None or (following is not None and following.redefines is not None):
            return
        if any(below.is_table() and below.occurs.depending for below in candidate.walk()):
            return
        if candidate.typedef or has_variable(candidate) or candidate.value:
            return
        counter = self.counter(self.section)
        # One counter holds the same number at most, for whatever depends on it.
        most = self.most.setdefault(id(counter), rng.randint(2, 12))
        candidate.occurs = Occurs(rng.randint(0, most - 1), most, depending=counter)
        strip_values(candidate)

    # Elementary items.

    def choose_usage(self) -> Optional[Usage]:
        offered = [usage for usage in USAGES if not (usage.needs and usage.needs in self.without)
                   and not self.without >= set(usage.words)
                   and not (usage.needs == 'address' and self.section.name == 'FILE')]
        return self.rng.choices(offered, [usage.weight for usage in offered])[0]

    def word_of(self, usage: Usage) -> str:
        return self.rng.choice([word for word in usage.words
                                if not self.without & {word, word.split()[0]}])

    def sign(self) -> str:
        return self.rng.choice(('LEADING', 'TRAILING')) + \
            self.rng.choice(('', ' SEPARATE', ' SEPARATE CHARACTER'))

    def elementary(self, level: int, inherited: Optional[Usage], depth: int,
                   traits: FrozenSet[str] = frozenset()) -> Entry:
        rng = self.rng
        self.room -= 1
        entry = Entry(level, self.name() if self.chance(0.88) else '')
        if self.may_be_like(entry, traits) and self.chance(0.5):
            self.make_like(entry, inherited)
        else:
            self.describe(entry, inherited)
        if depth and self.chance(0.15) and 'plain' not in traits and not entry.value:
            entry.occurs = self.table()
        elif level == 1 and self.chance(0.04) and not entry.value and self.section.name != 'FILE' \
                and 'plain' not in traits and not entry.typedef:
            entry.occurs = self.table()
        if 'redefinition' in traits or self.section.name in ('FILE', 'LINKAGE') or 'plain' in traits:
            entry.value = ''
        if 'plain' in traits:
            entry.conditions = []
        return entry

    def may_be_like(self, entry: Entry, traits: FrozenSet[str]) -> bool:
        return bool(self.types or self.named) and 'plain' not in traits and entry.level != 77 and \
            'types' not in self.without and self.chance(0.15)

    def make_like(self, entry: Entry, inherited: Optional[Usage]) -> None:
        rng = self.rng
        if self.types and self.chance(0.6):
            entry.like = rng.choice(self.types)
            entry.like_words = rng.choice(('TYPE', 'TYPE TO', 'USAGE', 'USAGE IS'))
        elif self.named:
            entry.like = rng.choice(self.named)
            entry.like_words = rng.choice(('SAME AS', 'SAME'))
        else:
            entry.like = rng.choice(self.types)
            entry.like_words = 'TYPE'
        brought = entry.like
        if brought.is_table() or not all(may_be_copied(below) for below in brought.walk()):
            entry.like = None
            self.describe(entry, inherited)
        entry.name = entry.name or self.name()

    def describe(self, entry: Entry, inherited: Optional[Usage]) -> None:
        rng = self.rng
        usage = inherited
        if usage is None or self.chance(0.3):
            usage = self.choose_usage()
            if inherited is not None and inherited is not usage and usage.picture == 'national':
                usage = inherited
            word = self.word_of(usage)
            if word != 'DISPLAY' or inherited is not None or self.chance(0.2):
                entry.usage = word
        constants = self.constants if self.chance(0.5) else {}
        kind = usage.picture
        if kind == 'none':
            pass
        elif kind in ('number', 'unsigned'):
            entry.picture = pictures.numeric(rng, usage.digits, constants,
                                             signed=False if kind == 'unsigned' else None)
            if usage.words[0] == 'COMP-5' and 'small COMP-5' in self.without:
                entry.picture = Picture(f'S9({rng.randint(3, 18)})', 'numeric', 18, True)
        elif kind == 'bytes':
            entry.picture = pictures.numeric(rng, usage.digits, constants, scaling=False)
            if self.chance(0.3):
                entry.picture = Picture(pictures.symbols(rng, 'X', rng.randint(1, 8)), 'alphanumeric')
        elif kind == 'national':
            entry.picture = pictures.national(rng)
        elif kind == 'bits':
            entry.picture = Picture(pictures.symbols(rng, '1', rng.randint(1, 20)), 'boolean')
        else:
            self.describe_display(entry, constants, inherited)
        number = entry.picture is not None and entry.picture.category == 'numeric'
        if number and entry.picture.signed and kind == 'all' and self.chance(0.35):
            entry.sign = self.sign()
        if self.chance(0.2) and self.may_be_synchronized(usage):
            entry.sync = rng.choice(('SYNC', 'SYNCHRONIZED', 'SYNC LEFT', 'SYNCHRONIZED RIGHT'))
        if self.chance(0.15):
            self.set_value(entry, kind)
        if self.chance(0.15):
            self.add_conditions(entry, kind)

    def may_be_synchronized(self, usage: Usage) -> bool:
        return 'sync' not in self.without and f'sync {usage.words[0]}' not in self.without

    def describe_display(self, entry: Entry, constants: Dict[str, int],
                         inherited: Optional[Usage]) -> None:
        rng = self.rng
        way = rng.random()
        if way < 0.4:
            entry.picture = pictures.numeric(rng, 38, constants)
        elif way < 0.55:
            entry.picture = pictures.edited(rng, self.program.is_comma, self.program.currency)
        elif way < 0.92 or inherited is not None or entry.usage:
            entry.picture = pictures.text(rng, constants)
        elif way < 0.98:
            entry.picture = pictures.national(rng)
        else:
            entry.picture = Picture(pictures.symbols(rng, '1', rng.randint(1, 20)), 'boolean')
        category = entry.picture.category
        if category in ('alphanumeric', 'alphabetic') and self.chance(0.1):
            entry.just = True
        scaled = 'P' in entry.picture.text.upper() or '*' in entry.picture.text
        if category in ('numeric', 'edited') and not entry.picture.signed and not scaled and \
                self.chance(0.1):
            entry.blank = True

    def set_value(self, entry: Entry, kind: str) -> None:
        rng = self.rng
        category = entry.picture.category if entry.picture is not None else ''
        if category in ('numeric',) and kind != 'bytes' and not entry.blank:
            entry.value = rng.choice(('0', 'ZERO', 'ZEROES', '+0'))if entry.picture.signed else '0'
        elif category in ('alphanumeric', 'alphabetic') and kind == 'all':
            entry.value = rng.choice(('SPACES', 'SPACE', '"A"', "'it''s 05 X PIC 9.'", '"PIC X(9). ""q"""',
                                      'LOW-VALUES', 'ALL "*"', 'HIGH-VALUE', "X'41'"))

    def add_conditions(self, entry: Entry, kind: str) -> None:
        rng = self.rng
        category = entry.picture.category if entry.picture is not None else ''
        if category == 'numeric' and kind in ('all', 'number'):
            offered = ['1', '2 3', '0 THRU 4', '5, 7', 'ZERO', '1 THROUGH 3 8', '+6']
            if not entry.picture.signed:
                offered.remove('+6')
        elif category == 'alphanumeric' and kind == 'all':
            offered = ['"A"', "'A' 'B'", '"A" THRU "F"', 'SPACES', '"." "PIC X."', "'05 Q.'"]
        else:
            return
        for _ in range(rng.randint(1, 3)):
            entry.conditions.append(Condition(self.name('IS'), [rng.choice(offered)]))


def may_be_copied(entry: Entry) -> bool:
    """Whether the compiler copies such an entry well: those without a PICTURE it does not."""
    return not entry.conditions and not (entry.occurs is not None and entry.occurs.indexes) and \
        bool(entry.members or entry.picture is not None or entry.like is not None)


def may_have_sign_above(entry: Entry) -> bool:
    """Whether the compiler stands a SIGN clause of its group."""
    return not is_address(entry) and entry.like is None and \
        (bool(entry.members) if entry.picture is None
         else entry.picture.category in ('numeric', 'alphanumeric'))


def strip_values(entry: Entry) -> None:
    for below in entry.walk():
        below.value = ''


def has_variable(entry: Entry) -> bool:
    return any(below.occurs is not None and below.occurs.depending is not None
               or (below.like is not None and has_variable(below.like)) for below in entry.walk())


def is_address(entry: Entry) -> bool:
    return bool(entry.usage) and BY_WORD[entry.usage].needs == 'address'


def program_of(seed: str, name: str, without: FrozenSet[str] = frozenset()) -> Program:
    return Generator(seed, name, without).make()
