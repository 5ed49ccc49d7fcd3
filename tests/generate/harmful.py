"""Services and dictionaries whose names and values are made to break what is generated of them."""

import re
from pathlib import Path
from typing import Dict, List
from xml.sax.saxutils import quoteattr

URI = 'http://agentservices.example/schema/'
FLAVOURS = {
    'java': (URI + 'java/v2.0/vorjava.xsd', 'String'),
    'com': (URI + 'com/v1.0/vorcom.xsd', 'string'),
    'dotnet': (URI + 'dotnet/v1.0/vordotnet.xsd', 'String'),
}

NAMES = [
    'LK-REQ-NO', 'LK_REQ_NO', 'lkReqNo', 'LkReqNo', '1ST', '1st', '', '-', '_', '__', '$', '9',
    'a*/b', '*/', '*\\', '*\\u002f', '\\u002a/', '\\u002a\\u002f', '\\u000a', '\\u000a}', '\\', '\\\\u0022',
    '"', '\'', '"""', '<b>', '</summary>', ']]>', '&', '&amp;', '{@link X}', '@param x', '-->', '--',
    '/*', '//', '//\\', '??/', '#define X', '%s', '$x', '`', '|', 'a|b', '[a](b)', '~~a~~',
    'new\nline', 'tab\tbed', 'carriage\rreturn', '\x7f', '\x85', '\u2028', '\u2029', '\u200b', '\ufeff',
    'Pr\u00e4mie', '\u00dcber', '\u540d\u524d', '\u03b1\u03b2', '\U0001f600', 'e\u0301', 'I\u0307',
    'bidi \u202e\u2066', '\u200f', '?>', '<?', '*??/', '\u540d\u524d/', '0', '7', '7_', 'a-', 'a--b', '\\u202e',
    'get_a', 'set_a', 'a', 'A', 'get_A', 'value', 'Value', 'item', 'Item', 'this', 'Java', 'java', 'System',
    'string', 'String', 'STRING', 'list', 'List', 'object', 'Object', 'Record', 'Enum', 'Hostile', 'hostile',
    'IHostile', 'HostileLib', 'TransactionType', 'Transaction', 'result', 'a result', 'a1', 'a 1',
    'HRESULT', 'IDispatch', 'IUnknown', 'BSTR', 'SIZE', 'POINT', 'BYTE', 'Date', 'DATE', 'main', 'x' * 300,
    'X' * 300,
]


def reserved(sources: Path) -> List[str]:
    """Every word that a language's table reserves, from the tables themselves."""
    words = []
    for source in sorted(sources.glob('*Language.cpp')):
        words += re.findall(r'"([A-Za-z_][\w-]*)"', source.read_text())
    return words


def element(name: str, attributes: Dict[str, str], content: str = '') -> str:
    told = ''.join(f' {key}={quoteattr(value, ENTITIES)}' for key, value in attributes.items())
    return f'<{name}{told}>{content}</{name}>'


def declared(uri: str) -> Dict[str, str]:
    return {'xmlns': uri, 'xmlns:xsi': 'http://www.w3.org/2001/XMLSchema-instance',
            'xsi:schemaLocation': f'{uri} {uri}'}


ENTITIES = {'\n': '&#10;', '\r': '&#13;', '\t': '&#9;'}


def service(flavour: str, names: List[str], program: str) -> str:
    uri, text = FLAVOURS[flavour]
    mapped = '<mappings>' + element('mapping', {'item': 'R.ITEM'}) + '</mappings>'

    def value(tag: str, name: str, more: Dict[str, str]) -> str:
        return element(tag, {'name': name, 'dataType': text, **more}, mapped)

    # Names of one scope differ for lint, and for nobody else.
    scopes = [[name] for name in names] + [list(dict.fromkeys(names))]
    types = ''.join(
        element('parameter', {'name': name}, '<mappings/>' + value('field', name, {})) for name in
        dict.fromkeys(names) if name)
    types += element('parameter', {'name': 'everything'}, '<mappings/>' + ''.join(
        value('field', name, {}) for name in scopes[-1] if name))
    operations = ''.join(
        element('operation', {'name': name, 'entryPoint': 'GO'},
                '<hiddenParameters/><parameters>' + value('parameter', name, {'byType': 'in'}) +
                value('parameter', name + ' out', {'byType': 'out'}) +
                element('parameter', {'name': name + ' both', 'byType': 'io', 'ref': name}) +
                '</parameters>')
        for name in scopes[-1] if name)
    properties = element('properties', {}, ''.join(
        element('property', {'name': name, 'value': name}) for name in scopes[-1] if name))
    return '<?xml version="1.0" encoding="UTF-8"?>' + element(
        'service', {**declared(uri), 'name': 'Hostile', 'implementation': flavour, 'programName': 'HOSTILE',
                    'dataDictFilename': program},
        f'{properties}<parameterTypeDefs>{types}</parameterTypeDefs><operations>{operations}</operations>')


def dictionary(names: List[str]) -> str:
    """One whose items, pictures and conditions are called so; with R.ITEM for the services."""
    conditions = ''.join(
        element('alphanumericCondition', {'name': name}, element('alphanumericConstant', {'value': name}))
        for name in dict.fromkeys(names) if name)
    item = element('alphanumeric', {'name': 'ITEM', 'picture': 'X(8)*/\\u002a/"<', 'offset': '0',
                                    'length': '8'}, conditions)
    own = ''.join(element('alphanumeric', {'name': name, 'picture': name, 'offset': '0', 'length': '8'})
                  for name in dict.fromkeys(names) if name and name != 'ITEM')
    records = ''.join(
        element('group', {'name': name, 'offset': '0', 'length': '8'},
                element('alphanumeric', {'name': name, 'picture': 'X(8)', 'offset': '0', 'length': '8'}))
        for name in dict.fromkeys(names) if name and name != 'R')
    return '<?xml version="1.0" encoding="UTF-8"?>' + element(
        'program', {**declared(URI + 'cobol/v2.0/vorcobol.xsd'), 'name': 'HOSTILE'},
        '<properties/><dataItems>' +
        element('group', {'name': 'R', 'offset': '0', 'length': '8'}, item + own) + records +
        '</dataItems><entryPoints><entryPoint name="GO"><parameter dataItem="R"/></entryPoint></entryPoints>')
