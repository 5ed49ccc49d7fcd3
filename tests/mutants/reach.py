"""Which test suites reach which lines: one run of each suite with the counters of gcov."""

import json
import os
import queue
import subprocess
import tempfile
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

# In the order in which they are asked: those that need no link come first.
PROGRAMS = ('api', 'toolkit', 'schema', 'cli', 'hostile', 'unit', 'memory', 'toolkit_memory',
            'toolkit_unit')


def suites_of(program: Path) -> list:
    """The names of the suites of a test program, as --gtest_filter wants them."""
    listed = subprocess.run([program, '--gtest_list_tests'], check=True, capture_output=True,
                            text=True).stdout
    return [line.split()[0].rstrip('.') for line in listed.splitlines()
            if line[:1] not in ('', ' ') and line.split()[0].endswith('.')]


class Reach:
    """For each suite ("api:Mapping") the seconds that it takes and the lines that it reaches."""

    def __init__(self, suites: dict):
        self.suites = suites
        self.counted = {}  # For each file the lines that gcov counts.
        for suite in suites.values():
            for file, lines in suite['lines'].items():
                self.counted.setdefault(file, set()).update(lines)

    @staticmethod
    def load(kept: Path, root: Path, build: Path, goes_on: bool) -> 'Reach':
        """Measures, unless what was measured last is younger than the test programs."""
        programs = [build / 'tests' / f'{name}_tests' for name in PROGRAMS]
        if not kept.exists() or not goes_on and any(
                kept.stat().st_mtime < program.stat().st_mtime for program in programs):
            kept.write_text(json.dumps(measure(root, build)))
        return Reach(json.loads(kept.read_text()))

    def suites_for(self, file: str, line: int) -> tuple:
        """The suites that reach a line, and whether that is known; all of them if not. A line
        without code of its own goes with those in front of it: it continues a statement."""
        # Rows of a table are data, which suites look at that do not reach its place in the source.
        if file.endswith('.def'):
            return list(self.suites), False
        counted = self.counted.get(file, set())
        # Those of death tests end without telling which lines they reached.
        deadly = [name for name in self.suites if 'DeathTest' in name]
        known = next((n for n in range(line, max(0, line - 6), -1) if n in counted), None)
        if known is None:
            return list(self.suites), False
        reaching = [name for name, suite in self.suites.items()
                    if known in suite['lines'].get(file, ())]
        return reaching + [name for name in deadly if name not in reaching], True


class Bench:
    """A folder of its own in which suites are run, one after the other."""

    def __init__(self, root: Path, build: Path, scratch: str):
        self.root, self.build, self.scratch = root, build, scratch
        # Beside each file of counts gcov looks for what the compiler told about the source.
        for note in build.glob('CMakeFiles/*/**/*.gcno'):
            place = Path(scratch + str(note.parent))
            place.mkdir(parents=True, exist_ok=True)
            (place / note.name).symlink_to(note)

    def run(self, program: str, suite: str) -> dict:
        test = subprocess.Popen([self.build / 'tests' / f'{program}_tests', '--gtest_brief=1',
                                 f'--gtest_filter={suite}.*'],
                                env=dict(os.environ, GCOV_PREFIX=self.scratch), cwd=self.scratch,
                                stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        _, status, used = os.wait4(test.pid, 0)
        test.returncode = os.waitstatus_to_exitcode(status)
        if test.returncode != 0:
            raise RuntimeError(f'{program}:{suite} fails')
        return {'seconds': used.ru_utime + used.ru_stime,
                'lines': lines_reached(self.root, self.scratch)}


def measure(root: Path, build: Path) -> dict:
    suites = [(program, suite) for program in PROGRAMS
              for suite in suites_of(build / 'tests' / f'{program}_tests')]
    with tempfile.TemporaryDirectory() as scratch:
        free = queue.SimpleQueue()
        for number in range(os.cpu_count() or 1):
            free.put(Bench(root, build, f'{scratch}/{number}'))

        def run(suite: tuple) -> tuple:
            bench = free.get()
            try:
                return ':'.join(suite), bench.run(*suite)
            finally:
                free.put(bench)

        with ThreadPoolExecutor(free.qsize()) as threads:
            return dict(threads.map(run, suites))


def lines_reached(root: Path, scratch: str) -> dict:
    """Reads the counts and removes them."""
    counts = [str(path) for path in Path(scratch).rglob('*.gcda')]
    reached = {}
    if counts:
        told = subprocess.run(['gcov', '--json-format', '--stdout', *counts], check=True,
                              cwd=scratch, stdout=subprocess.PIPE,
                              stderr=subprocess.DEVNULL).stdout
        for document in told.splitlines():
            for file in json.loads(document)['files']:
                name = os.path.relpath(file['file'], root)
                if name.startswith('src/'):
                    reached.setdefault(name, set()).update(
                        line['line_number'] for line in file['lines'] if line['count'] > 0)
    for path in counts:
        os.remove(path)
    return {file: sorted(lines) for file, lines in reached.items() if lines}
