"""What makes sure that generated files are what they are to be: tools that nobody here wrote."""

import re
import subprocess
import tempfile
from pathlib import Path
from typing import Callable, List, NamedTuple, Optional

TOGETHER = 100  # Files that a compiler is given at a time.


class Kind(NamedTuple):
    word: str
    flavours: List[str]
    takes_dictionaries: bool
    option: str  # What takes a name that keeps files apart; empty for none.
    compile: Callable[[List[Path]], str]  # What is wrong with the files; empty when nothing is.


def run(command: List[str], folder: Optional[str] = None) -> str:
    result = subprocess.run(command, cwd=folder, capture_output=True, text=True, errors='replace', check=False)
    said = (result.stdout + result.stderr).strip()
    return '' if result.returncode == 0 else said or f'{command[0]} ends with {result.returncode}'


def javac(files: List[Path]) -> str:
    with tempfile.TemporaryDirectory() as folder:
        return run(['javac', '-encoding', 'UTF-8', '-Xlint:all', '-Xdoclint:all,-missing', '-Xmaxerrs', '10',
                    '-Werror', '-d', folder, *map(str, files)])


def mcs(files: List[Path]) -> str:
    with tempfile.TemporaryDirectory() as folder:
        return run(['mcs', '-warnaserror', '-warn:4', '-target:library', '-codepage:utf8',
                    '-reference:System.Numerics', f'-doc:{folder}/made.xml', f'-out:{folder}/made.dll',
                    *map(str, files)])


def widl(files: List[Path]) -> str:
    """Headers and type libraries of each. (It leaves folders of its own where it works.)"""
    with tempfile.TemporaryDirectory() as folder:
        said = []
        for file in files:
            said += [run(['/usr/lib/wine/widl', '-h', '-o', 'made.h', str(file.resolve())], folder),
                     run(['/usr/lib/wine/widl', '-t', '-o', 'made.tlb', str(file.resolve())], folder)]
            if not Path(folder, 'made.tlb').exists():
                said.append(f'{file}: there is no type library')
            Path(folder, 'made.tlb').unlink(missing_ok=True)
        return '\n'.join(filter(None, said))


def tables(files: List[Path]) -> str:
    """Rows of tables have as many cells as their heads, and links lead somewhere."""
    wrong = []
    for file in files:
        columns = 0
        text = file.read_text(encoding='utf-8')
        for number, line in enumerate(text.split('\n'), 1):
            if not line.startswith('|'):
                columns = 0
                continue
            cells = len(re.findall(r'(?<!\\)(?:\\\\)*\|', line))
            columns = columns or cells
            if cells != columns:
                wrong.append(f'{file}:{number}: {cells - 1} cells in a row of {columns - 1}')
        anchors = set(re.findall(r'<a id="([^"]*)">', text))
        wrong += [f'{file}: #{link} leads nowhere'
                  for link in re.findall(r'\]\(#([^)]*)\)', text) if link not in anchors]
    return '\n'.join(wrong[:10])


KINDS = [
    Kind('java', ['java'], True, 'package', javac),
    Kind('csharp', ['dotnet'], True, 'namespace', mcs),
    Kind('idl', ['com'], False, '', widl),
    Kind('markdown', ['com', 'dotnet', 'java', 'ws'], True, '', tables),
]
