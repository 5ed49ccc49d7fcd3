"""Has the importer make dictionaries of programs."""

import shutil
import subprocess
from pathlib import Path
from typing import Dict, List, Optional

import dictionary
from dictionary import Placed


class Importer:
    def __init__(self, tool: str, dialect: str):
        self.tool = tool
        self.dialect = dialect
        self.said = ''

    def ask(self, folder: Path, names: List[str]) -> Dict[str, Optional[List[Placed]]]:
        """The items of each program; None where no dictionary was made."""
        out = folder / 'dictionaries'
        shutil.rmtree(out, ignore_errors=True)
        out.mkdir()
        output = out / f'{names[0]}.xml' if len(names) == 1 else out
        result = subprocess.run(
            [self.tool, 'import', '--dialect', self.dialect, '--output', str(output),
             *(f'{name}.cob' for name in names)],
            cwd=folder, capture_output=True, text=True, errors='replace', check=False)
        self.said = result.stdout + result.stderr
        return {name: dictionary.read(out / f'{name}.xml') if (out / f'{name}.xml').exists() else None
                for name in names}

    def problems(self, name: str) -> str:
        """What was said of a program that there is no dictionary of."""
        said = [line for line in self.said.splitlines() if name in line]
        errors = [line for line in said if ': error: ' in line]
        return (errors or said or [self.said])[0]
