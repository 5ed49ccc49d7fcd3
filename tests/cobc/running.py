"""Asks running programs where their items are: addresses and lengths as the program itself sees them.

Slow, and independent of how the C text of the compiler is read: it proves that.
"""

import copy
import subprocess
from pathlib import Path
from typing import Dict, List, Tuple

from compiler import COMMAND
from entries import Entry, Picture, Program, Section, items_of, references_of
from writer import write

OFF, NUMBER, BASE, LENGTH, AREA = 'X-POINTER', 'X-NUMBER', 'X-BASE', 'X-LENGTH', 'X-AREA'


def own_items() -> List[Entry]:
    pointer = Entry(1, OFF, usage='POINTER')
    return [pointer, Entry(1, NUMBER, usage='BINARY-DOUBLE', redefines=pointer),
            Entry(1, BASE, usage='BINARY-DOUBLE'), Entry(1, LENGTH, usage='BINARY-DOUBLE'),
            Entry(1, AREA, picture=Picture('X(2000000)', 'alphanumeric'))]


def measuring(program: Program) -> Tuple[str, Dict[str, str]]:
    """The files of a program that tells of its items."""
    program = copy.deepcopy(program)
    program.style = 0
    items = items_of(program)
    references = references_of(items)
    procedure: List[List[str]] = []
    for item in items:
        if item.occurs is not None and item.occurs.depending is not None and not item.is_type:
            procedure.append(['MOVE', str(item.occurs.most), 'TO', item.occurs.depending.name])
    # Counters in the linkage section have no place before their records have one.
    places: List[List[str]] = []
    for item in items:
        if item.parent is None and item.name and item.entry.kind == 'item' and not item.is_type and \
                (item.section.name == 'LINKAGE' or 'BASED' in item.entry.flags) and \
                item.entry.redefines is None:
            places.append(['SET', 'ADDRESS', 'OF', item.name, 'TO', 'ADDRESS', 'OF', AREA])
    procedure = places + procedure
    of_record = None
    for number, (item, reference) in enumerate(zip(items, references)):
        record = item.record()
        if reference is None or item.is_type or not record.name or record.is_type:
            continue
        if of_record is not record:
            of_record = record
            name = references[items.index(record)]
            procedure.append(['SET', OFF, 'TO', 'ADDRESS', 'OF', *name.split()])
            procedure.append(['MOVE', NUMBER, 'TO', BASE])
        procedure.append(['SET', OFF, 'TO', 'ADDRESS', 'OF', *reference.split()])
        procedure.append(['COMPUTE', NUMBER, '=', NUMBER, '-', BASE])
        procedure.append(['MOVE', 'LENGTH', 'OF', *reference.split(), 'TO', LENGTH])
        procedure.append(['DISPLAY', f'"{program.name} {number} "', NUMBER, '" "', LENGTH])
    working = next((one for one in program.sections if one.name == 'WORKING-STORAGE'), None)
    if working is None:
        files = sum(one.name == 'FILE' for one in program.sections)
        working = Section('WORKING-STORAGE')
        program.sections.insert(files, working)
    working.records += own_items()
    return write(program, procedure=procedure).files


def measure(folder: Path, programs: List[Program], options: List[str]) -> Dict[str, Dict[int, Tuple[int, int]]]:
    """Offset and length of items by their numbers, program by program."""
    found: Dict[str, Dict[int, Tuple[int, int]]] = {program.name: {} for program in programs}
    for program in programs:
        for name, text in measuring(program).items():
            (folder / name).write_text(text)
        command = ['cobc', '-x', '-O0', *COMMAND[1:2], *COMMAND[4:], *options, *program.options,
                   '-o', program.name, f'{program.name}.cob']
        built = subprocess.run(command, cwd=folder, capture_output=True, text=True, check=False)
        if built.returncode:
            found[program.name] = {}
            print(f'{program.name} is not built: {built.stderr.splitlines()[:2]}')
            continue
        try:
            told = subprocess.run([folder / program.name], cwd=folder, capture_output=True, text=True,
                                  errors='replace', timeout=10, check=False)
        except subprocess.TimeoutExpired:
            print(f'{program.name} takes too long')
            continue
        for line in told.stdout.splitlines():
            name, number, offset, length = line.split()
            found[name][int(number)] = (int(offset), int(length))
        (folder / program.name).unlink()
    return found
