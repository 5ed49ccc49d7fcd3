// The pages of services: a card for each operation and type definition, its parameters at the left,
// the COBOL items that they are mapped to at the right, lines between.
"use strict";

const rowHeight = 30;
// Beyond so many rows lines help nobody; items stand behind their parameters then.
const mostLines = 240;

function findingNode(finding) {
  return el("li.finding." + finding.severity, {}, el("b", {}, finding.severity), " ",
    finding.place ? el("span.place", {}, clip(finding.place) + ": ") : null, clip(finding.problem, 600),
    finding.advice ? el("span.advice", {}, " \u2192 " + clip(finding.advice, 600)) : null,
    " ", el("code.quiet", {}, finding.rule));
}

// What is "no" goes without saying.
function attributeChips(attributes) {
  return (attributes || []).filter(([, value]) => value !== "no").map(([name, value]) =>
    el("span.chip", {}, clip(name, 40) + (value === "yes" ? "" : " " + clip(value, 80))));
}

// What callers get, a kind a line: its files, or why there are none.
function madeSection(made) {
  if (made.length === 0) return null;
  return el("section", {}, el("h2", {}, "For callers"), facts(made.map(({kind, summary, files, problem}) => [
    el("span", {title: summary}, kind),
    files.length === 0
      ? el("span.quiet", {}, "nothing is made: " + clip(problem, 600))
      : files.map((file, i) => [i === 0 ? null : ", ", el("a", {href: file}, file.split("/").pop())]),
  ])));
}

class ServicePage {
  constructor(service, program, card) {
    this.service = service;
    this.program = program;
    this.card = card;
  }

  nodes() {
    const {service, program} = this;
    const general = service.findings.filter(
      (finding) => !service.cards.some((card) => card.findings.includes(finding)));
    this.cards = service.cards.map((card, i) => {
      const node = el("section.card", {id: "card" + i, "data-card": i});
      node.style.minHeight = 120 + Math.min(card.rows.length, mostLines) * rowHeight + "px";
      return node;
    });
    const operations = this.cards.slice(0, service.operations.length);
    const types = this.cards.slice(service.operations.length);
    return [
      crumbs(el("a", {href: "#/"}, "Overview"), service.flavour + " service"),
      el("h1", {}, clip(service.name) || "(unnamed)", el("small", {}, service.flavour)),
      facts([
        ["File", clip(service.file)],
        ["Program", program ? el("a", {href: "#/" + program.id}, clip(program.name)) : clip(service.program || "none")],
        ["Dictionary", clip(service.dictionary || "none")],
        ["Exit program", service.exitProgram ? clip(service.exitProgram) : null],
        ...service.properties.map(([name, value]) => [clip(name), clip(value, 300)]),
      ]),
      el("section", {}, el("h2", {}, "Findings"), service.findings.length === 0
        ? el("p.clean", {}, "lint finds nothing: the service is clean")
        : el("p", {}, plural(service.findings.length, "finding") + (general.length < service.findings.length ? ", told in their places" : "")),
        general.length > 0 ? el("ul.findings", {}, general.map(findingNode)) : null),
      madeSection(service.made || []),
      el("h2", {}, "Operations"), operations,
      types.length > 0 ? el("h2", {}, "Type definitions") : null, types,
    ];
  }

  start() {
    this.observer = new IntersectionObserver((entries) => {
      for (const entry of entries) {
        if (entry.isIntersecting) this.fill(Number(entry.target.dataset.card));
      }
    }, {rootMargin: "600px"});
    for (const card of this.cards) this.observer.observe(card);
    addEventListener("beforeprint", () => {
      this.cards.slice(0, 200).forEach((card, i) => card.isConnected && this.fill(i));
    });
    if (this.card > 0 || location.hash.split("/").length > 2) {
      const target = this.cards[this.card];
      if (!target) return;
      this.fill(this.card);
      target.scrollIntoView({block: "start"});
      target.classList.add("picked");
    }
  }

  fill(number) {
    const host = this.cards[number];
    if (host.dataset.filled) return;
    host.dataset.filled = "yes";
    host.style.minHeight = "";
    const card = this.service.cards[number];
    const {data} = card;
    const entry = this.program && data.entry ? this.program.entries.find((known) => known.n === data.entry) : null;
    host.append(...[
      el("header", {}, el("h3", {}, clip(data.n) || "(unnamed)"),
        data.entry ? el("span.entry", {}, "\u2192 ", entry
          ? el("a", {href: "#/" + this.program.id}, clip(data.entry)) : clip(data.entry)) : null,
        data.exit ? el("span.chip", {}, plural(data.exit, "exit point")) : null,
        ...attributeChips(data.a), data.t && card.isType ? el("span.chip", {}, data.t) : null,
        data.occ && card.isType ? el("span.chip", {}, "\u00d7 " + data.occ) : null),
      card.findings.length > 0 ? el("ul.findings", {}, card.findings.map(findingNode)) : null,
      card.rows.length === 0 ? el("p.quiet", {}, "no parameters")
        : card.rows.length > mostLines ? this.longList(card) : this.wiring(card),
    ].filter(Boolean));
  }

  longList(card) {
    const list = el("div.rows", {role: "list"});
    queueMicrotask(() => new LazyRows(list, card.rows.length, () => rowHeight, (i) => this.rowOf(card, card.rows[i], true)));
    return list;
  }

  rowOf(card, row, isInline) {
    const field = row.field || {};
    const type = this.service.types.findIndex((known) => known.n === field.ref);
    const finding = card.findings.find((known) => known.place === row.place);
    const name = el("span.name", {}, clip(row.name));
    if (finding) name.append(el("span.flag." + finding.severity, {title: finding.problem}, finding.severity === "note" ? "i" : "!"));
    const node = el("div.field", {role: "listitem", title: clip(row.place, 300)}, name,
      el("span.type", {},
        field.dir ? el("span.dir", {}, field.dir) : null, " ",
        field.ref ? [el("span.quiet", {}, "like "), type >= 0
          ? el("a", {href: this.service.hrefOf(this.service.operations.length + type)}, clip(field.ref)) : clip(field.ref)] : field.t || "",
        field.occ > 1 ? " \u00d7 " + field.occ : "",
        row.value !== undefined ? el("code", {}, "= " + clip(row.value, 60)) : null,
        attributeChips(field.a || row.attributes)),
      row.mappings.length > 0 ? el("span.target" + (isInline ? ".always" : ""), {}, row.mappings.map(([text, item]) => this.targetOf(text, item, true))) : null);
    node.style.paddingInlineStart = 12 + Math.min(row.depth, 16) * 16 + "px";
    return node;
  }

  targetOf(text, item, isShort) {
    if (item < 0 || !this.program) {
      const isSpecial = text.startsWith("$");
      return el("span.code" + (isSpecial || !this.program ? "" : ".lost"), {}, clip(text) + (isSpecial || !this.program ? "" : " (not found)"));
    }
    const known = this.program.items[item];
    return el("a.code", {href: this.program.hrefOf(item), title: clip(text, 300)}, clip(isShort ? known.n : text, 80));
  }

  // Rows, items, and lines from one to the other.
  wiring(card) {
    const targets = new Map();
    for (const row of card.rows) {
      for (const [text, item] of row.mappings) {
        const key = item >= 0 ? item : text;
        if (!targets.has(key)) targets.set(key, {text, item, rows: []});
      }
    }
    const sorted = [...targets.values()].sort((a, b) => (a.item < 0) - (b.item < 0) || a.item - b.item);
    const places = new Map();
    const right = el("div.items", {role: "list", "aria-label": "COBOL items"});
    let y = 0;
    let record = -1;
    for (const target of sorted) {
      const around = target.item >= 0 && this.program ? this.program.recordOf(target.item) : -1;
      if (around !== record && around >= 0 && around !== target.item) {
        right.append(el("div.around", {role: "listitem"}, clip(this.program.items[around].n)));
        y += rowHeight;
      }
      record = around;
      const known = target.item >= 0 && this.program ? this.program.items[target.item] : null;
      right.append(el("div.field", {role: "listitem", "data-target": places.size}, this.targetOf(target.text, target.item, true),
        known ? el("span.quiet", {}, (known.pic ? clip(known.pic, 30) + " " : "") + "at " + known.o) : null));
      places.set(target.item >= 0 ? target.item : target.text, {y: y + rowHeight / 2, number: places.size});
      y += rowHeight;
    }
    const height = Math.max(y, card.rows.length * rowHeight);
    const lines = svg("svg", {class: "wires", viewBox: "0 0 100 " + height, preserveAspectRatio: "none", height, "aria-hidden": "true"});
    const left = el("div.rows", {role: "list", "aria-label": "Parameters"});
    const wires = [];
    card.rows.forEach((row, i) => {
      const node = this.rowOf(card, row, false);
      left.append(node);
      const from = i * rowHeight + rowHeight / 2;
      row.mappings.forEach(([text, item]) => {
        const place = places.get(item >= 0 ? item : text);
        const path = svg("path", {d: "M0 " + from + " C 45 " + from + " 55 " + place.y + " 100 " + place.y, class: item < 0 && this.program && !text.startsWith("$") ? "wire lost" : "wire"});
        lines.append(path);
        wires.push({node, path, target: right.querySelector('[data-target="' + place.number + '"]')});
      });
    });
    for (const wire of wires) {
      const mark = (isOn) => () => {
        for (const other of wires) {
          if (other.node !== wire.node && other.target !== wire.target) continue;
          if (other !== wire) continue;
          for (const part of [other.node, other.path, other.target]) part.classList.toggle("lit", isOn);
        }
      };
      for (const part of [wire.node, wire.target]) {
        part.addEventListener("mouseenter", mark(true));
        part.addEventListener("mouseleave", mark(false));
        part.addEventListener("focusin", mark(true));
        part.addEventListener("focusout", mark(false));
      }
    }
    return places.size === 0 ? el("div.wiring.bare", {}, left) : el("div.wiring", {}, left, lines, right);
  }
}
