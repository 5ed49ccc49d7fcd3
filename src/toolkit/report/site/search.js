// The search over all names: "/" goes there, arrows choose, Enter opens.
"use strict";

class Search {
  static most = 40;

  constructor(input, list) {
    this.input = input;
    this.list = list;
    this.entries = null;
    this.found = [];
    this.chosen = -1;
    input.addEventListener("input", () => this.search());
    input.addEventListener("focus", () => this.prepare());
    input.addEventListener("blur", () => setTimeout(() => this.close(), 150));
    input.addEventListener("keydown", (event) => this.onKey(event));
    document.addEventListener("keydown", (event) => {
      const isTyping = event.target.matches("input, textarea, select");
      if (event.key !== "/" || isTyping || event.ctrlKey || event.metaKey || event.altKey) return;
      event.preventDefault();
      input.focus();
      input.select();
    });
  }

  // All names in lower case, once: they are loaded when somebody begins to search.
  async prepare() {
    if (this.entries !== null) return this.search();
    const names = await asReport.load("names");
    if (this.entries !== null) return;
    this.entries = [];
    for (const {id, name: title, kind} of asReport.index.documents) {
      for (const [sort, place, name, around] of names[id]) {
        const href = kind === "program" ? (sort === "item" || sort === "condition" ? "#/" + id + "/" + place : "#/" + id)
          : sort === "service" ? "#/" + id : "#/" + id + "/" + place;
        this.entries.push({sort, name, low: name.toLowerCase(), href, around: [title, around].filter(Boolean).join(" \u203a ")});
      }
    }
    this.search();
  }

  search() {
    const text = this.input.value.trim().toLowerCase();
    if (text === "") return this.close();
    if (this.entries === null) return this.prepare();
    // What begins so comes before what only holds it.
    const ranks = [[], [], []];
    for (const entry of this.entries) {
      const at = entry.low.indexOf(text);
      if (at < 0) continue;
      const rank = entry.low === text ? 0 : at === 0 || entry.low[at - 1] === "-" ? 1 : 2;
      if (ranks[rank].length < Search.most) ranks[rank].push(entry);
    }
    this.found = ranks.flat().slice(0, Search.most);
    this.chosen = this.found.length > 0 ? 0 : -1;
    this.show();
  }

  show() {
    this.list.hidden = false;
    this.input.setAttribute("aria-expanded", "true");
    this.list.replaceChildren(...(this.found.length === 0
      ? [el("li.none", {role: "option", "aria-selected": "false", "aria-disabled": "true"}, "No name holds that.")]
      : this.found.map((entry, i) => el("li", {
          role: "option", id: "result" + i, "aria-selected": String(i === this.chosen),
          onmousedown: (event) => {
            event.preventDefault();
            this.open(i);
          },
        }, el("span.sort", {}, entry.sort), el("span.name", {}, entry.name), el("span.quiet", {}, clip(entry.around, 80))))));
    this.mark();
  }

  mark() {
    [...this.list.children].forEach((option, i) => {
      if (this.found.length > 0) option.setAttribute("aria-selected", String(i === this.chosen));
    });
    if (this.chosen < 0) return this.input.removeAttribute("aria-activedescendant");
    this.input.setAttribute("aria-activedescendant", "result" + this.chosen);
    this.list.children[this.chosen].scrollIntoView({block: "nearest"});
  }

  close() {
    this.list.hidden = true;
    this.input.setAttribute("aria-expanded", "false");
    this.input.removeAttribute("aria-activedescendant");
  }

  open(i) {
    const href = this.found[i].href;
    this.input.value = "";
    this.close();
    document.getElementById("main").focus({preventScroll: true});
    location.hash = href;
  }

  onKey(event) {
    const step = (by) => {
      if (this.found.length === 0) return;
      this.chosen = (this.chosen + by + this.found.length) % this.found.length;
      this.mark();
    };
    if (event.key === "ArrowDown") step(1);
    else if (event.key === "ArrowUp") step(-1);
    else if (event.key === "Enter" && this.chosen >= 0 && !this.list.hidden) this.open(this.chosen);
    else if (event.key === "Escape") {
      this.input.value = "";
      this.close();
      document.getElementById("main").focus({preventScroll: true});
    } else return;
    event.preventDefault();
  }
}
