"""Services made of random data divisions: the programs of tests/cobc, imported, with every record handed
over to the entry point."""

import subprocess
import sys
from pathlib import Path
from typing import Iterator, List, Tuple

from lxml import etree

sys.path.append(str(Path(__file__).resolve().parent.parent / 'cobc'))

from generator import program_of  # noqa: E402
from writer import write  # noqa: E402

TOGETHER = 100  # Programs that are made up at a time.


def hand_over_all(file: Path) -> None:
    """Has the entry point take each record that has a name of its own, those of files, too."""
    tree = etree.parse(str(file))
    root = tree.getroot()
    space = root.tag.partition('}')[0] + '}' if root.tag.startswith('{') else ''
    entry = root.find(f'.//{space}entryPoint')
    records = root.find(f'{space}dataItems')
    if entry is None or records is None:
        return
    for items in root.findall(f'.//{space}fileSection//{space}dataItems'):
        records.extend(list(items))
    seen = set()
    for record in records:
        name = record.get('name') if isinstance(record.tag, str) else None
        if not name or name == 'FILLER' or name in seen or record.get('renames'):
            continue
        seen.add(name)
        etree.SubElement(entry, f'{space}parameter', dataItem=name, byType='reference')
    tree.write(str(file), encoding='UTF-8', xml_declaration=True)


def made_up(folder: Path, seed: str, begin: int, end: int) -> List[Path]:
    """Sources of so many random programs."""
    folder.mkdir(parents=True, exist_ok=True)
    sources = []
    for number in range(begin, end):
        program = program_of(f'{seed}/{number}', f'P{number:05d}', frozenset())
        for name, text in write(program).files.items():
            (folder / name).write_text(text)
        sources.append(folder / f'{program.name}.cob')
    return sources


def services_of(tool: str, folder: Path, sources: List[Path], flavours,
                *options: str) -> Iterator[Tuple[str, Path]]:
    """Flavour and file of the services of sources: of all entry points, which take every record."""
    dictionaries = folder / 'dictionaries'
    dictionaries.mkdir(parents=True, exist_ok=True)
    for source in sources:
        dictionary = dictionaries / f'{source.stem}.xml'
        subprocess.run([tool, 'import', *options, '-o', str(dictionary), str(source)],
                       capture_output=True, check=False)
        if not dictionary.exists():
            continue
        hand_over_all(dictionary)
        for flavour in flavours:
            service = folder / f'{source.stem}-{flavour}.xml'
            made = subprocess.run([tool, 'new', '--flavour', flavour, str(dictionary), '-o', str(service)],
                                  capture_output=True, text=True, errors='replace', check=False)
            if made.returncode != 0:
                raise SystemExit(f'{dictionary}: new fails: {made.stdout}{made.stderr}')
            yield flavour, service


def services(tool: str, folder: Path, seed: str, count: int, flavours) -> Iterator[Tuple[str, Path]]:
    """Those of so many random programs."""
    for begin in range(0, count, TOGETHER):
        sources = made_up(folder / 'sources', seed, begin, min(begin + TOGETHER, count))
        yield from services_of(tool, folder, sources, flavours, '--dialect', 'gnucobol')


def programs_in(folder: Path) -> List[Path]:
    """The sources of programs with an entry point, each name once."""
    sources = {}
    for source in sorted(folder.rglob('*')):
        if source.suffix.lower() not in ('.cbl', '.cob') or not source.is_file():
            continue
        if b'PROCEDURE' in source.read_bytes().upper():
            sources.setdefault(source.stem.upper(), source)
    return list(sources.values())
