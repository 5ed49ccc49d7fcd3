"""Proves WSDL and XML Schemas with readers that nobody here wrote: xmlschema and libxml2 judge the
documents and the messages, zeep reads the service, writes requests and reads answers."""

import json
import os
import re
import warnings
from decimal import Decimal, InvalidOperation
from pathlib import Path
from typing import Any, Dict, List

import requests
import xmlschema
import xmlschema.namespaces
import zeep
import zeep.helpers
from lxml import etree
from zeep.transports import Transport

warnings.simplefilter('ignore')

XSD = '{http://www.w3.org/2001/XMLSchema}'
ENVELOPES = ('{http://schemas.xmlsoap.org/soap/envelope/}', '{http://www.w3.org/2003/05/soap-envelope}')
PUBLISHED = os.path.join(os.path.dirname(xmlschema.__file__), 'schemas')
WSDL_SCHEMA = xmlschema.XMLSchema(os.path.join(PUBLISHED, 'WSDL', 'wsdl.xsd'))
# libxml2 holds numbers of 24 digits.
LONG = re.compile(rb'[0-9](?:[.]?[0-9]){24}')
SCHEMA_SCHEMA = xmlschema.XMLSchema10.meta_schema


class Failure(Exception):
    pass


def read_percents() -> None:
    """xmlschema takes the % of a namespace for that of a format."""
    view = xmlschema.namespaces.NamespaceView
    init = view.__init__

    def corrected(self, names, uri):
        init(self, names, uri)
        self._key_fmt = self._key_fmt[:-2].replace('%', '%%') + '%s'

    view.__init__ = corrected


read_percents()


def first_error(schema, source: Any) -> None:
    for error in schema.iter_errors(source):
        raise Failure(f'{source}: {error.reason} at {error.path}')


class Schema:
    """A schema with all that it imports, judged by the schema for schemas and two readers."""

    def __init__(self, file: Path):
        for part in file.parent.glob('*.xsd'):
            first_error(SCHEMA_SCHEMA, str(part))
        self.slow = xmlschema.XMLSchema(str(file))
        self.quick = etree.XMLSchema(etree.parse(str(file)))

    def judge(self, element) -> None:
        # By itself, so that nothing around it counts.
        text = etree.tostring(element, encoding='utf-8')
        if self.quick.validate(etree.ElementTree(etree.fromstring(text))):
            return
        if not LONG.search(text):
            raise Failure(f'{self.quick.error_log.last_error}: {text[:300]!r}')
        first_error(self.slow, etree.fromstring(text))


class Answers(Transport):
    """Answers what it is told to, and keeps what was sent."""

    def __init__(self):
        super().__init__(session=requests.Session())
        self.answer = b''
        self.sent = None

    def post(self, address, message, headers):
        self.sent = etree.fromstring(message)
        response = requests.Response()
        response.status_code = 200
        response.headers['Content-Type'] = 'text/xml; charset=utf-8'
        response._content = self.answer
        return response


def for_zeep(value: Any, kind: Any, names: Dict[str, str]) -> Any:
    """A sample as zeep wants it: by the names that XML has for it, and the value of an element with
    attributes has a name of zeep's own."""
    if isinstance(value, dict):
        result = {}
        known = {name: element.type for name, element in getattr(kind, 'elements', [])} \
            if hasattr(kind, 'elements') else {}
        for name, part in value.items():
            is_text = name == 'value' and '_value_1' in known and 'value' not in known
            plain = '_value_1' if is_text else names.get(name, name)
            result[plain] = for_zeep(part, known.get(plain), names)
        return result
    if isinstance(value, list):
        return [for_zeep(part, kind, names) for part in value]
    return value


def is_same(expected: Any, found: Any) -> bool:
    """Whether a value was read back as it was; numbers count as such, not as their texts."""
    if isinstance(expected, dict) and expected:
        return isinstance(found, dict) and all(
            is_same(part, found.get(name)) for name, part in expected.items()) and all(
            found[name] is None for name in found if name not in expected)
    if isinstance(expected, list):
        return isinstance(found, list) and len(expected) == len(found) and all(
            map(is_same, expected, found))
    if isinstance(found, (int, float, Decimal)) and not isinstance(found, bool):
        try:
            return Decimal(str(expected)) == Decimal(str(found))
        except InvalidOperation:
            return False
    # zeep reads an empty element as nothing.
    return expected == found or (expected in ('', {}) and found is None)


def check(schema: Schema, envelope, is_header_known: bool) -> None:
    for space in ENVELOPES:
        parts = [envelope.find(f'{space}Body')]
        if is_header_known:
            parts.append(envelope.find(f'{space}Header'))
        for part in parts:
            for element in part if part is not None else ():
                schema.judge(element)


def lists(sample: Dict[str, Any], is_rpc: bool) -> Dict[str, Any]:
    """In rpc messages a table is one element."""
    if not is_rpc:
        return sample
    return {name: {'item': value} if isinstance(value, list) else value for name, value in sample.items()}


def as_told_by_zeep(answer: Any) -> List[Any]:
    """What zeep may make of an answer: it leaves out the only element, and the only one in that."""
    told = [answer]
    while len(told) < 3 and isinstance(told[-1], dict) and len(told[-1]) == 1:
        told.append(next(iter(told[-1].values())))
    return told


def holds(value: Any, name: str) -> bool:
    """Whether something in the value is called so."""
    if isinstance(value, dict):
        return name in value or any(holds(part, name) for part in value.values())
    return isinstance(value, list) and any(holds(part, name) for part in value)


def prove(wsdl: Path, schema_file: Path, samples_file: Path, names: Dict[str, str]) -> int:
    """Answers how many messages were written and read. `names` are those that XML has in place of
    others."""
    first_error(WSDL_SCHEMA, str(wsdl))
    tree = etree.parse(str(wsdl))
    for part in tree.iter(f'{XSD}schema'):
        first_error(SCHEMA_SCHEMA, etree.fromstring(etree.tostring(part, encoding='utf-8')))
    schema = Schema(schema_file)
    samples = json.loads(samples_file.read_text())['paths']
    transport = Answers()
    client = zeep.Client(str(wsdl), transport=transport)
    messages = 0
    for service in client.wsdl.services.values():
        for port in service.ports.values():
            proxy = client.bind(service.name, port.name)
            for operation in port.binding._operations.values():
                messages += prove_fault(schema, samples, client, operation.name)
                messages += prove_operation(schema, samples, transport, proxy, operation, names)
    return messages


def prove_fault(schema, samples, client, operation: str) -> int:
    """The detail of a fault that is written by zeep; nothing for one that has no element."""
    response = samples.get(f'/{operation}', {}).get('post', {}).get('responses', {}).get('500', {})
    sample = response.get('content', {}).get('application/json', {}).get('example')
    element = next((one for one in client.wsdl.types.elements if one.name == f'{operation}Fault'), None)
    if sample is None or element is None:
        return 0
    detail = etree.Element('detail')
    element.render(detail, element(**sample))
    schema.judge(detail[0])
    return 1


def prove_operation(schema, samples, transport, proxy, operation, names) -> int:
    described = next((path['post'] for path in samples.values() if
                      names.get(path['post']['operationId'], path['post']['operationId']) == operation.name), None)
    if described is None:
        raise Failure(f'{operation.name} is not described')
    request = described['requestBody']['content']['application/json'].get('example')
    answer = described['responses']['200']['content']['application/json'].get('example')
    # zeep hands values over by their names, and calls what it hands them to so itself.
    if request is None or answer is None or holds([request, answer], 'self'):
        return 0
    is_rpc = operation.style == 'rpc'
    request, answer = lists(request, is_rpc), lists(answer, is_rpc)
    headers = {parameter['name']: parameter['example'] for parameter in described.get('parameters', ())
               if 'example' in parameter}
    answer = for_zeep(answer, getattr(operation.output.body, 'type', None), names)
    envelope = operation.output.serialize(**answer).content
    check(schema, envelope, False)
    transport.answer = etree.tostring(envelope, encoding='utf-8')
    arguments = for_zeep(request, getattr(operation.input.body, 'type', None), names)
    headers = for_zeep(headers, None, names)
    if headers:
        arguments['_soapheaders'] = headers
    result = getattr(proxy, operation.name)(**arguments)
    # Headers that are encoded have no elements in a schema.
    check(schema, transport.sent, not is_rpc)
    found = zeep.helpers.serialize_object(result, dict)
    if not any(is_same(told, found) for told in as_told_by_zeep(answer)):
        raise Failure(f'{operation.name}: {str(answer)[:300]} was read back as {str(found)[:300]}')
    return 2
