"""What a data division consists of, as the generator makes it up and the writer writes it down."""

from dataclasses import dataclass, field
from typing import Iterator, List, Optional, Tuple


@dataclass(eq=False)
class Picture:
    text: str
    category: str  # numeric, edited, alphabetic, alphanumeric, alphanumericEdited, national,
    # nationalEdited, boolean or externalFloat.
    digits: int = 0
    signed: bool = False


@dataclass(eq=False)
class Occurs:
    least: int
    most: int
    written: str = ''  # How a constant tells `most`; empty: as a number.
    depending: Optional['Entry'] = None
    indexes: List[str] = field(default_factory=list)
    key: Optional['Entry'] = None  # A member that the table is sorted by.


@dataclass(eq=False)
class Condition:
    name: str
    values: List[str]


@dataclass(eq=False)
class Entry:
    level: int
    name: str = ''  # Empty: the entry has none.
    kind: str = 'item'  # Or renames, or constant.
    picture: Optional[Picture] = None
    usage: str = ''  # The words of the clause behind USAGE.
    sign: str = ''  # The words of the clause behind SIGN.
    sync: str = ''
    occurs: Optional[Occurs] = None
    redefines: Optional['Entry'] = None  # The entry that the clause names.
    like: Optional['Entry'] = None  # The type, or the entry that this one is the same as,
    like_words: str = ''  # and how the clause begins.
    typedef: bool = False
    just: bool = False
    blank: bool = False
    flags: List[str] = field(default_factory=list)  # Clauses of one word: EXTERNAL, GLOBAL, BASED.
    value: str = ''  # A literal; of a constant, what it stands for.
    renamed: Optional[Tuple['Entry', Optional['Entry']]] = None
    members: List['Entry'] = field(default_factory=list)
    conditions: List[Condition] = field(default_factory=list)

    def walk(self) -> Iterator['Entry']:
        yield self
        for member in self.members:
            yield from member.walk()

    def is_table(self) -> bool:
        return self.occurs is not None


@dataclass(eq=False)
class Section:
    name: str  # FILE, WORKING-STORAGE, LOCAL-STORAGE or LINKAGE.
    records: List[Entry] = field(default_factory=list)  # Constants and RENAMES entries among them.
    file: str = ''  # Of the file section: one for each file.


@dataclass(eq=False)
class Program:
    name: str
    sections: List[Section] = field(default_factory=list)
    is_comma: bool = False  # DECIMAL-POINT IS COMMA.
    currency: str = ''
    options: List[str] = field(default_factory=list)  # What the compiler has to be told.
    style: int = 0  # What the writer's choices come from; 0: none, the plainest form.

    def entries(self) -> Iterator[Entry]:
        for section in self.sections:
            for record in section.records:
                yield from record.walk()


@dataclass(eq=False)
class Item:
    """A data item: an entry, or the copy of one that a type brings."""

    entry: Entry
    section: Section
    parent: Optional['Item']
    in_redefinition: bool
    name: str
    occurs: Optional[Occurs]
    original: Optional[Entry] = None  # What it redefines.
    is_type: bool = False

    def record(self) -> 'Item':
        return self if self.parent is None else self.parent.record()

    def tables(self) -> int:
        above = 0 if self.parent is None else self.parent.tables()
        return above + (self.occurs is not None)

    def qualifiers(self) -> List[str]:
        if self.parent is None:
            return []
        return [self.parent.name] * bool(self.parent.name) + self.parent.qualifiers()


def items_of(program: Program) -> List[Item]:
    """All items in the order of the source; RENAMES entries behind their records."""
    found: List[Item] = []

    def add(entry: Entry, section: Section, parent: Optional[Item], copied: bool) -> None:
        redefines = entry.redefines is not None
        item = Item(entry, section, parent,
                    redefines or (parent is not None and parent.in_redefinition),
                    entry.name, entry.occurs, entry.redefines,
                    entry.typedef or (parent is not None and parent.is_type and not copied))
        found.append(item)
        source = entry
        while source.like is not None:
            source = source.like
        for member in source.members:
            add(member, section, item, copied or source is not entry)

    for section in program.sections:
        record = None
        for entry in section.records:
            if entry.kind == 'constant':
                continue
            if entry.kind == 'renames':
                found.append(Item(entry, section, record, True, entry.name, None))
                continue
            add(entry, section, None, False)
            record = next(item for item in found if item.entry is entry and item.parent is None)
    return found


def references_of(items: List[Item]) -> List[Optional[str]]:
    """How statements name each item, its first occurrence; None where no name is only its own."""
    named: dict = {}
    for item in items:
        if item.name:
            named.setdefault(item.name.upper(), []).append(item)

    def is_meant(other: Item, chain: List[str]) -> bool:
        left = iter(name.upper() for name in other.qualifiers())
        return all(name in left for name in chain)

    references: List[Optional[str]] = []
    for item in items:
        if not item.name:
            references.append(None)
            continue
        chain: List[str] = []
        rivals = named[item.name.upper()]
        if len(rivals) > 1:
            chain = [name.upper() for name in item.qualifiers()]
            if sum(is_meant(rival, chain) for rival in rivals) > 1:
                references.append(None)
                continue
        text = ' OF '.join([item.name] + chain)
        tables = item.tables()
        references.append(text + (f' ({" ".join(["1"] * tables)})' if tables else ''))
    return references
