"""Makes single changes of the library's and the toolkit's source and tells which no test notices.

What is built already is used: the test programs and objects of build/dev, and build/coverage to see
which suites reach a line. A change costs the compilation of what it is in, a link, and the suites
that reach it, the quick ones first, until one fails. Sources, objects and programs are copied into
build/mutants first: the work on them may go on, and is not disturbed.
"""

import argparse
import fnmatch
import json
import os
import random
import resource
import shlex
import shutil
import subprocess
import sys
import time
from collections import Counter, defaultdict
from pathlib import Path
from typing import NamedTuple, Optional

from changes import KINDS, Change, changes_of
from reach import PROGRAMS, Reach

ROOT = Path(__file__).resolve().parents[2]
DEV = ROOT / 'build' / 'dev'
WORK = ROOT / 'build' / 'mutants'
BASE = WORK / 'base'  # What there is before anything is changed ...
NOW = WORK / 'now'  # ... and the present change.
LAYERS = [row.split()[:2] for row in (ROOT / 'src/layers.txt').read_text().splitlines()
          if row[:1].isalpha()]
CHANGED = {'AgentServices': 'libAgentServices.so', 'AgentServicesToolkit': 'libAgentServicesToolkit.so'}
LINKED_WITH_OBJECTS = ('unit', 'memory', 'toolkit_unit')
MEMORY = 4 << 30
ROUNDS = (0.4, 3, float('inf'))  # Up to so many seconds suites are run together.


class Mutant(NamedTuple):
    file: str
    line: int
    change: Change
    told: str  # The change in words.
    source: str  # The line as it stands.

    def key(self) -> str:
        """What stays when lines are put in front of it."""
        return f'{self.file}: {self.told}: {self.source}'

    def place(self) -> str:
        return f'{self.file}@{self.change.start} {self.told}'


def mutants_of(file: str) -> list:
    text = (BASE / file).read_text()
    lines = text.splitlines()
    found = []
    for change in changes_of(text):
        was = text[change.start:change.end]
        if not was.strip():
            continue
        line = text.count('\n', 0, change.start + len(was) - len(was.lstrip())) + 1
        told = f'{change.kind} {" ".join(was.split())} -> ' + \
            (' '.join(change.text.split()) or 'nothing')
        found.append(Mutant(file, line, change, told, lines[line - 1].strip()))
    return found


def all_mutants(only: list, without: list) -> list:
    found = []
    for layer, library in LAYERS:
        if library not in CHANGED:
            continue
        for path in sorted((BASE / 'src' / layer).rglob('*')):
            file = str(path.relative_to(BASE))
            if path.suffix not in ('.cpp', '.h', '.def'):
                continue
            if only and not any(fnmatch.fnmatch(file, pattern) for pattern in only):
                continue
            if not any(fnmatch.fnmatch(file, pattern) for pattern in without):
                found += mutants_of(file)
    return found


def in_turn(mutants: list, seed: int):
    """The mutants of each kind in an order of chance; the kinds take turns."""
    chance = random.Random(seed)
    kinds = {kind: [m for m in mutants if m.change.kind == kind] for kind in KINDS}
    for of_kind in kinds.values():
        chance.shuffle(of_kind)
    while any(kinds.values()):
        for of_kind in kinds.values():
            if of_kind:
                yield of_kind.pop()


def link_command(target: str) -> list:
    """The words of the command that links it."""
    told = subprocess.run(['ninja', '-C', DEV, '-t', 'commands', target], check=True,
                          capture_output=True, text=True).stdout
    return told.splitlines()[-1].removeprefix(': &&').removesuffix('&& :').split()


class Build:
    """Compiles and links what a mutant is in, from the commands of build/dev."""

    def __init__(self, goes_on: bool):
        self.objects = {}  # Those of the present mutant, in place of others.
        kept = BASE / 'commands.json'
        if not goes_on:
            shutil.rmtree(BASE, ignore_errors=True)
            commands = self._read()
            self._keep(commands)
            kept.write_text(json.dumps(commands))
        commands = json.loads(kept.read_text())
        self.compile = commands['compile']  # For each source the command, and its object.
        self.users = commands['users']  # For each header the sources that include it.
        self.links = commands['links']

    @staticmethod
    def _read() -> dict:
        """The commands of build/dev, as lists of words."""
        compiled, links, users = {}, {}, defaultdict(list)
        for entry in json.loads((DEV / 'compile_commands.json').read_text()):
            file = os.path.relpath(entry['file'], ROOT)
            if file.startswith('src/'):
                words = [word.replace(f'-I{ROOT}', f'-I{BASE}')
                         for word in shlex.split(entry['command'])
                         if word != '-g' and not word.startswith('-W')]
                at = words.index('-o')
                compiled[file] = (words[:at], words[at + 1])
        source_of = {obj: file for file, (_, obj) in compiled.items()}
        told = subprocess.run(['ninja', '-C', DEV, '-t', 'deps'], check=True, capture_output=True,
                              text=True).stdout
        source = None
        for line in told.splitlines():
            if line[:1] not in ('', ' '):
                source = source_of.get(line.split(':')[0])
            elif source and line.strip():
                users[os.path.relpath(DEV / line.strip(), ROOT)].append(source)
        for name, library in CHANGED.items():
            links[name] = link_command(f'{library}.1.0.0')
        for name in LINKED_WITH_OBJECTS:
            links[name] = link_command(f'tests/{name}_tests')
        return {'compile': compiled, 'users': users, 'links': links}

    @staticmethod
    def _keep(commands: dict):
        """Copies what is used; in the links the copies take the place of what was copied."""
        for folder in ('src', 'include'):
            shutil.copytree(ROOT / folder, BASE / folder)
        programs = [f'tests/{name}_tests' for name in PROGRAMS]
        libraries = [f'{library}.1' for library in CHANGED.values()]
        words = {word for link in commands['links'].values() for word in link
                 if not word.startswith('/') and (DEV / word).is_file()}
        for file in {*programs, *libraries, *words}:
            (BASE / file).parent.mkdir(parents=True, exist_ok=True)
            shutil.copy(DEV / file, BASE / file)

    def library_of(self, file: str) -> str:
        folder = file.split('/')[1]
        return next(library for layer, library in LAYERS if layer == folder)

    def make(self, mutant: Optional[Mutant]) -> bool:
        """Compiles the mutant and links its library; false when it does not compile."""
        shutil.rmtree(NOW, ignore_errors=True)
        NOW.mkdir(parents=True)
        self.objects = {}
        libraries = set(CHANGED)
        if mutant is not None:
            text = (BASE / mutant.file).read_text()
            change = mutant.change
            changed = NOW / mutant.file
            changed.parent.mkdir(parents=True)
            changed.write_text(text[:change.start] + change.text + text[change.end:])
            libraries = set()
            sources = [mutant.file] if mutant.file in self.compile else \
                self.users.get(mutant.file, [])
            for number, source in enumerate(sources):
                command, replaced = self.compile[source]
                obj = str(NOW / f'{number}.o')
                # A changed header is found in front of the other.
                command = [command[0], f'-I{NOW}/src', *command[1:], '-w', '-o', obj, '-c',
                           str(changed if source == mutant.file else BASE / source)]
                if subprocess.run(command, cwd=DEV, stderr=subprocess.DEVNULL).returncode != 0:
                    return False
                self.objects[replaced] = obj
                libraries.add(self.library_of(source))
        return all(self._link(library, NOW / f'{CHANGED[library]}.1')
                   for library in libraries)

    def program(self, name: str) -> Path:
        """The test program to run: one that has the objects of the library inside is linked."""
        if name not in LINKED_WITH_OBJECTS:
            return BASE / 'tests' / f'{name}_tests'
        program = NOW / f'{name}_tests'
        if not program.exists():
            self._link(name, program)
        return program

    def _link(self, name: str, place: Path) -> bool:
        kept = {word: str(BASE / word) for word in self.links[name] if (BASE / word).is_file()}
        words = [self.objects.get(word, kept.get(word, word)) for word in self.links[name]]
        words[words.index('-o') + 1] = str(place)
        words += ['-fuse-ld=lld', '-Wl,--strip-debug']
        return subprocess.run(words, cwd=DEV, stderr=subprocess.DEVNULL).returncode == 0


def limits(seconds: float):
    def apply():
        resource.setrlimit(resource.RLIMIT_CPU, (int(seconds), int(seconds) + 1))
        resource.setrlimit(resource.RLIMIT_AS, (MEMORY, MEMORY))
        resource.setrlimit(resource.RLIMIT_CORE, (0, 0))
    return apply


class Tests:
    def __init__(self, build: Build, reach: Reach):
        self.build = build
        self.reach = reach

    def fails(self, program: str, suites: list) -> bool:
        seconds = sum(self.reach.suites[f'{program}:{suite}']['seconds'] for suite in suites)
        chosen = ':'.join(f'{suite}.*' for suite in suites)
        command = [self.build.program(program), '--gtest_brief=1', '--gtest_fail_fast',
                   f'--gtest_filter={chosen}']
        environment = dict(os.environ, LD_LIBRARY_PATH=f'{NOW}:{BASE}')
        # The time that is limited is the processor's, whatever else runs; a test that waits for
        # ever is ended, too.
        try:
            done = subprocess.run(command, env=environment, cwd=WORK, stdout=subprocess.DEVNULL,
                                  stderr=subprocess.DEVNULL, timeout=600,
                                  preexec_fn=limits(5 + 3 * seconds))
        except subprocess.TimeoutExpired:
            return True
        return done.returncode != 0

    def noticed_by(self, suites: list, file: str = '') -> Optional[str]:
        """The program that notices. First come the suites that are most about the file: that reach
        much of it in little time."""
        def worth(name: str) -> float:
            suite = self.reach.suites[name]
            return (1 + len(suite['lines'].get(file, ()))) / (suite['seconds'] + 0.02)
        spent, rounds = 0.0, [[] for _ in ROUNDS]
        for name in sorted(suites, key=worth, reverse=True):
            spent += self.reach.suites[name]['seconds']
            rounds[next(i for i, end in enumerate(ROUNDS) if spent <= end)].append(name)
        for names in rounds:
            for program in PROGRAMS:
                chosen = [name.split(':', 1)[1] for name in names if name.startswith(program + ':')]
                if chosen and self.fails(program, chosen):
                    return program
        return None


def answers() -> dict:
    """The changes that need no test, each with the reason: lines "file: change: line | reason"."""
    rows = (Path(__file__).parent / 'answered.txt').read_text().splitlines()
    return dict(row.rsplit(' | ', 1) for row in rows if ' | ' in row and not row.startswith('#'))


def keep(file: Path, value):
    """Writes it whole or not at all: a run may be ended at any time."""
    file.with_suffix('.new').write_text(json.dumps(value))
    file.with_suffix('.new').replace(file)


def try_out(mutant: Mutant, build: Build, tests: Tests) -> str:
    began = time.monotonic()
    if not build.make(mutant):
        return 'invalid'
    suites, known = tests.reach.suites_for(mutant.file, mutant.line)
    program = tests.noticed_by(suites, mutant.file) if suites else None
    where = f'{mutant.file}:{mutant.line}: {mutant.told} ({time.monotonic() - began:.1f} s)'
    if program is not None:
        print(f'noticed by {program}: {where}', flush=True)
        return 'noticed'
    reached = f'{len(suites)} suites reach it' if known else 'all suites were run'
    print(f'UNNOTICED {where}\n    {mutant.source}\n    {reached}', flush=True)
    return 'unnoticed'


def main() -> int:
    parser = argparse.ArgumentParser(prog='./run mutants', description=__doc__.split('\n')[0])
    parser.add_argument('count', nargs='?', type=int, default=300, help='how many changes (300)')
    parser.add_argument('--seed', type=int, default=1, help='what chooses them (1)')
    parser.add_argument('--only', action='append', default=[], metavar='PATTERN',
                        help='of files whose path has a match of this, or one of these')
    parser.add_argument('--without', action='append', default=[], metavar='PATTERN',
                        help='of no file whose path has a match of this')
    parser.add_argument('--again', action='store_true',
                        help='only those that the last run left unnoticed')
    parser.add_argument('--go-on', action='store_true',
                        help='where the last run, of the same arguments, was ended')
    parser.add_argument('--least', type=float, default=95, help='per cent that are to be noticed')
    told = parser.parse_args()

    WORK.mkdir(parents=True, exist_ok=True)
    build = Build(told.go_on)
    reach = Reach.load(WORK / 'reach.json', ROOT, ROOT / 'build' / 'coverage', told.go_on)
    tests = Tests(build, reach)
    unnoticed_file, done_file = WORK / 'unnoticed.json', WORK / 'done.json'
    mutants = in_turn(all_mutants(told.only, told.without), told.seed)
    count = told.count
    if told.again:
        last = set(json.loads(unnoticed_file.read_text()))
        mutants = [mutant for mutant in all_mutants([], []) if mutant.key() in last]
        count = len(mutants)
    done = json.loads(done_file.read_text()) if told.go_on else {}

    # With nothing changed nothing may fail: else every change would count as noticed.
    if not told.go_on and (not build.make(None) or tests.noticed_by(list(reach.suites))):
        print('the tests fail before anything is changed', file=sys.stderr)
        return 1

    answered = answers()
    verdicts = Counter()
    unnoticed = []
    print(f'seed {told.seed}', flush=True)
    for mutant in mutants:
        if sum(verdicts.values()) - verdicts['invalid'] >= count:
            break
        verdict = 'answered' if mutant.key() in answered else \
            done.get(mutant.place()) or try_out(mutant, build, tests)
        verdicts[verdict] += 1
        if verdict == 'unnoticed':
            unnoticed.append(mutant.key())
        done[mutant.place()] = verdict
        keep(done_file, done)
        keep(unnoticed_file, unnoticed)

    tried = verdicts['noticed'] + verdicts['unnoticed']
    share = 100 * verdicts['noticed'] / tried if tried else 100.0
    print(f'{tried} changes, {verdicts["noticed"]} noticed ({share:.1f} %), '
          f'{verdicts["unnoticed"]} not; {verdicts["answered"]} more need no test (answered.txt), '
          f'{verdicts["invalid"]} did not compile')
    for key in unnoticed:
        print(key)
    return 0 if share >= told.least else 1


if __name__ == '__main__':
    sys.exit(main())
