"""Where the mainframe's compiler puts items, by the rules of its manual for SYNCHRONIZED.

The GnuCOBOL compiler aligns otherwise, whatever it is told to follow, so it proves nothing of slack bytes
in dialect "ibm". This is a second reading of the manual's text, which goes by the elementary items of a
record one after the other and knows of groups only where their first item stands. It takes the lengths
of elementary items as they are: those the compiler proves.
"""

from typing import Dict, Iterator, List, NamedTuple

from dictionary import Placed
from entries import Item, Program, items_of

HALFWORD, FULLWORD, DOUBLEWORD = 2, 4, 8


class Wrong(NamedTuple):
    item: Item
    what: str
    ours: int
    manual: int


def clauses(item: Item) -> Iterator[str]:
    """SYNCHRONIZED as the entry has it, and as those that it is like have it."""
    entry = item.entry
    while entry is not None:
        yield entry.sync
        entry = entry.like


def multiple(item: Item, placed: Placed) -> int:
    """The multiple of bytes from the start of the record that an elementary item starts on."""
    if not any(clauses(item)) and not any(clauses(item.record())):
        return 1
    if placed.element in ('pointer', 'index', 'cobolObject'):
        return FULLWORD
    usage = placed.attributes.get('usage') if placed.element == 'numeric' else None
    if usage in ('comp', 'comp-4', 'comp-5'):
        return {1: 1, 2: HALFWORD}.get(placed.number('length'), FULLWORD)
    return {'comp-1': FULLWORD, 'comp-2': DOUBLEWORD}.get(usage, 1)


class Record:
    """A record of a program, its items placed by the manual."""

    def __init__(self, items: List[Item], placed: Dict[int, Placed]):
        self.placed = placed
        self.members: Dict[int, List[Item]] = {}
        for item in items:
            if item.parent is not None and item.entry.kind != 'renames':
                self.members.setdefault(id(item.parent), []).append(item)
        self.offsets: Dict[int, int] = {}
        self.lengths: Dict[int, int] = {}
        self.multiples: Dict[int, int] = {}
        self.put(items[0], 0)

    def put(self, item: Item, behind: int) -> int:
        """Places an item behind so many bytes of the record; returns how many there are with it."""
        members = self.members.get(id(item), [])
        if not members:
            one = multiple(item, self.placed[id(item)])
            # What redefines has the place of what it redefines.
            slack = 0 if item.original is not None else -behind % one
            self.offsets[id(item)] = behind + slack
            self.lengths[id(item)] = self.placed[id(item)].number('length')
            self.multiples[id(item)] = one
        else:
            self.put_members(item, members, behind)
        times = max(1, item.occurs.most) if item.occurs is not None else 1
        return self.offsets[id(item)] + self.lengths[id(item)] * times

    def put_members(self, group: Item, members: List[Item], behind: int) -> None:
        end = behind
        for member in members:
            start = end
            if member.original is not None:
                start = next(self.offsets[id(other)] for other in members
                             if other.entry is member.original)
            end = max(end, self.put(member, start))
        # Slack bytes in front of the first item of a group stand in front of the group, unless it has
        # the place of what it redefines.
        first = self.offsets[id(members[0])] if group.original is None else behind
        self.offsets[id(group)] = first
        self.multiples[id(group)] = max(self.multiples[id(member)] for member in members)
        length = end - first
        if group.occurs is not None and group.occurs.most > 1:
            length += -length % self.multiples[id(group)]
        self.lengths[id(group)] = length


def wrong_ones(program: Program, dictionary: List[Placed]) -> List[Wrong]:
    """What stands elsewhere, or has another length, than the manual says."""
    items = [item for item in items_of(program) if not item.is_type]
    if len(items) != len(dictionary):
        return [Wrong(items[0], 'items', len(dictionary), len(items))]
    placed = {id(item): one for item, one in zip(items, dictionary)}
    found: List[Wrong] = []
    for top in [item for item in items if item.parent is None]:
        inside = [item for item in items
                  if item.record() is top and item.entry.kind != 'renames']
        record = Record(inside, placed)
        for item in inside:
            one = placed[id(item)]
            for what, manual in (('offset', record.offsets[id(item)]),
                                 ('length', record.lengths[id(item)])):
                if one.number(what) != manual:
                    found.append(Wrong(item, what, one.number(what), manual))
    return found
