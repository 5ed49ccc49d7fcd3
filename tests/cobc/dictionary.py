"""Reads what a dictionary says of items."""

import xml.etree.ElementTree as ElementTree
from pathlib import Path
from typing import Dict, List, NamedTuple

ITEMS = {'group', 'numeric', 'alphanumeric', 'numericEdited', 'national', 'pointer', 'cobolObject',
         'index'}


class Placed(NamedTuple):
    element: str
    attributes: Dict[str, str]

    def name(self) -> str:
        return self.attributes['name']

    def number(self, attribute: str) -> int:
        return int(self.attributes.get(attribute, '0'))


def read(path: Path) -> List[Placed]:
    """All items in the order of the document."""
    found: List[Placed] = []
    for element in ElementTree.parse(path).getroot().iter():
        word = element.tag.rpartition('}')[2]
        if word in ITEMS:
            found.append(Placed(word, dict(element.attrib)))
    return found
