// The pages of programs: the program, a record of it with its byte map and items, its source.
"use strict";

function facts(rows) {
  return el("dl.facts", {}, rows.filter(([, value]) => value !== null && value !== undefined && value !== "")
    .map(([name, value]) => el("div", {}, el("dt", {}, name), el("dd", {}, value))));
}

function crumbs(...steps) {
  return el("nav.crumbs", {"aria-label": "Where this is"}, el("ol", {}, steps.map((step) => el("li", {}, step))));
}

function sizeText(length) {
  return length < 0 ? "size unknown" : plural(length, "byte");
}

function occursText(item) {
  if (!item.max) return "";
  const least = item.odo && item.min !== item.max ? (item.min || 0) + "\u2026" : "";
  return "\u00d7 " + least + item.max;
}

function programPage(program) {
  const document = asReport.documentOf(program.id);
  const services = asReport.index.documents.filter((known) => known.program === program.id);
  const counts = Object.entries(document.counts).filter(([, number]) => number > 0);
  return [
    crumbs(el("a", {href: "#/"}, "Overview"), "Program"),
    el("h1", {}, clip(program.name)),
    facts([
      ["Dictionary", clip(program.file)],
      ["Source", program.source ? el("a", {href: "#/" + program.source}, "show") : null],
      ...counts.map(([name, number]) => [name[0].toUpperCase() + name.slice(1), number.toLocaleString("en")]),
    ]),
    services.length > 0 ? el("section", {}, el("h2", {}, "Services"), el("ul.cards", {}, services.map(documentCard))) : null,
    program.entries.length > 0 ? el("section", {}, el("h2", {}, "Entry points"), el("div.tiles", {}, program.entries.map((entry) => entryTile(program, entry)))) : null,
    ...program.sections.map((section) => sectionOf(program, section)),
    program.properties.length > 0
      ? el("section", {}, el("h2", {}, "Properties"), facts(program.properties.map(([name, value]) => [clip(name), clip(value, 400)])))
      : null,
  ];
}

function entryTile(program, entry) {
  return el("div.tile", {}, el("h3", {}, clip(entry.n)),
    entry.conv ? el("p.quiet", {}, "calling convention " + entry.conv) : null,
    entry.params.length === 0 ? el("p.quiet", {}, "no parameters") : el("ol.params", {}, entry.params.map(([name, passing, item]) =>
      el("li", {}, item >= 0 ? el("a.name", {href: program.hrefOf(item)}, clip(name)) : el("span.name", {}, clip(name)),
        " ", el("span.quiet", {}, passing === "returning" ? passing : "by " + passing)))));
}

function sectionOf(program, section) {
  const largest = section.records.reduce((size, record) => Math.max(size, program.extentOf(record)), 1);
  const list = el("div.records", {role: "list", "aria-label": "Records, " + section.title});
  new LazyRows(list, section.records.length, () => 34, (i) => recordLine(program, section.records[i], largest));
  const title = section.title.startsWith("fd ") ? "File " + clip(section.title.slice(3)) : section.title[0].toUpperCase() + section.title.slice(1);
  const clauses = [section.organization, section.access && section.access + " access"].filter(Boolean).join(", ");
  return el("section", {}, el("h2", {}, title, clauses ? el("small", {}, clauses) : null), list);
}

function recordLine(program, record, largest) {
  const item = program.items[record];
  const bar = el("span.fill.tone-" + program.toneOf(record), {});
  bar.style.width = Math.max(0.4, 100 * program.extentOf(record) / largest) + "%";
  return el("div.record", {role: "listitem"}, el("a.name", {href: program.hrefOf(record)}, clip(item.n)),
    el("span.size", {"aria-hidden": "true"}, bar), el("span.number", {}, sizeText(program.extentOf(record))),
    el("span.quiet", {}, clip(item.pic || (program.children[record].length > 0 ? plural(program.children[record].length, "member") : program.usageOf(record)), 40)));
}

// A record: its bytes, its items as a table that is walked through with the arrows, and what is known
// of the one that is picked.
class RecordPage {
  constructor(program, picked) {
    this.program = program;
    this.record = program.recordOf(picked);
    this.picked = picked;
    this.closed = new Set();
    this.details = el("aside.details", {"aria-live": "polite", "aria-label": "Picked item"});
    this.map = new ByteMap(program, this.record, (i) => this.pick(i, false));
    this.table = el("div.tree", {role: "treegrid", "aria-label": "Items of " + clip(program.items[this.record].n)});
    this.table.addEventListener("keydown", (event) => this.onKey(event));
  }

  nodes() {
    const {program} = this;
    const section = program.sectionOf.get(this.record);
    const fold = el("button.plain", {type: "button", "aria-pressed": "false", onclick: () => {
      const isUnfolded = fold.getAttribute("aria-pressed") !== "true";
      fold.setAttribute("aria-pressed", String(isUnfolded));
      fold.textContent = isUnfolded ? "Fold tables" : "Unfold tables";
      this.map.setUnfolded(isUnfolded);
    }}, "Unfold tables");
    const used = new Set();
    const waiting = [this.record];
    while (waiting.length > 0) {
      const at = waiting.pop();
      if (program.children[at].length === 0) used.add(program.toneOf(at));
      for (const child of program.children[at]) waiting.push(child);
    }
    const legend = el("ul.legend", {}, tones.filter(([tone]) => used.has(tone)).map(([tone, text]) =>
      el("li", {}, el("span.swatch.tone-" + tone, {}), text)));
    if (this.map.overlays.length > 0) legend.append(el("li", {}, el("span.swatch.over", {}), "redefines or renames"));
    return [
      crumbs(el("a", {href: "#/"}, "Overview"), el("a", {href: "#/" + program.id}, clip(program.name)), section ? clip(section.title) : "Record"),
      el("h1", {}, clip(program.items[this.record].n), el("small", {}, sizeText(program.extentOf(this.record)))),
      el("div.tools", {}, legend, this.map.hasTables ? fold : null),
      this.map.host,
      el("div.split", {}, el("div.grow", {}, this.table), this.details),
    ];
  }

  // To be called when the page is there.
  start() {
    this.map.layOut();
    this.resizing = () => this.map.host.isConnected ? this.map.layOut() : removeEventListener("resize", this.resizing);
    addEventListener("resize", this.resizing);
    this.list();
    this.pick(this.picked, false, this.picked !== this.record);
  }

  list() {
    this.rows = [];
    const {program} = this;
    const waiting = [[this.record, 1]];
    while (waiting.length > 0) {
      const [i, level] = waiting.pop();
      this.rows.push({i, level, condition: null});
      if (this.closed.has(i)) continue;
      for (const condition of program.items[i].k || []) this.rows.push({i, level: level + 1, condition});
      for (const child of [...program.children[i]].reverse()) waiting.push([child, level + 1]);
    }
    this.rowOf = new Map();
    this.rows.forEach((row, number) => {
      if (row.condition === null) this.rowOf.set(row.i, number);
    });
    const head = el("div.line.head", {role: "row"}, ["Item", "Bytes", "Size", "Picture", "Usage", ""].map((text) =>
      el("span", {role: "columnheader"}, text || el("span.hidden", {}, "Clauses"))));
    const body = el("div.body", {role: "rowgroup"});
    this.table.replaceChildren(el("div", {role: "rowgroup"}, head), body);
    this.table.setAttribute("aria-rowcount", String(this.rows.length + 1));
    const isNarrow = matchMedia("(max-width: 640px)").matches;
    this.lazy = new LazyRows(body, this.rows.length, (i) => isNarrow && this.rows[i].condition === null ? 46 : 30, (i) => this.lineOf(i));
  }

  lineOf(number) {
    const {i, level, condition} = this.rows[number];
    const item = this.program.items[i];
    const attributes = {role: "row", "aria-level": level, "aria-rowindex": number + 2, tabindex: "-1", "data-row": number};
    const indent = (element) => {
      element.style.paddingInlineStart = Math.min(level - 1, 20) * 16 + "px";
      return element;
    };
    if (condition !== null) {
      const [name, values] = condition;
      const text = values.slice(0, 12).map((value) => clip(value, 60)).join(", ") + (values.length > 12 ? ", \u2026" : "");
      return el("div.line.condition", attributes, indent(el("span", {role: "gridcell"}, el("span.mark88", {}, "88"), el("b", {}, clip(name)), " ", el("span.values", {}, text))));
    }
    const hasParts = this.program.children[i].length > 0 || (item.k || []).length > 0;
    if (hasParts) attributes["aria-expanded"] = String(!this.closed.has(i));
    const toggle = el("span.toggle", {"aria-hidden": "true", onclick: (event) => {
      event.stopPropagation();
      this.toggle(i);
    }}, hasParts ? (this.closed.has(i) ? "\u25b8" : "\u25be") : "");
    const end = item.o + Math.max(item.l, 0) - 1;
    const clauses = [
      occursText(item),
      item.odo ? "depending on " + clip(item.oi >= 0 ? this.program.items[item.oi].n : item.odo, 60) : "",
      item.rd !== undefined ? "redefines " + (item.rd >= 0 ? clip(this.program.items[item.rd].n, 60) : "") : "",
      item.rn ? "renames" : "", item.s && item.s !== "signed" ? "sign " + item.s : "", item.y ? "sync" : "",
      item.j ? "justified right" : "", item.z ? "blank when zero" : "",
    ].filter(Boolean).join(", ");
    const line = el("div.line", {...attributes, onclick: () => this.pick(i, true)},
      indent(el("span.item", {role: "gridcell"}, toggle, el("span.swatch.tone-" + this.program.toneOf(i), {}), el("span.name", {}, clip(item.n)))),
      el("span.number", {role: "gridcell"}, item.o < 0 ? "?" : item.l > 1 ? item.o + "\u2013" + end : String(item.o)),
      el("span.number", {role: "gridcell"}, item.l < 0 ? "?" : String(item.l)),
      el("span.code", {role: "gridcell"}, clip(item.pic || "", 60)),
      el("span", {role: "gridcell"}, this.program.usageOf(i)),
      el("span.quiet", {role: "gridcell", title: clauses}, clauses));
    if (i === this.picked) {
      line.classList.add("picked");
      line.tabIndex = 0;
      line.setAttribute("aria-selected", "true");
    }
    return line;
  }

  toggle(i) {
    if (this.closed.has(i)) this.closed.delete(i);
    else this.closed.add(i);
    const rows = this.rows;
    this.list();
    if (rows !== this.rows && this.rowOf.has(this.picked)) this.focus(this.rowOf.get(this.picked));
  }

  focus(number) {
    this.lazy.reveal(number).focus({preventScroll: true});
  }

  // Shows an item everywhere; `isFocused` when the keyboard is to go on from there.
  pick(i, isFocused, isRevealed = true) {
    for (let at = this.program.items[i].p; at >= 0; at = this.program.items[at].p) {
      if (this.closed.delete(at)) this.list();
    }
    this.picked = i;
    this.map.pick(i === this.record ? -1 : i);
    for (const line of this.table.querySelectorAll(".picked")) {
      line.classList.remove("picked");
      line.tabIndex = -1;
      line.removeAttribute("aria-selected");
    }
    const number = this.rowOf.get(i);
    const line = isRevealed ? this.lazy.reveal(number) : this.lazy.show(number);
    line.classList.add("picked");
    line.tabIndex = 0;
    line.setAttribute("aria-selected", "true");
    if (isFocused) line.focus({preventScroll: true});
    history.replaceState(null, "", this.program.hrefOf(i));
    this.describe(i);
  }

  async describe(i) {
    const {program} = this;
    const item = program.items[i];
    const end = item.o + program.extentOf(i) - 1;
    const linkTo = (number) => el("a", {href: program.hrefOf(number)}, clip(program.items[number].n));
    const users = await program.usersOf(i);
    if (this.picked !== i) return;
    this.details.replaceChildren(...[
      el("h2", {}, clip(item.n)),
      el("p.path", {}, program.wayTo(i).slice(0, -1).map((at) => [linkTo(at), " \u203a "])),
      facts([
        ["Bytes", item.o < 0 || item.l < 0 ? "unknown" : item.o + " to " + end + " (hex " + item.o.toString(16).toUpperCase() + ")"],
        ["Size", item.max > 1 && item.l >= 0 ? item.max + " \u00d7 " + sizeText(item.l) : sizeText(item.l)],
        ["Picture", item.pic ? el("code", {}, clip(item.pic)) : null],
        ["Usage", program.usageOf(i)],
        ["Digits", item.d ? item.d + (item.sc ? ", " + item.sc + " behind the point" : "") : null],
        ["Sign", item.s],
        ["Occurs", item.max ? (item.odo ? (item.min || 0) + " to " + item.max : String(item.max)) : null],
        ["Depending on", item.oi >= 0 ? linkTo(item.oi) : item.odo ? clip(item.odo) : null],
        ["Redefines", item.rd >= 0 ? linkTo(item.rd) : null],
        ["Conditions", (item.k || []).length > 0 ? String(item.k.length) : null],
        ["Line", item.ln ? (item.src ? el("a", {href: "#/" + program.source + "/" + item.ln}, String(item.ln)) : String(item.ln)) : null],
      ]),
      users.length > 0 ? el("h3", {}, "Mapped by") : null,
      users.length > 0 ? el("ul", {}, users.slice(0, 100).map(({href, text}) => el("li", {}, el("a", {href}, text)))) : null,
      users.length > 100 ? el("p.quiet", {}, "and " + (users.length - 100) + " more") : null,
    ].filter(Boolean));
  }

  onKey(event) {
    const number = this.rowOf.get(this.picked);
    const step = (by) => {
      for (let at = number + by; at >= 0 && at < this.rows.length; at += Math.sign(by)) {
        if (this.rows[at].condition === null) return this.pick(this.rows[at].i, true);
      }
    };
    const item = this.program.items[this.picked];
    const children = this.program.children[this.picked];
    const actions = {
      ArrowDown: () => step(1), ArrowUp: () => step(-1),
      Home: () => this.pick(this.record, true), End: () => step(this.rows.length - number - 1) ,
      ArrowRight: () => {
        if (this.closed.has(this.picked)) this.toggle(this.picked);
        else if (children.length > 0) this.pick(children[0], true);
      },
      ArrowLeft: () => {
        const isOpen = !this.closed.has(this.picked) && (children.length > 0 || (item.k || []).length > 0);
        if (isOpen) this.toggle(this.picked);
        else if (item.p >= 0 && this.picked !== this.record) this.pick(item.p, true);
      },
    };
    const action = actions[event.key];
    if (!action || event.ctrlKey || event.metaKey || event.altKey) return;
    event.preventDefault();
    action();
  }
}

function sourcePage(source, line) {
  const isComment = (text) => text[6] === "*" || text[6] === "/" || text.trimStart().startsWith("*>");
  const list = el("div.source", {role: "list", "aria-label": "Lines of " + clip(source.name)});
  const lazy = new LazyRows(list, source.lines.length, () => 20, (i) =>
    el("div.code" + (i + 1 === line ? ".picked" : "") + (isComment(source.lines[i]) ? ".comment" : ""), {role: "listitem"},
      el("span.offset", {}, String(i + 1)), el("span", {}, clip(source.lines[i], 2000))));
  const document = asReport.documentOf(source.document);
  return {
    nodes: [
      crumbs(el("a", {href: "#/"}, "Overview"), el("a", {href: "#/" + source.document}, clip(document.name)), "Source"),
      el("h1", {}, clip(source.name), el("small", {}, plural(source.lines.length, "line"))),
      el("div.scroll", {tabindex: "0", role: "region", "aria-label": "Source"}, list),
    ],
    start: () => {
      if (line > 0 && line <= source.lines.length) lazy.reveal(line - 1);
    },
  };
}
