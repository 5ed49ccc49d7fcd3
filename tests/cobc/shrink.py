"""Takes away from a program what is not needed for something to be true of it."""

import copy
from typing import Callable, Iterator, List

from entries import Entry, Program

# What an entry may do without, each with what it is then.
CLAUSES = (('value', ''), ('sync', ''), ('sign', ''), ('just', False), ('blank', False),
           ('redefines', None), ('occurs', None), ('usage', ''), ('typedef', False))


def holders(program: Program) -> Iterator[List[Entry]]:
    """Every list that entries stand in."""
    for section in program.sections:
        yield section.records
        for record in section.records:
            for entry in record.walk():
                yield entry.members


def changes(program: Program) -> Iterator[Callable[[Program], None]]:
    """Changes that make the program smaller, the large ones first. Each finds its place by number,
    because it is made in a copy."""
    def without_section(number: int) -> Callable[[Program], None]:
        def change(copied: Program) -> None:
            del copied.sections[number]
        return change

    def without(list_number: int, begin: int, end: int) -> Callable[[Program], None]:
        def change(copied: Program) -> None:
            del list(holders(copied))[list_number][begin:end]
        return change

    def flattened(list_number: int, number: int) -> Callable[[Program], None]:
        def change(copied: Program) -> None:
            entries = list(holders(copied))[list_number]
            entries[number:number + 1] = entries[number].members
        return change

    def plain(list_number: int, number: int, clause: str, value: object) -> Callable[[Program], None]:
        def change(copied: Program) -> None:
            setattr(list(holders(copied))[list_number][number], clause, value)
        return change

    def attribute(name: str, value: object) -> Callable[[Program], None]:
        def change(copied: Program) -> None:
            setattr(copied, name, value)
        return change

    if program.style:
        yield attribute('style', 0)
    for number in range(len(program.sections)):
        yield without_section(number)
    lists = list(holders(program))
    for size in (8, 4, 2, 1):
        for list_number, entries in enumerate(lists):
            for begin in range(0, len(entries), size):
                if size == 1 or len(entries) > size:
                    yield without(list_number, begin, begin + size)
    for list_number, entries in enumerate(lists):
        for number, entry in enumerate(entries):
            if entry.members and list_number >= len(program.sections):
                yield flattened(list_number, number)
            if entry.conditions:
                yield plain(list_number, number, 'conditions', [])
            if entry.flags:
                yield plain(list_number, number, 'flags', [])
            for clause, value in CLAUSES:
                if getattr(entry, clause) not in (value, None):
                    yield plain(list_number, number, clause, value)
    if program.is_comma:
        yield attribute('is_comma', False)
    if program.currency:
        yield attribute('currency', '')
    for option in program.options:
        yield attribute('options', [other for other in program.options if other != option])


def shrink(program: Program, holds: Callable[[Program], bool], tries: int = 400) -> Program:
    """The smallest program found for which it still holds, after so many tries at most."""
    smaller = True
    while smaller:
        smaller = False
        for change in changes(program):
            tries -= 1
            if tries < 0:
                return program
            candidate = copy.deepcopy(program)
            change(candidate)
            if is_sound(candidate) and holds(candidate):
                program = candidate
                smaller = True
                break
    return program


def is_sound(program: Program) -> bool:
    """Whether all entries that others name are there."""
    entries = list(program.entries())
    there = {id(entry) for entry in entries}
    for entry in entries:
        named = [entry.redefines, entry.like] + list(entry.renamed or ())
        if entry.occurs is not None:
            named += [entry.occurs.depending, entry.occurs.key]
            if entry.occurs.key is not None and entry.occurs.key not in entry.members:
                return False
        if any(other is not None and id(other) not in there for other in named):
            return False
    return True
