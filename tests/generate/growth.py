"""Time grows with the service: one of 2,000 operations takes ten times that of one of 200, and no more
than two times that of reading it and its dictionary."""

import resource
import shutil
import subprocess
from pathlib import Path
from typing import List

# With the flavour of the services that each is made of.
KINDS = {'wsdl': 'ws', 'xsd': 'ws', 'jsonschema': 'ws', 'openapi': 'ws', 'markdown': 'ws',
         'java': 'java', 'csharp': 'dotnet', 'idl': 'com'}
FIELDS = range(9)

SCHEMA = 'http://agentservices.example/schema'
COBOL = f'{SCHEMA}/cobol/v2.0/vorcobol.xsd'
WEB = f'{SCHEMA}/ws/v1.0/vorws.xsd'


def root(name: str, uri: str, attributes: str) -> str:
    return (f'<{name} xmlns="{uri}" xmlns:xsi="http://www.w3.org/2001/XMLSchema-instance" '
            f'xsi:schemaLocation="{uri} {uri}" {attributes}>')


def item(number: int) -> str:
    if number % 2:
        return f'<numeric name="FIELD-{number}" picture="9(4)" length="4" digits="4"/>'
    return f'<alphanumeric name="FIELD-{number}" picture="X(10)" length="10"/>'


def dictionary(operations: int) -> str:
    """A record and an entry point for each operation."""
    items = ''.join(map(item, FIELDS))
    records = ''.join(f'<group name="RECORD-{number}" length="66">{items}</group>\n' for number in range(operations))
    entries = ''.join(f'<entryPoint name="ENTRY-{number}"><parameter dataItem="RECORD-{number}" '
                      'byType="reference"/></entryPoint>\n' for number in range(operations))
    return (root('program', COBOL, 'name="LARGE"') + f'<dataItems>{records}</dataItems>'
            f'<entryPoints>{entries}</entryPoints></program>')


def field(tag: str, name: str, record: int, number: int, attributes: str = '') -> str:
    kind = 'int' if number % 2 else 'string'
    return (f'<{tag} name="{name}" dataType="{kind}"{attributes}><mappings>'
            f'<mapping item="RECORD-{record}.FIELD-{number}"/></mappings></{tag}>')


def operation(number: int) -> str:
    fields = ''.join(field('field', f'f{inner}', number, inner) for inner in FIELDS)
    return (f'<operation name="o{number}" entryPoint="ENTRY-{number}" style="rpc" inputUse="literal" '
            'outputUse="literal" inputNamespace="urn:in" outputNamespace="urn:out"><parameters>'
            f'<parameter name="p" byType="io">{fields}</parameter>'
            + field('parameter', 'q', number, 0, ' byType="in"') + '</parameters></operation>\n')


def service(operations: int, source: str) -> str:
    return (root('service', WEB, f'name="Large" implementation="ws" programName="LARGE" dataDictFilename="{source}"')
            + '<operations>' + ''.join(map(operation, range(operations))) + '</operations></service>')


def seconds(command) -> float:
    """The least time of the processor in five attempts: what else runs counts less."""
    best = None
    for _ in range(5):
        began = resource.getrusage(resource.RUSAGE_CHILDREN)
        subprocess.run(command, check=True, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        ended = resource.getrusage(resource.RUSAGE_CHILDREN)
        took = ended.ru_utime + ended.ru_stime - began.ru_utime - began.ru_stime
        best = took if best is None else min(best, took)
    return best


def documents(tool: str, folder: Path, flavour: str, operations: int) -> List[Path]:
    """A service of so many operations and its dictionary."""
    source = folder / f'dictionary-{operations}.xml'
    web = folder / f'large-ws-{operations}.xml'
    if not web.exists():
        source.write_text(dictionary(operations))
        web.write_text(service(operations, source.name))
    made = folder / f'large-{flavour}-{operations}.xml'
    if not made.exists():
        subprocess.run([tool, 'convert', '--flavour', flavour, str(web), '-o', str(made)], check=True,
                       stdout=subprocess.DEVNULL)
    return [made, source]


def prove(tool: str, folder: Path) -> bool:
    folder.mkdir(parents=True, exist_ok=True)
    for file in folder.glob('*.xml'):
        file.unlink()
    reading = {}
    fine = True
    for kind, flavour in KINDS.items():
        few, many = (documents(tool, folder, flavour, operations) for operations in (200, 2000))
        if flavour not in reading:
            reading[flavour] = seconds([tool, 'validate', *map(str, many)])
            looking = seconds([tool, 'lint', str(many[0])])
            print(f'2000 operations, {flavour}: reading takes {reading[flavour]:.2f} s, lint {looking:.2f} s',
                  flush=True)
        took = []
        for files in (few, many):
            out = folder / kind
            shutil.rmtree(out, ignore_errors=True)
            took.append(seconds([tool, 'generate', kind, str(files[0]), '-o', str(out) + '/']))
        growth = took[1] / took[0]
        to_reading = took[1] / reading[flavour]
        # Ten times and twice, with room for what else a machine does.
        is_fine = growth < 15 and to_reading < 2.1
        print(f'{"" if is_fine else "FAILED "}{kind}: {took[1]:.2f} s, {growth:.1f} times that of 200 '
              f'operations, {to_reading:.2f} times that of reading', flush=True)
        fine = fine and is_fine
    return fine
