"""Services made of programs, imported, with every record handed over to the entry point: of those of
tests/cobc with random data divisions, and of those of others."""

import random
import subprocess
import sys
from pathlib import Path
from typing import Dict, Iterator, List, Optional, Tuple

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


def dictionaries_in(folder: Path) -> List[Path]:
    """Those that were made there and have a record with a name: nothing is made of others."""
    def has_record(file: Path) -> bool:
        records = etree.parse(str(file)).findall('{*}dataItems/{*}*')
        return any(record.get('name') not in (None, '', 'FILLER') and not record.get('renames')
                   for record in records)

    return list(filter(has_record, sorted((folder / 'dictionaries').glob('*.xml'))))


def dictionary_of(tool: str, folder: Path, source: Path, *options: str) -> Optional[Path]:
    """That of a source, whose entry points take every record; none of one that cannot be imported."""
    dictionary = folder / 'dictionaries' / f'{source.stem}.xml'
    dictionary.parent.mkdir(parents=True, exist_ok=True)
    subprocess.run([tool, 'import', *options, '-o', str(dictionary), str(source)], capture_output=True, check=False)
    if not dictionary.exists():
        return None
    hand_over_all(dictionary)
    return dictionary


def services_of(tool: str, folder: Path, dictionary: Path, flavours) -> Iterator[Tuple[str, Path]]:
    """Flavour and file of the services of a dictionary: of all entry points."""
    for flavour in flavours:
        service = folder / f'{dictionary.stem}-{flavour}.xml'
        made = subprocess.run([tool, 'new', '--flavour', flavour, str(dictionary), '-o', str(service)],
                              capture_output=True, text=True, errors='replace', check=False)
        if made.returncode != 0:
            raise SystemExit(f'{dictionary}: new fails: {made.stdout}{made.stderr}')
        yield flavour, service


def services(tool: str, folder: Path, seed: str, count: int, flavours) -> Iterator[Tuple[str, Path]]:
    """Those of so many random programs."""
    for begin in range(0, count, TOGETHER):
        for source in made_up(folder / 'sources', seed, begin, min(begin + TOGETHER, count)):
            dictionary = dictionary_of(tool, folder, source, '--dialect', 'gnucobol')
            if dictionary:
                yield from services_of(tool, folder, dictionary, flavours)


def foreign_services(tool: str, folder: Path, sources: Path, seed: str, count: int,
                     flavours) -> Iterator[Tuple[str, Path]]:
    """Those of so many programs that can be imported, from anywhere in a folder of projects: the same
    ones for the same seed. Tells how many could not be."""
    copybooks: Dict[str, List[str]] = {}
    found = programs_in(sources)
    random.Random(seed).shuffle(found)
    imported = tried = 0
    for source in found:
        if imported == count:
            break
        project = source.relative_to(sources).parts[0]
        if project not in copybooks:
            copybooks[project] = copybook_options(sources / project)
        tried += 1
        dictionary = dictionary_of(tool, folder, source, *copybooks[project])
        if dictionary:
            imported += 1
            yield from services_of(tool, folder, dictionary, flavours)
    print(f'{imported} programs were imported of {tried} sources, of {len(found)} in the folder', flush=True)


def copybook_options(project: Path) -> List[str]:
    folders = {str(file.parent) for file in project.rglob('*') if file.suffix.lower() in ('.cpy', '.copy')}
    return [option for folder in sorted(folders) for option in ('-I', folder)]


def programs_in(folder: Path) -> List[Path]:
    """The sources of programs with an entry point, each name once."""
    sources = {}
    for source in sorted(folder.rglob('*')):
        if source.suffix.lower() not in ('.cbl', '.cob') or not source.is_file():
            continue
        if b'PROCEDURE' in source.read_bytes().upper():
            sources.setdefault(source.stem.upper(), source)
    return list(sources.values())
