"""What the compiler is known to do in its own way, each with its reason and as narrowly as it is known.

A difference that no row explains is a failure.
"""

from typing import Callable, List, NamedTuple, Optional

from comparison import Difference, Pair
from entries import Item, Program


class Known(NamedTuple):
    reason: str
    explains: Callable[[Difference, List[Pair]], bool]


class Refusal(NamedTuple):
    """An error of the compiler that says nothing against the program."""
    reason: str
    error: str
    is_of: Callable[[Program], bool]  # Whether the program has what the reason tells of.


def has_constant_behind_like_group(program: Program) -> bool:
    """Whether a CONSTANT follows a record whose last item is the same as a group, or of its type."""
    for section in program.sections:
        for record, behind in zip(section.records, section.records[1:]):
            last = list(record.walk())[-1]
            if behind.kind == 'constant' and last.like is not None and last.like.members:
                return True
    return False


# What the compiler cannot do though the program is right: such programs are counted and not compared.
REFUSALS = [
    Refusal('forgets which record it is in at a CONSTANT behind an item that is the same as a group',
            'level number must begin with 01 or 77', has_constant_behind_like_group),
]


def known_refusal(program: Program, error: str) -> Optional[Refusal]:
    return next((row for row in REFUSALS if row.error in error and row.is_of(program)), None)


def picture_category(item: Item) -> str:
    entry = item.entry
    while entry.like is not None:
        entry = entry.like
    return entry.picture.category if entry.picture is not None else ''


def ends_in_slack(pairs: List[Pair]) -> List[int]:
    """The numbers of the tables whose occurrences end in slack bytes."""
    found = []
    for number, (item, placed, _) in enumerate(pairs):
        if placed.element != 'group' or item.occurs is None or item.occurs.most < 2:
            continue
        end = max((one.number('offset') + one.number('length') * max(1, one.number('maxOccurs'))
                   for member, one, _ in pairs if member.parent is item), default=0)
        if end < placed.number('offset') + placed.number('length'):
            found.append(number)
    return found


def is_behind_slack(difference: Difference, pairs: List[Pair]) -> bool:
    """Whether an item stands in, around or behind such a table of its record."""
    if difference.what not in ('offset', 'length'):
        return False
    at = next(number for number, pair in enumerate(pairs) if pair.item is difference.item)
    for number in ends_in_slack(pairs):
        table = pairs[number].item
        if table.record() is not difference.item.record():
            continue
        above = table
        while above is not None and above is not difference.item:
            above = above.parent
        if above is not None or number <= at:
            return True
    return False


def is_behind_aligned_group(difference: Difference, pairs: List[Pair]) -> bool:
    """Whether an item stands in, around or behind a group of a USAGE that says SYNCHRONIZED."""
    if difference.what not in ('offset', 'length') or difference.item is None:
        return False
    of_record = [pair.item for pair in pairs if pair.item.record() is difference.item.record()
                 and pair.item.entry.kind == 'item']
    return any(group.entry.sync and group.entry.members and
               any(one.entry.usage for one in above(group)) and
               (group is difference.item or group in above(difference.item) or
                difference.item in above(group) or
                of_record.index(group) < of_record.index(difference.item))
               for group in of_record if difference.item in of_record)


def has_blank_with_point(item: Item) -> bool:
    entry = item.entry
    while entry.like is not None and not entry.blank:
        entry = entry.like
    return entry.blank and entry.picture is not None and 'V' in entry.picture.text.upper()


def is_blank_with_point(difference: Difference, pairs: List[Pair]) -> bool:
    """Whether an item is, contains or follows a number with V and BLANK WHEN ZERO."""
    if difference.what not in ('offset', 'length') or difference.item is None:
        return False
    of_record = [pair.item for pair in pairs if pair.item.record() is difference.item.record()]
    return any(has_blank_with_point(item) and
               (item is difference.item or difference.item in above(item) or
                of_record.index(item) < of_record.index(difference.item))
               for item in of_record if difference.item in of_record)


def is_sliding(difference: Difference, pairs: List[Pair]) -> bool:
    """Whether an item stands around or behind a table of no fixed size that something follows."""
    if difference.what not in ('offset', 'length') or difference.item is None:
        return False
    of_record = [pair.item for pair in pairs if pair.item.record() is difference.item.record()
                 and pair.item.entry.kind == 'item']
    for number, table in enumerate(of_record):
        if table.occurs is None or table.occurs.depending is None:
            continue
        inside = [item for item in of_record if table in above(item)]
        is_followed = of_record[number + len(inside):] != [] and of_record[-1] not in inside
        if is_followed and (difference.item in above(table) or
                            (difference.item not in inside and difference.item in of_record[number:])):
            return True
    return False


def is_renamed(item: Item, pairs: List[Pair]) -> bool:
    return any(item.entry in (pair.item.entry.renamed or ()) for pair in pairs)


def above(item: Item) -> List[Item]:
    """An item and the groups that it is in."""
    return [item] + (above(item.parent) if item.parent is not None else [])


KNOWN = [
    Known('counts what stands behind a table of no fixed size without slack bytes, and redefinitions '
          'in front of it, too', is_sliding),
    Known('counts one digit less where the floating currency symbol is another one than "$"',
          lambda difference, _: difference.what == 'digits' and
          picture_category(difference.item) == 'edited' and difference.ours == difference.theirs + 1),
    Known('puts the slack bytes behind the last item of a table\'s occurrence in front of it, or leaves '
          'them out when a group comes last', is_behind_slack),
    Known('aligns a group of a USAGE that says SYNCHRONIZED as an item of the group\'s own size',
          is_behind_aligned_group),
    Known('has a byte for the assumed point of a number with BLANK WHEN ZERO, and a digit too many in it',
          is_blank_with_point),
    Known('counts as many digits for a binary item without a PICTURE as are never lost, '
          'dictionaries those of the largest value',
          lambda difference, _: difference.what == 'digits' and
          picture_category(difference.item) == '' and
          (difference.ours, difference.theirs) in ((3, 2), (5, 4), (10, 9), (19, 18), (20, 18))),
    Known('counts the digits of X COMP-X in its own way, dictionaries those of the largest value',
          lambda difference, _: difference.what == 'digits' and
          picture_category(difference.item) == 'alphanumeric'),
    Known('takes PICTURE 1 of USAGE DISPLAY for a number, dictionaries for text',
          lambda difference, _: difference.what == 'category' and
          picture_category(difference.item) == 'boolean' and
          (difference.ours, difference.theirs) in (('text', 'display'), ('text', 'bits'))),
    Known('takes a number with BLANK WHEN ZERO for an edited one, unless it has condition names or '
          'is renamed',
          lambda difference, pairs: difference.what == 'category' and
          (difference.ours, difference.theirs) == ('edited', 'display') and
          difference.item.entry.blank and
          (difference.item.entry.conditions != [] or is_renamed(difference.item, pairs))),
    Known('knows decimal floating point, which dictionaries have no kind for',
          lambda difference, _: difference.what == 'category' and
          (difference.ours, difference.theirs) == ('text', 'decimal float')),
    Known('forgets that an item is an address when it is one by the USAGE of its group',
          lambda difference, _: difference.what == 'category' and
          (difference.ours, difference.theirs) == ('address', 'binary') and
          not difference.item.entry.usage and
          any(one.entry.usage for one in above(difference.item))),
]


def known(difference: Difference, pairs: List[Pair]) -> Optional[Known]:
    if difference.item is None:
        return None
    return next((row for row in KNOWN if row.explains(difference, pairs)), None)
