"""Runs the callers that the documents show, on what is generated for them: they print what the documents
say. A caller stands behind a line that tells the kind, and the service it is made of."""

import re
import subprocess
import sys
from pathlib import Path
from typing import Iterator, List, NamedTuple, Optional

CALLER = re.compile(r'<!-- caller (\w+) (\S+) -->\n\n```\w+\n(.*?)```\n(?:\nIt prints:\n\n```text\n(.*?)```\n)?',
                    re.DOTALL)
KINDS = ['wsdl', 'xsd', 'jsonschema', 'openapi', 'java', 'csharp', 'idl']


class Caller(NamedTuple):
    kind: str
    service: str
    code: str
    prints: Optional[str]  # A line that ends with "..." may go on. None for what is compiled alone.


# Where the caller's code goes, and the commands that compile and run it. Nothing but Windows has COM.
WAYS = {
    'java': ('Caller.java', [['javac', '-Xlint:all', '-Werror', '-d', '.', 'Caller.java', 'Payslip.java'],
                             ['java', '-cp', '.', 'Caller']]),
    'csharp': ('Caller.cs', [['mcs', '-warnaserror', '-reference:System.Numerics', '-out:Caller.exe',
                              'Caller.cs', 'Payslip.cs'],
                             ['mono', 'Caller.exe']]),
    'idl': ('caller.cpp', [['/usr/lib/wine/widl', '-h', '-o', 'Payslip.h', 'Payslip.idl'],
                           ['/usr/lib/wine/widl', '-u', '-o', 'Payslip_i.c', 'Payslip.idl'],
                           ['g++', '-fsyntax-only', '-I/usr/include/wine/wine/windows', 'caller.cpp']]),
}
PYTHON = ('caller.py', [[sys.executable, 'caller.py']])


def callers(documents: Path) -> Iterator[Caller]:
    for document in sorted(documents.glob('generate*.md')):
        for found in CALLER.finditer(document.read_text(encoding='utf-8')):
            yield Caller(*found.groups())


def is_as_told(told: str, printed: str) -> bool:
    expected, lines = told.splitlines(), printed.splitlines()
    return len(expected) == len(lines) and all(
        line.startswith(part[:-3]) if part.endswith('...') else line == part
        for part, line in zip(expected, lines))


def call(caller: Caller, folder: Path) -> None:
    """In the folder, which holds what was generated."""
    name, commands = WAYS.get(caller.kind, PYTHON)
    (folder / name).write_text(caller.code, encoding='utf-8')
    printed = ''
    for command in commands:
        result = subprocess.run(command, cwd=folder, capture_output=True, text=True, check=False)
        if result.returncode != 0:
            raise RuntimeError(f'{command[0]}: {(result.stdout + result.stderr)[-600:]}')
        printed = result.stdout
    if caller.prints is not None and not is_as_told(caller.prints, printed):
        raise RuntimeError(f'it prints {printed!r}')


def missing(found: List[Caller]) -> List[str]:
    """Kinds that no document has a caller of."""
    return [kind for kind in KINDS if kind not in (caller.kind for caller in found)]
