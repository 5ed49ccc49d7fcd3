// The documents. Each stands in a script of its own, data/ID.js, which is loaded when it is needed
// and hands over its data: a page from the disk may not read files in any other way.
"use strict";

const asReport = {
  waiting: new Map(),
  loading: new Map(),
  known: new Map(),

  add(id, data) {
    this.known.set(id, data);
    if (id === "index") window.dispatchEvent(new Event("index"));
    const resolve = this.waiting.get(id);
    if (resolve) resolve(data);
  },

  load(id) {
    if (this.known.has(id)) return Promise.resolve(this.known.get(id));
    if (!this.loading.has(id)) {
      this.loading.set(id, new Promise((resolve, reject) => {
        this.waiting.set(id, resolve);
        document.head.append(
          el("script", {src: "data/" + id + ".js", onerror: () => reject(new Error("data/" + id + ".js is missing"))}));
      }));
    }
    return this.loading.get(id);
  },

  get index() {
    return this.known.get("index");
  },

  documentOf(id) {
    return this.index.documents.find((document) => document.id === id);
  },
};

// A program. Items have: n name, c category, p parent, o offset, l length (-1: unknown), pic PICTURE,
// u usage, s sign, d digits, sc scale, min, max occurrences, odo, oi the item that this means, rd the
// redefined item (-1: unknown), rn RENAMES, j justified, z BLANK WHEN ZERO, y SYNC, ln line, src
// whether that line is in the source, k conditions: [name, values].
class Program {
  constructor(id, data) {
    Object.assign(this, data);
    this.id = id;
    this.children = this.items.map(() => []);
    this.items.forEach((item, i) => {
      if (item.p >= 0) this.children[item.p].push(i);
    });
    this.sectionOf = new Map();
    for (const section of this.sections) {
      for (const record of section.records) this.sectionOf.set(record, section);
    }
    this.users = null;
  }

  recordOf(i) {
    while (this.items[i].p >= 0) i = this.items[i].p;
    return i;
  }

  wayTo(i) {
    const way = [];
    for (let at = i; at >= 0; at = this.items[at].p) way.unshift(at);
    return way;
  }

  pathOf(i) {
    return this.wayTo(i).map((at) => clip(this.items[at].n)).join(".");
  }

  extentOf(i) {
    const item = this.items[i];
    return Math.max(item.l, 0) * Math.max(item.max || 0, 1);
  }

  hrefOf(i) {
    return "#/" + this.id + "/" + i;
  }

  usageOf(i) {
    const item = this.items[i];
    if (item.c !== "numeric" && item.c !== "national") return item.c;
    return item.u === "display" || !item.u ? item.c : item.u;
  }

  // What colour an item has in byte maps.
  toneOf(i) {
    const item = this.items[i];
    if (item.n === "FILLER" && this.children[i].length === 0) return "filler";
    switch (item.c) {
      case "group": return "group";
      case "alphanumeric": return "text";
      case "numeric edited": return "edited";
      case "national": return "national";
      case "numeric": break;
      default: return "pointer";
    }
    if (item.u === "comp-3" || item.u === "comp-6") return "packed";
    if (item.u === "comp-1" || item.u === "comp-2" || item.u === "external float") return "float";
    return item.u === "display" ? "digits" : "binary";
  }

  // The places of services that are mapped to items: [item, service, operation, text].
  async usersOf(i) {
    if (this.users === null) {
      this.users = new Map();
      const note = (item, place) => {
        if (item < 0) return;
        if (!this.users.has(item)) this.users.set(item, []);
        this.users.get(item).push(place);
      };
      for (const known of asReport.index.documents) {
        if (known.kind !== "service" || known.program !== this.id) continue;
        const service = new Service(known.id, await asReport.load(known.id));
        service.cards.forEach((card, number) => {
          for (const row of card.rows) {
            for (const [, item] of row.mappings) {
              note(item, {href: service.hrefOf(number), text: clip(service.name) + ": " + clip(row.place)});
            }
          }
        });
      }
    }
    return this.users.get(i) || [];
  }
}

const tones = [
  ["text", "text"], ["digits", "digits"], ["packed", "packed decimal"], ["binary", "binary"],
  ["float", "floating point"], ["edited", "edited"], ["national", "national"],
  ["pointer", "pointer, index"], ["filler", "unnamed"],
];

// A service, as cards: one for each operation, then one for each type definition. The rows of a card
// are its hidden parameters, parameters, fields and messages, one below the other.
class Service {
  constructor(id, data) {
    Object.assign(this, data);
    this.id = id;
    this.cards = [
      ...this.operations.map((operation) => this.cardOf(operation, false)),
      ...this.types.map((type) => this.cardOf(type, true)),
    ];
  }

  hrefOf(card) {
    return "#/" + this.id + "/" + card;
  }

  cardOf(data, isType) {
    const rows = [];
    const place = (isType ? "type " : "") + (data.n || "(unnamed)");
    const addFields = (fields, depth, around, mark) => {
      for (const field of fields || []) {
        const at = around + "." + (field.n || "(unnamed)");
        rows.push({depth, name: mark + field.n, place: at, field, mappings: field.m || []});
        addFields(field.fa, depth + 1, at, "@");
        addFields(field.f, depth + 1, at, "");
      }
    };
    (data.hidden || []).forEach(([item, number, value], i) => {
      rows.push({depth: 0, name: "hidden", place: place + ", hidden parameter " + (i + 1), value, mappings: [[item, number]]});
    });
    if (isType && data.m) rows.push({depth: 0, name: data.n, place, field: data, mappings: data.m});
    addFields(data.fa, 0, place, "@");
    addFields(data.f, 0, place, "");
    const numbers = {};
    for (const message of data.messages || []) {
      numbers[message.kind] = (numbers[message.kind] || 0) + 1;
      const at = place + ", " + message.kind + " " + numbers[message.kind];
      rows.push({depth: 0, name: message.kind, place: at, attributes: message.a, mappings: []});
      addFields(message.f, 1, at, "");
    }
    const findings = this.findings.filter(
      (finding) => finding.place === place || finding.place.startsWith(place + ".") ||
        finding.place.startsWith(place + ","));
    return {data, isType, place, rows, findings};
  }
}
