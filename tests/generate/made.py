"""Services made of random data divisions: the programs of tests/cobc, imported, with every record handed
over to the entry point."""

import subprocess
import sys
from pathlib import Path
from typing import Iterator, Tuple

from lxml import etree

sys.path.append(str(Path(__file__).resolve().parent.parent / 'cobc'))

from generator import program_of  # noqa: E402
from writer import write  # noqa: E402

TOGETHER = 100  # Programs that are imported at a time.


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


def services(tool: str, folder: Path, seed: str, count: int, flavours) -> Iterator[Tuple[str, Path]]:
    """Flavour and file of the services of so many programs."""
    for begin in range(0, count, TOGETHER):
        sources = folder / 'sources'
        sources.mkdir(parents=True, exist_ok=True)
        names = []
        for number in range(begin, min(begin + TOGETHER, count)):
            program = program_of(f'{seed}/{number}', f'P{number:05d}', frozenset())
            for name, text in write(program).files.items():
                (sources / name).write_text(text)
            names.append(program.name)
        dictionaries = folder / 'dictionaries'
        subprocess.run([tool, 'import', '--dialect', 'gnucobol', '-o', str(dictionaries) + '/',
                        *(str(sources / f'{name}.cob') for name in names),
                        *([str(sources / f'{names[0]}.cob')] if len(names) == 1 else [])],
                       capture_output=True, check=False)
        for name in names:
            dictionary = dictionaries / f'{name}.xml'
            if not dictionary.exists():
                continue
            hand_over_all(dictionary)
            for flavour in flavours:
                service = folder / f'{name}-{flavour}.xml'
                made = subprocess.run([tool, 'new', '--flavour', flavour, str(dictionary), '-o', str(service)],
                                      capture_output=True, text=True, check=False)
                if made.returncode != 0:
                    raise SystemExit(f'{dictionary}: new fails: {made.stdout}{made.stderr}')
                yield flavour, service
