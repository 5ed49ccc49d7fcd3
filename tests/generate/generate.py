"""Proves what generate makes with tools that nobody here wrote: of every example service, of services
made of random data divisions, and of services with names and values made to do harm."""

import argparse
import json
import re
import shutil
import subprocess
import sys
import tempfile
import time
from collections import Counter
from pathlib import Path
from typing import Callable, Dict, List

import growth
import guide
import hostile
import languages
import made
import soap

HERE = Path(__file__).resolve().parent
EXAMPLES = HERE.parent.parent / 'examples'
FLAVOURS = ['ws', 'com', 'dotnet', 'java']
CHANGED = re.compile(r": '([^\n]*)' is no name in XML, or taken: '([^\n]*)' stands for it\n")
# How the tool shows control characters.
CONTROL = re.compile(r'\\u(00(?:[0189][0-9A-F]|7F))')
PARTS = ['examples', 'guide', 'hostile', 'made', 'sources', 'languages', 'growth']
COMPILED = 20  # One in so many of the services that are made up goes through gsoap.


class Prover:
    def __init__(self, tool: str, folder: Path, modules: str):
        self.tool = tool
        self.folder = folder
        self.modules = modules
        self.renamed: Dict[str, str] = {}
        self.failures: List[str] = []
        self.counts: Counter = Counter()
        self.schemas: List[str] = []
        self.broken: Counter = Counter()

    def generate(self, kind: str, source: Path, folder: Path, *options: str) -> List[Path]:
        """Answers the files; `renamed` holds the names that were changed."""
        result = subprocess.run([self.tool, 'generate', kind, str(source), '-o', str(folder) + '/', '--verbose',
                                 *options], capture_output=True, text=True, errors='replace', check=False)
        if result.returncode != 0:
            raise soap.Failure(f'{kind} of {source}: {result.stdout[-500:]}{result.stderr[-500:]}')
        self.renamed = {CONTROL.sub(lambda told: chr(int(told[1], 16)), told[1]): told[2]
                        for told in CHANGED.finditer(result.stdout)}
        return sorted(folder.iterdir())

    def attempt(self, what: str, work: Callable[[], None]) -> None:
        try:
            work()
        except Exception as failure:  # Readers have exceptions of all kinds.
            self.failures.append(f'{what}: {type(failure).__name__}: {str(failure)[:600]}')

    def prove(self, service: Path, flavour: str, is_compiled: bool = True) -> None:
        """Everything of one service."""
        folder = self.folder / 'made' / service.stem
        shutil.rmtree(folder, ignore_errors=True)
        self.counts['services'] += 1
        self.attempt(f'{service} xsd', lambda: self.prove_schemas(service, folder / 'xsd'))
        self.attempt(f'{service} json', lambda: self.collect_json(service, folder / 'json'))
        if flavour == 'ws':
            self.attempt(f'{service} wsdl', lambda: self.prove_soap(service, folder))
            if is_compiled:
                self.attempt(f'{service} gsoap', lambda: self.prove_gsoap(folder))

    def prove_schemas(self, service: Path, folder: Path) -> None:
        self.generate('xsd', service, folder)
        soap.Schema(main_schema(folder))
        self.counts['schemas'] += 1

    def collect_json(self, service: Path, folder: Path) -> None:
        files = self.generate('jsonschema', service, folder)
        files = self.generate('openapi', service, folder, '--set', 'examples=all')
        self.schemas += map(str, files)
        self.counts['JSON documents'] += len(files)

    def prove_soap(self, service: Path, folder: Path) -> None:
        wsdl = self.generate('wsdl', service, folder / 'wsdl')[0]
        openapi = next((folder / 'json').glob('*.openapi.json'))
        self.counts['messages'] += soap.prove(wsdl, main_schema(folder / 'xsd'), openapi, self.renamed)
        apart = folder / 'apart'
        self.generate('wsdl', service, apart, '--set', 'schema=separate')
        soap.Schema(main_schema(apart))
        self.counts['WSDL documents'] += 2

    def prove_gsoap(self, folder: Path) -> None:
        wsdl = next((folder / 'wsdl').glob('*.wsdl'))
        work = folder / 'gsoap'
        work.mkdir()
        for command in (['wsdl2h', '-o', 's.h', str(wsdl)],
                        ['soapcpp2', '-C', '-I/usr/share/gsoap/import', '-I/usr/share/gsoap', 's.h'],
                        ['g++', '-fsyntax-only', 'soapC.cpp'], ['g++', '-fsyntax-only', 'soapClient.cpp']):
            result = subprocess.run(command, cwd=work, capture_output=True, text=True, check=False)
            if result.returncode != 0:
                raise soap.Failure(f'{command}: {(result.stdout + result.stderr)[-600:]}')
        self.counts['programs of gsoap'] += 1

    def judge_json(self) -> None:
        """All JSON documents that were collected."""
        together = 100
        for begin in range(0, len(self.schemas), together):
            files = self.schemas[begin:begin + together]
            result = subprocess.run(['node', str(HERE / 'json_check.js'), *files],
                                    capture_output=True, text=True, check=False,
                                    env={'NODE_PATH': self.modules, 'PATH': '/usr/local/bin:/usr/bin:/bin'})
            if result.returncode != 0:
                self.failures.append(f'JSON: {result.stderr[-800:]}')
                continue
            told = json.loads(result.stdout)
            self.counts['samples in JSON'] += told['samples']
            self.broken.update(told['broken'])
        self.schemas = []


def main_schema(folder: Path) -> Path:
    """The one that imports the others: of the shortest name."""
    return min(folder.glob('*.xsd'), key=lambda file: len(file.name))


def tell(what: str, prover: Prover, began: float) -> None:
    counts = ', '.join(f'{count} {name}' for name, count in prover.counts.items())
    print(f'{what}: {counts}; {time.monotonic() - began:.0f} s', flush=True)
    for failure in prover.failures[:10]:
        print(f'  FAILED {failure}')
    if len(prover.failures) > 10:
        print(f'  and {len(prover.failures) - 10} others')


def main() -> int:
    parser = argparse.ArgumentParser(prog='./run test-generate', description=__doc__)
    parser.add_argument('programs', nargs='?', type=int, default=100,
                        help='services are made of so many random data divisions (100 unless told)')
    parser.add_argument('--tool', required=True, help=argparse.SUPPRESS)
    parser.add_argument('--modules', required=True, help=argparse.SUPPRESS)
    parser.add_argument('--seed', default='1', help='other programs for another seed')
    parser.add_argument('--keep', help='a folder for what is made, which stays')
    parser.add_argument('--sources', type=Path, help='a folder with COBOL programs to make services of, too')
    parser.add_argument('--only', choices=PARTS, action='append', help='a part of it; all unless told')
    arguments = parser.parse_args()
    folder = Path(arguments.keep or tempfile.mkdtemp(prefix='generate-'))
    folder.mkdir(parents=True, exist_ok=True)

    def run(what: str, work: Callable[[Prover], None]) -> bool:
        prover = Prover(arguments.tool, folder / what.replace(' ', '-'), arguments.modules)
        began = time.monotonic()
        work(prover)
        prover.judge_json()
        if what == 'examples' and len(prover.broken) < 20:
            prover.failures.append(f'only {len(prover.broken)} rules were broken: {dict(prover.broken)}')
        tell(what, prover, began)
        if prover.broken:
            print(f'  {sum(prover.broken.values())} wrong values of {len(prover.broken)} kinds refused')
        return not prover.failures

    def prove_examples(prover: Prover) -> None:
        for flavour in FLAVOURS:
            for service in sorted(EXAMPLES.glob(f'*-{flavour}.xml')):
                prover.prove(service, flavour)
        for dictionary in sorted(set(EXAMPLES.glob('*.xml')) - set(EXAMPLES.glob('*-*.xml'))):
            prover.attempt(str(dictionary), lambda source=dictionary: prover.prove_schemas(
                source, prover.folder / 'made' / source.stem / 'xsd'))

    def prove_guide(prover: Prover) -> None:
        callers = list(guide.callers(HERE.parent.parent / 'docs'))
        prover.failures += [f'no document has a caller of {kind}' for kind in guide.missing(callers)]

        def call(caller: guide.Caller) -> None:
            place = prover.folder / caller.kind
            place.mkdir(parents=True)
            prover.generate(caller.kind, EXAMPLES / caller.service, place)
            guide.call(caller, place)
            prover.counts['callers'] += 1

        for caller in callers:
            prover.attempt(f'the caller of {caller.kind}', lambda one=caller: call(one))

    def prove_made(prover: Prover) -> None:
        services = made.services(arguments.tool, prover.folder, arguments.seed, arguments.programs, FLAVOURS)
        for number, (flavour, service) in enumerate(services):
            prover.prove(service, flavour, number // len(FLAVOURS) % COMPILED == 0)

    def prove_sources(prover: Prover) -> None:
        services = made.foreign_services(arguments.tool, prover.folder, arguments.sources, arguments.seed,
                                         arguments.programs, FLAVOURS)
        for number, (flavour, service) in enumerate(services):
            prover.prove(service, flavour, number // len(FLAVOURS) % COMPILED == 0)

    def prove_hostile(prover: Prover) -> None:
        for flavour, service in hostile.services(prover.folder / 'documents'):
            # gsoap makes no client of nothing, and reads no name of a million letters.
            prover.prove(service, flavour, service.parent.name not in ('nothing', 'long'))

    work = {
        'examples': lambda: run('examples', prove_examples),
        'guide': lambda: run('guide', prove_guide),
        'hostile': lambda: run('hostile names and values', prove_hostile),
        'made': lambda: run('made of random data divisions', prove_made),
        'sources': lambda: arguments.sources is None or run('programs of a folder', prove_sources),
        'languages': lambda: languages.prove(arguments.tool, folder / 'languages', arguments.seed,
                                             arguments.programs, arguments.sources),
        'growth': lambda: growth.prove(arguments.tool, folder / 'growth'),
    }
    try:
        failed = not all([work[part]() for part in arguments.only or PARTS])
    finally:
        if not arguments.keep:
            shutil.rmtree(folder, ignore_errors=True)
    return 1 if failed else 0


if __name__ == '__main__':
    sys.exit(main())
