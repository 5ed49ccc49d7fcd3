"""Compiles what the kinds for programming languages make of the examples in every flavour, of
documents that are made to do harm, and of random data divisions: the same ones for the same seed."""

import argparse
import subprocess
import sys
import tempfile
import time
from pathlib import Path
from typing import List, Optional, Tuple

import harmful
import made
from compilers import KINDS, TOGETHER, Kind

ROOT = Path(__file__).resolve().parents[2]
FLAVOURS = ['com', 'dotnet', 'java', 'ws']
MEGABYTE = 1024 * 1024

Documents = Tuple[List[Tuple[str, Path]], List[Path]]  # Services with their flavours; dictionaries.


class Trial:
    """One kind: what it makes is collected, and compiled many files at a time."""

    def __init__(self, kind: Kind, tool: str, folder: Path):
        self.kind = kind
        self.tool = tool
        self.folder = folder
        self.made: List[Path] = []
        self.count = 0
        self.failures: List[str] = []

    def generate(self, document: Path) -> None:
        self.count += 1
        out = self.folder / f'{self.kind.word}{self.count}'
        command = [self.tool, 'generate', self.kind.word, str(document), '-o', f'{out}/']
        if self.kind.option:
            command += ['--set', f'{self.kind.option}=p{self.count}']
        result = subprocess.run(command, capture_output=True, text=True, errors='replace', check=False)
        if result.returncode != 0:
            errors = [line[:300] for line in result.stdout.splitlines() + result.stderr.splitlines()
                      if ' error: ' in line]
            self.failures.append(f'{document.name}: nothing is generated: {errors[:3]}')
            return
        self.made += out.iterdir()

    def compile(self) -> None:
        for begin in range(0, len(self.made), TOGETHER):
            said = self.kind.compile(self.made[begin:begin + TOGETHER])
            if said:
                self.failures.append(said[:3000])

    def run(self, documents: Documents) -> None:
        services, dictionaries = documents
        for flavour, service in services:
            if flavour in self.kind.flavours:
                self.generate(service)
        if self.kind.takes_dictionaries:
            for dictionary in dictionaries:
                self.generate(dictionary)
        self.compile()


def examples(tool: str, folder: Path) -> Documents:
    """The services of the examples, and what they are in the other flavours."""
    services, dictionaries = [], []
    for source in sorted((ROOT / 'examples').glob('*.cbl')):
        name = source.stem
        dictionaries.append(ROOT / 'examples' / f'{name}.xml')
        (folder / f'{name}.xml').write_bytes(dictionaries[-1].read_bytes())
        for flavour in FLAVOURS:
            service = ROOT / 'examples' / f'{name}-{flavour}.xml'
            services.append((flavour, service))
            for other in FLAVOURS:
                out = folder / f'{name}-{flavour}-{other}.xml'
                if other != flavour and subprocess.run(
                        [tool, 'convert', str(service), '--flavour', other, '-o', str(out)],
                        capture_output=True, check=False).returncode == 0:
                    services.append((other, out))
    return services, dictionaries


def hostile(folder: Path) -> Documents:
    names = harmful.NAMES + harmful.reserved(ROOT / 'src' / 'toolkit' / 'generate')
    sets = {'words': names, 'long': ['n' * MEGABYTE, '*/' * (MEGABYTE // 2), '\u00e4' * MEGABYTE]}
    services, dictionaries = [], []
    for label, chosen in sets.items():
        dictionaries.append(folder / f'{label}.xml')
        dictionaries[-1].write_text(harmful.dictionary(chosen), encoding='utf-8')
        for flavour in harmful.FLAVOURS:
            services.append((flavour, folder / f'{label}-{flavour}.xml'))
            services[-1][1].write_text(harmful.service(flavour, chosen, f'{label}.xml'), encoding='utf-8')
    return services, dictionaries


def random_ones(tool: str, folder: Path, seed: str, programs: int) -> Documents:
    services = list(made.services(tool, folder, seed, programs, FLAVOURS))
    return services, made.dictionaries_in(folder)


def foreign_ones(tool: str, folder: Path, sources: Path, seed: str, programs: int) -> Documents:
    services = list(made.foreign_services(tool, folder, sources, seed, programs, FLAVOURS))
    return services, made.dictionaries_in(folder)


def prove(tool: str, folder: Path, seed: str, programs: int, sources: Optional[Path] = None,
          kinds=tuple(KINDS)) -> bool:
    """Whether everything is generated, and compiles."""
    is_fine = True

    def tell(what: str, part: Path, documents: Documents) -> None:
        nonlocal is_fine
        for kind in kinds:
            began = time.monotonic()
            trial = Trial(kind, tool, part)
            trial.run(documents)
            is_fine = is_fine and bool(trial.made) and not trial.failures
            print(f'{kind.word} of {what}: {len(trial.made)} files of {trial.count} documents, '
                  f'{time.monotonic() - began:.0f} s', flush=True)
            for failure in trial.failures[:5]:
                print(f'  FAILED {failure}')

    def part(name: str) -> Path:
        (folder / name).mkdir(parents=True)
        return folder / name

    tell('examples', part('examples'), examples(tool, folder / 'examples'))
    tell('hostile names and values', part('hostile'), hostile(folder / 'hostile'))
    if programs > 0:
        tell('random data divisions', part('random'), random_ones(tool, folder / 'random', seed, programs))
    if sources:
        tell('programs of a folder', part('foreign'),
             foreign_ones(tool, folder / 'foreign', sources, seed, programs))
    return is_fine


def main() -> int:
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument('programs', nargs='?', type=int, default=100, help='how many data divisions')
    parser.add_argument('--tool', required=True)
    parser.add_argument('--seed', default='1')
    parser.add_argument('--kind', choices=[kind.word for kind in KINDS])
    parser.add_argument('--keep', help='a folder to leave everything in')
    arguments = parser.parse_args()
    kinds = [kind for kind in KINDS if arguments.kind in (None, kind.word)]
    with tempfile.TemporaryDirectory() as temporary:
        folder = Path(arguments.keep or temporary)
        return 0 if prove(arguments.tool, folder, arguments.seed, arguments.programs, None, kinds) else 1


if __name__ == '__main__':
    sys.exit(main())
