#!/usr/bin/env python3
"""Makes the page on the document formats of the schemas: every element and attribute with what
the comment in front of its declaration says, and with an example from the documents.

usage: formats.py SCHEMAS EXAMPLES PAGE; fails when something has no comment or no example"""
import pathlib
import re
import sys
import xml.dom.minidom

TITLES = {
    "vorcobol.xsd": "Data dictionaries",
    "vorservice.xsd": "Services: what all flavours share",
    "vorws.xsd": "Web services",
    "vorcom.xsd": "COM services",
    "vorjava.xsd": "Java services",
    "vordotnet.xsd": ".NET services",
}


def text_of(comment):
    lines = [line.strip() for line in comment.strip().splitlines()]
    return " ".join(line for line in lines if line).replace("|", "\\|")


def comment_of(node):
    """The comment in front of a declaration, or at the end of its line."""
    before = node.previousSibling
    while before is not None and before.nodeType == before.TEXT_NODE and not before.data.strip():
        before = before.previousSibling
    if before is not None and before.nodeType == before.COMMENT_NODE:
        return text_of(before.data)
    return ""


def children(node, *names):
    return [c for c in node.childNodes if c.nodeType == c.ELEMENT_NODE and c.localName in names]


def start_tags(folders):
    """Of all documents: the start tags, as they stand there, without namespaces."""
    tags = []
    for folder, pattern in folders:
        for file in sorted(pathlib.Path(folder).glob(pattern)):
            text = file.read_text(encoding="utf-8")
            for tag in re.finditer(r"<(?:[\w.-]+:)?([A-Za-z]\w*)((?:\s+[\w:.-]+\s*=\s*(?:\"[^\"]*\"|'[^']*'))*)\s*/?>", text):
                attributes = re.findall(r"([\w:.-]+)\s*=\s*(\"[^\"]*\"|'[^']*')", tag[2])
                plain = [(n, v) for n, v in attributes if not n.startswith(("xmlns", "xsi:"))]
                tags.append((file.name, tag[1], plain))
    return tags


class Page:
    def __init__(self, tags):
        self.lines = []
        self.tags = tags
        self.missing = []

    def example(self, element, attribute=None):
        fitting = [t for t in self.tags if t[1] in element and
                   (attribute is None or any(n == attribute for n, _ in t[2]))]
        if not fitting:
            self.missing.append(f"no example of {'/'.join(element)} {attribute or ''}")
            return ""
        if attribute is None:
            _, name, attributes = min(fitting, key=lambda t: abs(len(t[2]) - 3))
            return "<" + " ".join([name] + [f"{n}={v}" for n, v in attributes[:4]]) + ">"
        return next(f"{n}={v}" for n, v in fitting[0][2] if n == attribute)

    def values(self, simple_type):
        rows = [(e.getAttribute("value"), self.trailing(e) or comment_of(e))
                for e in simple_type.getElementsByTagName("xs:enumeration")]
        return rows

    @staticmethod
    def trailing(node):
        after = node.nextSibling
        while after is not None and after.nodeType == after.TEXT_NODE and "\n" not in after.data:
            after = after.nextSibling
        is_comment = after is not None and after.nodeType == after.COMMENT_NODE
        return text_of(after.data) if is_comment else ""


def one_schema(page, file):
    schema = xml.dom.minidom.parse(str(file)).documentElement
    page.lines.append(f"## {TITLES[file.name]}\n\n`{file.name}`, namespace "
                      f"`{schema.getAttribute('targetNamespace')}`\n")
    # Which elements are of a type: those are where its attributes have their examples.
    elements_of = {}
    for element in schema.getElementsByTagName("xs:element"):
        if element.hasAttribute("name"):
            kind = element.getAttribute("type") or element.getAttribute("name")
            elements_of.setdefault(kind, set()).add(element.getAttribute("name"))
    users = {}
    for kind in children(schema, "complexType"):
        for used in kind.getElementsByTagName("xs:attributeGroup"):
            users.setdefault(used.getAttribute("ref"), set()).update(
                elements_of.get(kind.getAttribute("name"), {kind.getAttribute("name")}))
        for base in kind.getElementsByTagName("xs:extension"):
            elements_of.setdefault(base.getAttribute("base"), set()).update(
                elements_of.get(kind.getAttribute("name"), set()))
    for node in schema.childNodes:
        if node.nodeType != node.ELEMENT_NODE or not node.hasAttribute("name"):
            continue
        name = node.getAttribute("name")
        said = comment_of(node)
        if not said:
            page.missing.append(f"{file.name}: no comment on {name}")
        word = {"complexType": "Content", "simpleType": "Values", "attributeGroup": "Attributes",
                "group": "Content", "element": "Root"}.get(node.localName, node.localName)
        # Doxygen takes no code in headings.
        page.lines.append(f"### {word}: {name}\n\n{said}\n")
        if node.localName == "simpleType":
            rows = page.values(node)
            if rows:
                page.lines.append("| Value | Meaning |\n|---|---|")
                page.lines += [f"| `{value}` | {told} |" for value, told in rows]
                page.lines.append("")
            continue
        owners = elements_of.get(name) or users.get(name) or {name}
        elements = [e for e in node.getElementsByTagName("xs:element") if e.hasAttribute("name")]
        attributes = [a for a in node.getElementsByTagName("xs:attribute") if a.hasAttribute("name")]
        if elements:
            page.lines.append("| Element | Meaning | Example |\n|---|---|---|")
            for element in elements:
                called = element.getAttribute("name")
                example = page.example({called})
                page.lines.append(f"| `{called}` | {comment_of(element)} | `{example}` |")
            page.lines.append("")
        if attributes:
            page.lines.append("| Attribute | Values | Meaning | Example |\n|---|---|---|---|")
            for attribute in attributes:
                called = attribute.getAttribute("name")
                example = page.example(owners, called)
                if not example:
                    page.missing.pop()
                    example = page.example({t[1] for t in page.tags}, called)
                needed = ", required" if attribute.getAttribute("use") == "required" else ""
                page.lines.append(f"| `{called}` | {attribute.getAttribute('type')}{needed} | "
                                  f"{comment_of(attribute)} | `{example}` |")
            page.lines.append("")


def main():
    schemas, examples, output = sys.argv[1:]
    page = Page(start_tags([(examples, "*.xml"), (schemas, "*.xsd"),
                            (pathlib.Path(examples) / "../fuzz/seeds/service", "*.xml"),
                            (pathlib.Path(examples) / "../fuzz/seeds/dictionary", "*.xml")]))
    page.lines.append("# The document formats\n\nMade of the comments in the schemas (`schema/`), "
                      "with examples from the documents of `examples/`.\n")
    for name in TITLES:
        one_schema(page, pathlib.Path(schemas) / name)
    pathlib.Path(output).write_text("\n".join(page.lines), encoding="utf-8")
    for problem in page.missing:
        print(problem, file=sys.stderr)
    return 1 if page.missing else 0


sys.exit(main())
