"""Compares what a dictionary says of the items of a program with what the compiler told."""

from typing import Dict, Iterator, List, NamedTuple, Optional

from compiler import Field, Kind, Told
from dictionary import Placed
from entries import Item, Program, items_of
from writer import Source

# The compiler's kinds of fields, as its header numbers them.
CATEGORIES = {0x01: 'group', 0x02: 'bits', 0x10: 'display', 0x11: 'binary', 0x12: 'packed',
              0x13: 'short float', 0x14: 'long float', 0x16: 'decimal float', 0x17: 'decimal float',
              0x1b: 'index', 0x20: 'text', 0x21: 'text', 0x23: 'text', 0x24: 'edited',
              0x40: 'national', 0x41: 'national'}
SIGNED, SEPARATE, LEADING, BLANK, JUSTIFIED, ADDRESS, FLOATING = 0x1, 0x2, 0x4, 0x8, 0x10, 0x80, 0x200
USAGES = {'display': 'display', 'comp': 'binary', 'comp-4': 'binary', 'comp-5': 'binary',
          'comp-x': 'binary', 'comp-3': 'packed', 'comp-6': 'packed', 'comp-1': 'short float',
          'comp-2': 'long float', 'externalFloat': 'external float'}
ELEMENTS = {'group': 'group', 'alphanumeric': 'text', 'numericEdited': 'edited',
            'national': 'national', 'pointer': 'address', 'index': 'index'}


class Difference(NamedTuple):
    what: str  # offset, length, category, digits, scale, sign, blank, justified, line; or program:
    # there is no dictionary, or it has other items.
    item: Optional[Item]
    ours: object
    theirs: object
    placed: Optional[Placed] = None
    field: Optional[Field] = None


class Pair(NamedTuple):
    item: Item
    placed: Placed
    field: Optional[Field]


def category_of_kind(kind: Kind) -> str:
    if kind.type == 0x11 and kind.flags & ADDRESS:
        return 'address'
    if kind.type == 0x24 and kind.flags & FLOATING:
        return 'external float'
    return CATEGORIES.get(kind.type, hex(kind.type))


def category_of(placed: Placed) -> str:
    if placed.element == 'numeric':
        return USAGES[placed.attributes.get('usage', 'display')]
    return ELEMENTS.get(placed.element, placed.element)


def sign_of_kind(kind: Kind) -> str:
    if not kind.flags & SIGNED:
        return 'false'
    if category_of_kind(kind) != 'display':
        return 'true'
    # Trailing and included is what a sign is without a clause.
    return ('l' if kind.flags & LEADING else 't') + ('s' if kind.flags & SEPARATE else 'i')


def sign_of(placed: Placed) -> str:
    sign = placed.attributes.get('sign', 'false')
    if sign == 'false' or category_of(placed) != 'display':
        return sign if sign == 'false' else 'true'
    return 'ti' if sign == 'true' else sign


def fields_of(items: List[Item], source: Source, told: Told) -> Dict[int, Field]:
    """The fields of items by their numbers."""
    fields = {number: field for number, field in zip(source.shown, told.shown)}
    # In the dump, those without a name stand between those that have one and are known by it.
    names = [name.upper() for _, name, _ in told.dumped]
    numbers = {}
    for number, item in enumerate(items):
        if item.name:
            numbers.setdefault(item.name.upper(), []).append(number)
    anchors = [(-1, -1)]
    for at, name in enumerate(names):
        found = numbers.get(name, [])
        if len(found) == 1 and names.count(name) == 1 and found[0] > anchors[-1][1]:
            anchors.append((at, found[0]))
    for (at, number), (next_at, next_number) in zip(anchors, anchors[1:]):
        between = [told.dumped[one][2] for one in range(at + 1, next_at)]
        unnamed = [one for one in range(number + 1, next_number)
                   if not items[one].in_redefinition and items[one].section.name != 'FILE']
        # Of files, the dump shows some that have no name, and some not.
        is_beside_file = any(item.section.name == 'FILE' for item in items[number + 1:next_number])
        if len(between) == len(unnamed) and not is_beside_file:
            for one, field in zip(unnamed, between):
                fields.setdefault(one, field)
    return fields


def pairs_of(program: Program, source: Source, told: Told,
             placed: List[Placed]) -> Optional[List[Pair]]:
    """The items with what both sides say of them; None when the dictionary has other ones."""
    items = items_of(program)
    fields = fields_of(items, source, told)
    wanted = [number for number, item in enumerate(items) if not item.is_type]
    if [items[number].name or 'FILLER' for number in wanted] != [one.name() for one in placed]:
        return None
    return [Pair(items[number], one, fields.get(number)) for number, one in zip(wanted, placed)]


def differences_of(pairs: List[Pair], source: Source, told: Told) -> Iterator[Difference]:
    starts: Dict[int, int] = {}  # Where records start, by their identity.
    bases: Dict[int, str] = {}
    for item, placed, field in pairs:
        line = source.lines.get(id(item.entry))
        if line is not None and placed.number('line') != line:
            yield Difference('line', item, placed.number('line'), line)
        if field is None:
            continue
        record = id(item.record())
        if record not in starts:
            starts[record] = field.offset - (placed.number('offset') if item.parent is not None else 0)
            bases[record] = field.base
        offset = field.offset - starts[record]
        if placed.number('offset') != offset or field.base != bases[record]:
            yield Difference('offset', item, placed.number('offset'), offset, placed, field)
        if field.size is not None and placed.number('length') != field.size:
            yield Difference('length', item, placed.number('length'), field.size, placed, field)
        if item.entry.kind != 'renames':
            for what, ours, theirs in kinds_of(placed, field.kind):
                if ours != theirs:
                    yield Difference(what, item, ours, theirs, placed, field)


def kinds_of(placed: Placed, kind: Kind) -> Iterator[tuple]:
    category = category_of(placed)
    theirs = category_of_kind(kind)
    yield 'category', category, theirs
    if category != theirs:
        return
    if category in ('display', 'binary', 'packed', 'edited'):
        yield 'digits', placed.number('digits'), kind.digits
        yield 'scale', placed.number('alignment'), max(kind.scale, 0)
    if category in ('display', 'binary', 'packed'):
        yield 'sign', sign_of(placed), sign_of_kind(kind)
    if category == 'edited':
        yield 'blank', placed.attributes.get('blankWhenZero', 'false'), \
            'true' if kind.flags & BLANK else 'false'
    if category == 'text':
        yield 'justified', placed.attributes.get('justified', 'left'), \
            'right' if kind.flags & JUSTIFIED else 'left'
