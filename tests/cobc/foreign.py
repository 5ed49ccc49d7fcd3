"""Compares the sizes and places that import finds with those of the GnuCOBOL compiler for programs
that others wrote: each source in some folders that the compiler takes as it stands.

Items are paired by the names that the compiler's C text holds: those in the dump that it makes code
for, and those of fields that statements use."""

import multiprocessing
import re
import shutil
import subprocess
import tempfile
import xml.etree.ElementTree as ElementTree
from collections import Counter
from pathlib import Path
from typing import Callable, Dict, Iterator, List, NamedTuple, Optional, Tuple

from comparison import kinds_of
from compiler import FIELD, SECONDS_ALONE, Field, Reader
from dictionary import ITEMS, Placed

SUFFIXES = {'.cbl', '.cob', '.cobol', '.pco'}
COPYBOOKS = {'.cpy', '.cpb', '.copy', '.inc', '.cbl', '.cob'}
FORMATS = {'fixed': [], 'free': ['-free']}
RELAXED = ['-w', '-C', '-fdump=ALL', '-frelax-syntax-checks', '-frelax-level-hierarchy',
           '-flarger-redefines-ok', '-findirect-redefines']
NAMED = re.compile(r'cob_field (f_\d+)\s*= \{.*\};\s*/\* (.*?) \*/')
NOTHING = 'the source holds neither a program nor data description entries'
TOO_MANY = 20  # Folders with copybooks.


class InRecord(NamedTuple):
    placed: Placed
    record: int  # The number of its record.


class Wrong(NamedTuple):
    what: str
    source: str
    item: str
    ours: object
    theirs: object


# What the compiler does otherwise, and why that is no fault: see differences.py.
KNOWN: Dict[str, Callable[[Placed, object, object], bool]] = {
    'counts one digit less where the floating currency symbol is another one than "$"':
        lambda placed, ours, theirs: placed.element == 'numericEdited' and ours == theirs + 1,
    'counts as many digits for a binary item without a PICTURE as are never lost':
        lambda placed, ours, theirs: not placed.attributes.get('picture') and
        (ours, theirs) in ((3, 2), (5, 4), (10, 9), (19, 18), (20, 18)),
    'counts the digits of X COMP-X and the like in its own way':
        lambda placed, *_: 'X' in placed.attributes.get('picture', '').upper(),
    'counts no places behind the point that a floating currency sign stands for':
        lambda placed, ours, theirs: placed.element == 'numericEdited' and theirs == 0,
    'knows decimal floating point, which dictionaries have no kind for':
        lambda _, ours, theirs: (ours, theirs) == ('text', 'decimal float'),
    'forgets that an item is an address when it is one by the USAGE of its group':
        lambda _, ours, theirs: (ours, theirs) == ('address', 'binary'),
    'has COMP-5 of one byte when it is told to follow the mainframe':
        lambda placed, ours, theirs: placed.attributes.get('usage') == 'comp-5' and
        (ours, theirs) == (2, 1),
}
# What each of them is about.
KNOWN_OF = dict(zip(KNOWN, ('digits', 'digits', 'digits', 'scale', 'category', 'category', 'length')))


class Result(NamedTuple):
    source: str
    state: str  # "compared", or why it was not.
    items: int
    wrong: List[Wrong]


class Task(NamedTuple):
    source: Path
    include: List[Path]
    tool: str
    dialect: str
    options: List[str]  # How the compiler is told to follow the dialect.


def items_in(path: Path) -> List[InRecord]:
    """All items of a dictionary in its order."""
    found: List[InRecord] = []
    records = 0

    def walk(element: ElementTree.Element, record: int) -> None:
        nonlocal records
        for child in element:
            word = child.tag.rpartition('}')[2]
            if word not in ITEMS:
                walk(child, record)
                continue
            if not record:
                records += 1
            found.append(InRecord(Placed(word, dict(child.attrib)), record or records))
            walk(child, record or records)

    walk(ElementTree.parse(path).getroot(), 0)
    return found


def told_of(reader: Reader) -> Tuple[List[Tuple[str, Field]], Dict[str, Field]]:
    """What is dumped, in its order, and what statements use, by names that stand for one thing."""
    dumped = [(name.upper(), reader.field(text)) for _, name, text in reader.dumped()]
    used: Dict[str, Field] = {}
    twice = set()
    for name, field in reader.named():
        known = used.setdefault(name, field)
        if known != field:
            twice.add(name)
    return dumped, {name: field for name, field in used.items() if name not in twice}


class ForeignReader(Reader):
    def __init__(self, folder: Path, name: str):
        super().__init__(folder, name)
        self.texts = (folder / f'{name}.c.l.h').read_text(errors='replace')

    def named(self) -> Iterator[Tuple[str, Field]]:
        for match in NAMED.finditer(self.texts):
            size, data, kind = self.fields[match[1]]
            base, offset = self.place(data)
            yield match[2].upper(), Field(base, offset, self.number(size), self.kinds[kind])


def paired(items: List[InRecord], reader: ForeignReader) -> Iterator[Tuple[int, Field]]:
    """The numbers of items, and what the compiler says of them: of those that a name stands for as
    often on both sides, or once."""
    dumped, used = told_of(reader)
    numbers: Dict[str, List[int]] = {}
    for number, item in enumerate(items):
        numbers.setdefault(item.placed.name().upper(), []).append(number)
    fields: Dict[str, List[Field]] = {}
    for name, field in dumped:
        fields.setdefault(name, []).append(field)
    for name, ours in numbers.items():
        if name == 'FILLER':
            continue
        theirs = fields.get(name, [])
        if len(ours) == len(theirs):
            yield from sorted(zip(ours, theirs))
        elif len(ours) == 1 and name in used:
            yield ours[0], used[name]


def ends_in_slack(items: List[InRecord], number: int) -> bool:
    """Whether the occurrences of a table end in slack bytes."""
    group, record = items[number]
    if group.element != 'group' or group.number('maxOccurs') < 2:
        return False
    end = group.number('offset') + group.number('length')
    reach = group.number('offset')
    for placed, of in items[number + 1:]:
        if of != record or placed.number('offset') >= end:
            break
        reach = max(reach, placed.number('offset') +
                    placed.number('length') * max(1, placed.number('maxOccurs')))
    return reach < end


def counted_otherwise(items: List[InRecord]) -> Dict[int, int]:
    """By records, the first table of no fixed size, or whose occurrences end in slack bytes: what
    stands in, around and behind it the compiler counts in another way."""
    first: Dict[int, int] = {}
    for number, (placed, record) in enumerate(items):
        if record not in first and ('odo' in placed.attributes or ends_in_slack(items, number)):
            first[record] = number
    return first


def is_around(items: List[InRecord], group: int, number: int) -> bool:
    outer, inner = items[group].placed, items[number].placed
    return group < number and outer.element == 'group' and outer.number('offset') + \
        outer.number('length') * max(1, outer.number('maxOccurs')) > inner.number('offset')


def reason_of(wrong: Wrong, placed: Placed) -> Optional[str]:
    return next((reason for reason, explains in KNOWN.items()
                 if KNOWN_OF[reason] == wrong.what and explains(placed, wrong.ours, wrong.theirs)), None)


def wrong_ones(items: List[InRecord], reader: ForeignReader, source: str) -> Tuple[int, List[Wrong]]:
    starts: Dict[int, Tuple[str, int]] = {}
    wrong: List[Wrong] = []
    compared = 0
    tables = counted_otherwise(items)
    for number, field in paired(items, reader):
        placed, record = items[number]
        if field.base in ('NULL', 'unknown', '') or placed.attributes.get('renames') == 'true':
            continue
        compared += 1
        found: List[Tuple[str, object, object]] = []
        table = tables.get(record)
        if table is None or (number < table and not is_around(items, number, table)):
            base, start = starts.setdefault(record,
                                            (field.base, field.offset - placed.number('offset')))
            offset = field.offset - start
            if field.base == base:
                found.append(('offset', placed.number('offset'), offset))
            if field.size is not None:
                found.append(('length', placed.number('length'), field.size))
        found += kinds_of(placed, field.kind)
        for what, ours, theirs in found:
            one = Wrong(what, source, placed.name(), ours, theirs)
            if ours != theirs and reason_of(one, placed) is None:
                wrong.append(one)
    return compared, wrong


def compiled(folder: Path, task: Task) -> Optional[str]:
    """In which format the compiler takes the source; None for none."""
    for form, options in FORMATS.items():
        try:
            result = subprocess.run(
                ['cobc', *task.options, *RELAXED, *options,
                 *(f'-I{one}' for one in task.include), '-o', str(folder / 'P.c'), str(task.source)],
                cwd=folder, capture_output=True, timeout=SECONDS_ALONE, check=False)
        except subprocess.TimeoutExpired:
            return None
        if result.returncode == 0 and (folder / 'P.c.l.h').exists():
            return form
    return None


def tried(task: Task) -> Result:
    source = str(task.source)
    with tempfile.TemporaryDirectory(prefix='agentservices-') as name:
        folder = Path(name)
        form = compiled(folder, task)
        if form is None:
            return Result(source, 'not compiled', 0, [])
        made = subprocess.run(
            [task.tool, 'import', '--quiet', '--format', form, '--dialect', task.dialect,
             *(f'-I{one}' for one in task.include), source, '-o', str(folder / 'P.xml')],
            capture_output=True, text=True, errors='replace', check=False)
        if made.returncode != 0:
            said = next((line for line in made.stderr.splitlines() if ' error: ' in line), made.stderr)
            said = said.rpartition(' error: ')[2].strip()
            if said == NOTHING:
                return Result(source, 'holding nothing', 0, [])
            return Result(source, 'compared', 0, [Wrong('refused', source, '', said, '')])
        if not (folder / 'P.xml').exists() or list(folder.glob('P-*.xml')):
            return Result(source, 'other than one program', 0, [])
        try:
            reader = ForeignReader(folder, 'P')
            return Result(source, 'compared', *wrong_ones(items_in(folder / 'P.xml'), reader, source))
        except (KeyError, ValueError, IndexError) as problem:
            return Result(source, f'not understood: {problem!r}'[:80], 0, [])


def folders_with_copybooks(top: Path) -> List[Path]:
    counts = Counter(path.parent for path in top.rglob('*')
                     if path.suffix.lower() in COPYBOOKS and path.is_file())
    return [folder.resolve() for folder, _ in counts.most_common(TOO_MANY)]


def compare_foreign(folders: List[Path], tool: str, dialect: str, options: List[str],
                    shown: int) -> bool:
    tasks = []
    for top in folders:
        include = folders_with_copybooks(top)
        tasks += [Task(source.resolve(), include, tool, dialect, options) for source in sorted(top.rglob('*'))
                  if source.suffix.lower() in SUFFIXES and source.is_file()]
    states: Counter = Counter()
    kinds: Counter = Counter()
    items = 0
    differing = 0
    with multiprocessing.Pool() as pool:
        for result in pool.imap_unordered(tried, tasks, chunksize=4):
            states[result.state] += 1
            items += result.items
            differing += bool(result.wrong)
            for wrong in result.wrong:
                kinds[wrong.what] += 1
                if kinds[wrong.what] <= shown:
                    print(f'  {wrong.source}: {wrong.what} of {wrong.item or "it"}: {wrong.ours}, '
                          f'the compiler says {wrong.theirs}')
    print(f'{dialect}: of {len(tasks)} sources {states["compared"]} compared, {items} items, '
          f'{differing} sources differ')
    for state, count in states.most_common():
        print(f'  {count:6} {state}')
    for what, count in kinds.most_common():
        print(f'  {count:6} differ in: {what}')
    return not differing
