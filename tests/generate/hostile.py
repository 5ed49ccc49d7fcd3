"""Services with names and values made to do harm to whatever is made of them."""

from pathlib import Path
from typing import Iterator, Tuple
from urllib.parse import quote
from xml.sax.saxutils import quoteattr

NAMES = {
    'quotes': 'a"b\'c`d',
    'brackets': '</xs:schema><x a="1">&amp;]]>',
    'comments': '*/ /* // -- --> <!-- {- -} \\u002a/ \\',
    'lines': 'one\ntwo\r\nthree\tfour\u0085five\u2028six',
    'blanks': '   ',
    'instructions': '?><?xml version="1.0"?>',
    'numbers': '1ST',
    'digit': '7',
    'cobol': 'LK-REQ-NO',
    'letters': '\u00c4rger \u4f60\u597d \U0001f4a5 \u202e',
    'paths': '../../etc/passwd',
    'uri': 'a%2Fb?c=d#e{f}',
    'empty': '-',
    'format': '%s%n${x}#{y}$(z)',
    'long': 'n' * 1_000_000,
}
# zeep writes no message with a value called self: only one service has such.
RESERVED = ['class', 'int', 'NULL', 'xml', 'value', '_value_1', 'item', 'constructor', '__proto__',
            'toString', 'None', 'end', 'interface', 'namespace', 'schema', 'type', 'default']

URI = 'http://agentservices.example/schema/{0}/v{1}/vor{0}.xsd'
VERSIONS = {'ws': '1.0', 'com': '1.0', 'dotnet': '1.0', 'java': '2.0'}
WORDS = {'ws': ('string', 'int', 'decimal'), 'com': ('string', 'int', 'currency'),
         'dotnet': ('String', 'Int32', 'Decimal'), 'java': ('String', 'int', 'BigDecimal')}


def attributes(**values: str) -> str:
    text = ''.join(f' {name}={quoteattr(value)}' for name, value in values.items())
    # An attribute's line ends would be read as blanks.
    return text.replace('\n', '&#10;').replace('\r', '&#13;').replace('\t', '&#9;')


def declared(flavour: str, name: str) -> str:
    uri = URI.format(flavour, VERSIONS[flavour])
    return (f' xmlns="{uri}" xmlns:xsi="http://www.w3.org/2001/XMLSchema-instance" '
            f'xsi:schemaLocation="{uri} {uri}"'
            + attributes(name=name, implementation=flavour, programName=name, dataDictFilename='dictionary.xml'))


def service(flavour: str, name: str, others) -> str:
    words = WORDS[flavour]
    styles = ['document', 'rpc'] if flavour == 'ws' else ['']

    def field(of: str, element: str, word: str, **more: str) -> str:
        return f'<{element}{attributes(name=of, dataType=word, **more)}/>'

    def operation(of: str, style: str) -> str:
        soap = attributes(style=style, inputUse='literal', outputUse='literal',
                          inputNamespace='urn:' + quote(name[:1000]), outputNamespace='urn:x') if style else ''
        members = ''.join(field(other, 'field', words[number % 3]) for number, other in enumerate(others))
        return (f'<operation{attributes(name=of, entryPoint=name)}{soap}><parameters>'
                + ''.join(field(other, 'parameter', words[number % 3], byType=('in', 'out', 'io')[number % 3])
                          for number, other in enumerate(others))
                + f'<parameter{attributes(name=name + "s", byType="io")}>{members}</parameter>'
                + f'<parameter{attributes(name=name + "t", byType="io", ref=name)}/>'
                + '</parameters></operation>')

    members = ''.join(field(other, 'field', words[number % 3]) for number, other in enumerate(others))
    operations = ''.join(operation(name + str(number), style) for number, style in enumerate(styles))
    return (f'<service{declared(flavour, name)}>'
            f'<properties><property{attributes(name=name, value=name)}/></properties>'
            f'<parameterTypeDefs><parameter{attributes(name=name)}>{members}</parameter>'
            f'<parameter{attributes(name=name.upper() + "X")}>{members}</parameter></parameterTypeDefs>'
            f'<operations>{operations}</operations></service>')


def dictionary(name: str, others) -> str:
    """The program of a service, with items of those names, in a record and outside."""
    uri = 'http://agentservices.example/schema/cobol/v2.0/vorcobol.xsd'

    def items(first: int) -> str:
        return ''.join(
            f'<alphanumeric{attributes(name=other, picture="X(8)", offset=str(8 * number + first), length="8")}>'
            f'<alphanumericCondition{attributes(name=other)}>'
            f'<alphanumericConstant{attributes(value=other)}/></alphanumericCondition>'
            '</alphanumeric>' for number, other in enumerate(others))

    return (f'<program xmlns="{uri}" xmlns:xsi="http://www.w3.org/2001/XMLSchema-instance" '
            f'xsi:schemaLocation="{uri} {uri}"{attributes(name=name)}>'
            f'<dataItems><group{attributes(name=name, length=str(8 * len(others)))}>{items(0)}'
            f'</group>{items(0)}</dataItems><entryPoints><entryPoint{attributes(name=name)}/></entryPoints>'
            '</program>')


def services(folder: Path) -> Iterator[Tuple[str, Path]]:
    folder.mkdir(parents=True, exist_ok=True)
    for flavour in VERSIONS:
        file = folder / 'nothing' / f'nothing-{flavour}.xml'
        file.parent.mkdir(exist_ok=True)
        (file.parent / 'dictionary.xml').write_text(dictionary('NOTHING', ['A']), encoding='utf-8')
        file.write_text(f'<service{declared(flavour, "NOTHING")}><operations/></service>', encoding='utf-8')
        yield flavour, file
        for word, name in NAMES.items():
            others = [other for other in NAMES.values() if len(other) < 1000] + RESERVED
            if word == 'long':
                others = [name + 'a', name + 'b']
            file = folder / word / f'{word}-{flavour}.xml'
            file.parent.mkdir(exist_ok=True)
            (file.parent / 'dictionary.xml').write_text(dictionary(name, others), encoding='utf-8')
            file.write_text(service(flavour, name, others), encoding='utf-8')
            yield flavour, file
        for word in [*RESERVED, 'self']:
            others = [*RESERVED, *({word} - set(RESERVED))]
            file = folder / word / f'reserved-{word}-{flavour}.xml'
            file.parent.mkdir(exist_ok=True)
            (file.parent / 'dictionary.xml').write_text(dictionary(word, others), encoding='utf-8')
            file.write_text(service(flavour, word, others), encoding='utf-8')
            yield flavour, file
