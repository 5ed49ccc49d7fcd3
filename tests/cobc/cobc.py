"""Compares the sizes and places that import finds with those of the GnuCOBOL compiler, program by
program, of programs that are made up: the same ones for the same seed."""

import argparse
import re
import shutil
import sys
import tempfile
import time
from collections import Counter
from pathlib import Path
from typing import Dict, FrozenSet, List, NamedTuple, Tuple

from compiler import TOO_LONG, Compiler, Told
from comparison import Difference, differences_of, pairs_of
from differences import known, known_refusal
from entries import Program, items_of
from foreign import compare_foreign
from generator import has_variable, program_of
from importer import Importer
from mainframe import wrong_ones
from running import measure
from shrink import shrink
from writer import Source, write

TOGETHER = 500  # Programs that are in files at a time.


class Pairing(NamedTuple):
    """A dialect, and how the compiler is told to follow it."""
    dialect: str
    options: List[str]
    without: FrozenSet[str]  # What of its programs the two do not mean to do alike.


# Words that the compiler knows only as it comes.
ITS_OWN = frozenset({'BINARY-INT', 'BINARY-LONG-LONG'})

# What of the mainframe's dialect the compiler does otherwise when it is told to follow it: COMP-5 of
# one byte, and boundaries of what the mainframe does not align.
NOT_OF_IBM = ITS_OWN | {'small COMP-5'}
# What the mainframe does not know at all.
NOT_OF_MAINFRAME = NOT_OF_IBM | {'COMP-N', 'COMPUTATIONAL-N', 'FLOAT-DECIMAL-16', 'FLOAT-DECIMAL-34'}
NOT_ALIGNED = {'sync COMP-X', 'sync COMP-N', 'sync FLOAT-DECIMAL-34'}

PAIRINGS = [
    Pairing('gnucobol', [], frozenset()),
    Pairing('compact', ['-fbinary-size=1--8'], frozenset()),
    Pairing('natural', ['-std=ibm'], frozenset(NOT_OF_IBM | NOT_ALIGNED)),
    # Addresses have another size there, and slack bytes another place: of SYNCHRONIZED the compiler
    # proves nothing for this dialect. compare_with_manual() does, as far as a second reading of the
    # manual does; nothing of it was ever run on the mainframe.
    Pairing('ibm', ['-std=ibm'], frozenset(NOT_OF_IBM | {'address', 'sync', 'groupsync'})),
]


# What the compiler proves of programs as they stand: of "ibm" not the addresses, nor SYNCHRONIZED.
FOREIGN = ['gnucobol', 'natural']


def counters_of(program: Program, source: Source) -> Dict[int, int]:
    """The most that items hold which tables depend on, by the number of the statement that shows
    them."""
    items = items_of(program)
    most = {id(item.occurs.depending): item.occurs.most for item in items
            if item.occurs is not None and item.occurs.depending is not None}
    return {at: most[id(items[number].entry)] for at, number in enumerate(source.shown)
            if id(items[number].entry) in most}


class Trial:
    """Programs, and what both sides say of them."""

    def __init__(self, folder: Path, pairing: Pairing, tool: str):
        self.folder = folder
        self.compiler = Compiler(pairing.options)
        self.importer = Importer(tool, pairing.dialect)

    def run(self, programs: List[Program]) -> Dict[str, Tuple[Told, int, List[Difference], Counter]]:
        shutil.rmtree(self.folder, ignore_errors=True)
        self.folder.mkdir(parents=True)
        sources = {program.name: write(program) for program in programs}
        for source in sources.values():
            for name, text in source.files.items():
                (self.folder / name).write_text(text)
        told = self.compiler.ask(
            self.folder, sources, {program.name: program.options for program in programs},
            {program.name: counters_of(program, sources[program.name]) for program in programs})
        dictionaries = self.importer.ask(self.folder, [
            program.name for program in programs if not told[program.name].error])
        results = {}
        for program in programs:
            name, reasons, left = program.name, Counter(), []
            items = 0
            if not told[name].error:
                pairs = None
                if dictionaries[name] is None:
                    left = [Difference('refused', None, self.importer.problems(name), '')]
                else:
                    pairs = pairs_of(program, sources[name], told[name], dictionaries[name])
                    if pairs is None:
                        left = [Difference('other items', None, '', '')]
                    else:
                        items = sum(pair.field is not None for pair in pairs)
                for difference in differences_of(pairs, sources[name], told[name]) if pairs else ():
                    row = known(difference, pairs)
                    if row is None:
                        left.append(difference)
                    else:
                        reasons[row.reason] += 1
            results[name] = (told[name], items, left, reasons)
        return results


def kind_of(difference: Difference) -> str:
    """What failures are counted by: refused ones by what is said, without names."""
    if difference.item is not None:
        return difference.what
    error = next((line for line in str(difference.ours).splitlines() if ' error: ' in line), '')
    return re.sub(r'\b\w*[0-9]\w*\b|\S+-\d+', 'N', f'{difference.what} {error.partition(" error: ")[2]}')


def tell(difference: Difference) -> str:
    if difference.item is None:
        return f'{difference.what}: {difference.ours}'.strip()
    return f'{difference.what} of {difference.item.name or "FILLER"}: ' \
        f'{difference.ours}, the compiler says {difference.theirs}'


def smallest(trial: Trial, program: Program, difference: Difference) -> Program:
    def holds(candidate: Program) -> bool:
        told, _, left, _ = trial.run([candidate])[candidate.name]
        return not told.error and any(kind_of(other) == kind_of(difference) for other in left)
    return shrink(program, holds)


def compare(pairing: Pairing, arguments: argparse.Namespace, folder: Path) -> bool:
    trial = Trial(folder / pairing.dialect, pairing, arguments.tool)
    began = time.monotonic()
    items = compiled = hung = 0
    reasons: Counter = Counter()
    refusals: Counter = Counter()
    kinds: Counter = Counter()
    failures: List[Tuple[Program, Difference]] = []
    not_compiled: List[str] = []
    for begin in range(0, arguments.programs, TOGETHER):
        programs = [program_of(f'{arguments.seed}/{number}', f'P{number:05d}', pairing.without)
                    for number in range(begin, min(begin + TOGETHER, arguments.programs))]
        results = trial.run(programs)
        for program in programs:
            told, compared, left, known_ones = results[program.name]
            if told.error == TOO_LONG:
                hung += 1
                continue
            refusal = known_refusal(program, told.error) if told.error else None
            if refusal is not None:
                refusals[refusal.reason] += 1
                continue
            if told.error:
                not_compiled.append(f'{program.name}: {told.error.splitlines()[0]}')
                continue
            compiled += 1
            items += compared
            reasons += known_ones
            if left:
                kinds[kind_of(left[0])] += 1
                failures.append((program, left[0]))
    print(f'{pairing.dialect}: {compiled} programs with {items} items compared in '
          f'{time.monotonic() - began:.0f} s, {len(failures)} of them differ, '
          f'{len(not_compiled)} do not compile')
    if hung:
        print(f'  {hung:6} programs that the compiler hangs on are left out')
    for reason, count in refusals.most_common():
        print(f'  {count:6} programs are left out: the compiler {reason}')
    for reason, count in reasons.most_common():
        print(f'  {count:6} known: the compiler {reason}')
    for line in not_compiled[:3]:
        print(f'  not compiled: {line}')
    for what, count in kinds.most_common():
        print(f'  {count:6} programs differ first in: {what}')
    shown = Counter()
    for program, difference in failures:
        if shown[kind_of(difference)] >= arguments.show:
            continue
        shown[kind_of(difference)] += 1
        small = smallest(trial, program, difference)
        left = trial.run([small])[small.name][2]
        print(f'\n{program.name} of seed {arguments.seed}, in short:')
        for text in write(small, shows=False).files.values():
            print(text, end='')
        for other in left[:5]:
            print('  ' + tell(other))
    return not failures and not not_compiled


def compare_with_manual(arguments: argparse.Namespace, folder: Path) -> bool:
    """Compares places in dialect "ibm", slack bytes and all, with those that the manual's rules give."""
    importer = Importer(arguments.tool, 'ibm')
    items = 0
    failures: List[str] = []
    for begin in range(0, arguments.programs, TOGETHER):
        programs = [program_of(f'{arguments.seed}/{number}', f'P{number:05d}', NOT_OF_MAINFRAME)
                    for number in range(begin, min(begin + TOGETHER, arguments.programs))]
        here = folder / 'manual'
        shutil.rmtree(here, ignore_errors=True)
        here.mkdir(parents=True)
        for program in programs:
            for name, text in write(program).files.items():
                (here / name).write_text(text)
        dictionaries = importer.ask(here, [program.name for program in programs])
        for program in programs:
            dictionary = dictionaries[program.name]
            if dictionary is None:
                failures.append(f'{program.name}: {importer.problems(program.name)}')
                continue
            items += len(dictionary)
            wrong = wrong_ones(program, dictionary)
            if wrong:
                first = wrong[0]
                failures.append(f'{program.name}: {first.what} of {first.item.name or "FILLER"} is '
                                f'{first.ours}, by the manual {first.manual}')
    print(f'ibm by the manual: {items} items of {arguments.programs} programs, '
          f'{len(failures)} programs differ')
    for failure in failures[:arguments.show]:
        print(f'  {failure}')
    return not failures


def prove(pairing: Pairing, arguments: argparse.Namespace, folder: Path) -> bool:
    """Compares what is read out of the compiler's C text with what running programs say."""
    trial = Trial(folder / pairing.dialect, pairing, arguments.tool)
    programs = [program_of(f'{arguments.seed}/{number}', f'P{number:05d}', pairing.without)
                for number in range(arguments.programs)]
    results = trial.run(programs)
    measured = measure(trial.folder, programs, pairing.options)
    compared, different = 0, []
    for program in programs:
        told, items = results[program.name][0], items_of(program)
        fields = dict(zip(write(program).shown, told.shown))
        for number, (offset, length) in measured[program.name].items():
            record = items.index(items[number].record())
            if number not in fields or record not in fields or told.error:
                continue
            compared += 1
            # Of what holds tables of no fixed size, running programs count lengths otherwise.
            if has_variable(items[number].entry):
                length = fields[number].size
            if (fields[number].offset - fields[record].offset, fields[number].size) != (offset, length):
                different.append(f'{program.name}: {items[number].name}')
    print(f'{pairing.dialect}: {compared} items of {len(programs)} programs measured in running ones, '
          f'{len(different)} of them differ {different[:5] or ""}')
    return not different


def main() -> int:
    parser = argparse.ArgumentParser(prog='./run cobc', description=__doc__)
    parser.add_argument('programs', nargs='?', type=int, default=10000, help='how many (10000)')
    parser.add_argument('--seed', default='1', help='what they come from (1)')
    parser.add_argument('--dialect', action='append', choices=[one.dialect for one in PAIRINGS],
                        help='only this one, or these')
    parser.add_argument('--show', type=int, default=2, help='how many failures of a kind are told (2)')
    parser.add_argument('--tool', default='agentservices', help='the tool whose import is tried')
    parser.add_argument('--running', action='store_true', help='run the programs, too, which takes '
                        'long, and compare what they say with what was read of the compiler')
    parser.add_argument('--sources', action='append', type=Path, metavar='FOLDER', help='compare '
                        'programs that others wrote, in place of those that are made up: those of the '
                        'sources in these folders that the compiler takes')
    arguments = parser.parse_args()
    tool = shutil.which(arguments.tool)
    if tool is None:
        parser.error(f'there is no {arguments.tool}')
    arguments.tool = str(Path(tool).resolve())
    if arguments.sources:
        results = [compare_foreign(arguments.sources, arguments.tool, pairing.dialect, pairing.options,
                                   arguments.show)
                   for pairing in PAIRINGS if pairing.dialect in (arguments.dialect or FOREIGN)]
        return 0 if all(results) else 1
    memory = Path('/dev/shm')
    folder = Path(tempfile.mkdtemp(prefix='agentservices-', dir=memory if memory.is_dir() else None))
    try:
        results = [(prove if arguments.running else compare)(pairing, arguments, folder) for pairing in PAIRINGS
                   if not arguments.dialect or pairing.dialect in arguments.dialect]
        if not arguments.running and (not arguments.dialect or 'ibm' in arguments.dialect):
            results.append(compare_with_manual(arguments, folder))
    finally:
        shutil.rmtree(folder)
    return 0 if all(results) else 1


if __name__ == '__main__':
    sys.exit(main())
