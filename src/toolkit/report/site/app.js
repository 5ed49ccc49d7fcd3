// Which page is shown: the part of the address behind "#/" tells. "" is the overview, "d1" a program,
// "d1/7" an item of it, "s1/2" a card of a service, "t1/30" a line of a source.
"use strict";

function documentCard(known) {
  const counts = Object.entries(known.counts).filter(([, number]) => number > 0)
    .map(([name, number]) => plural(number, name.replace(/s$/, "")).replaceAll(" ", "\u00a0")).join(" \u00b7 ");
  const isClean = known.errors === 0 && known.warnings === 0;
  return el("li.cardlink", {}, el("a", {href: "#/" + known.id}, clip(known.name) || "(unnamed)"),
    el("span.kind", {}, known.kind === "service" ? known.flavour + " service" : "Program"),
    el("p.quiet", {}, clip(known.file)), el("p", {}, counts),
    known.kind !== "service" ? null : isClean ? el("p.clean", {}, "clean")
      : el("p.bad", {}, [known.errors && plural(known.errors, "error"), known.warnings && plural(known.warnings, "warning")].filter(Boolean).join(", ")));
}

// By their names: people look for them so.
function documentsOf(kind) {
  return asReport.index.documents.filter((known) => known.kind === kind)
    .sort((left, right) => left.name.localeCompare(right.name));
}

function overview() {
  const group = (title, kind) => {
    const list = documentsOf(kind);
    return list.length === 0 ? null : el("section", {}, el("h2", {}, title), el("ul.cards", {}, list.map(documentCard)));
  };
  return [
    el("h1", {}, "Programs and services"),
    el("p.lead.keys", {}, "Press ", el("kbd", {}, "/"), " to search all names; in a record, the arrows walk through its items."),
    group("Programs", "program"), group("Services", "service"),
  ];
}

function navigation(current) {
  const entry = (known) => el("li", {}, el("a", {href: "#/" + known.id, "aria-current": known.id === current ? "page" : null}, clip(known.name, 60) || "(unnamed)",
    known.kind === "service" ? el("small", {}, known.flavour) : null));
  const list = (title, kind) => {
    const some = documentsOf(kind);
    return some.length === 0 ? [] : [el("h2", {}, title), el("ul", {}, some.slice(0, 200).map(entry))];
  };
  document.getElementById("nav").replaceChildren(
    el("ul", {}, el("li", {}, el("a", {href: "#/", "aria-current": current === "" ? "page" : null}, "Overview"))),
    ...list("Programs", "program"), ...list("Services", "service"));
}

async function pageOf(id, place) {
  const data = await asReport.load(id);
  if (id[0] === "t") return sourcePage(data, place);
  if (id[0] === "s") {
    const service = new Service(id, data);
    const program = data.document ? await programOf(data.document) : null;
    const page = new ServicePage(service, program, Math.max(place, 0));
    return {nodes: page.nodes(), start: () => page.start()};
  }
  const program = await programOf(id);
  if (place < 0 || place >= program.items.length) return {nodes: programPage(program), start: () => {}};
  const page = new RecordPage(program, place);
  return {nodes: page.nodes(), start: () => page.start(), record: program.id + "/" + page.record, page};
}

const programs = new Map();
async function programOf(id) {
  if (!programs.has(id)) programs.set(id, new Program(id, await asReport.load(id)));
  return programs.get(id);
}

let shown = {};
let asked = 0;

async function route() {
  const number = ++asked;
  const [, id = "", place = ""] = location.hash.split("/");
  const at = /^\d+$/.test(place) ? Number(place) : -1;
  const main = document.getElementById("main");
  // Another item of the record that is there.
  if (shown.record && id === shown.page.program.id && at >= 0 && id + "/" + shown.page.program.recordOf(Math.min(at, shown.page.program.items.length - 1)) === shown.record) {
    shown.page.pick(at, false);
    return;
  }
  let page = {nodes: [], start: () => {}};
  try {
    if (id === "") page.nodes = overview();
    else if (/^t\d+$/.test(id) || asReport.documentOf(id)) page = await pageOf(id, at);
    else page.nodes = [el("h1", {}, "There is no such page")];
  } catch (failure) {
    page.nodes = [el("h1", {}, "This page cannot be shown"), el("p", {}, String(failure.message))];
  }
  if (number !== asked) return;
  shown = page;
  main.replaceChildren();
  for (const node of page.nodes.flat(Infinity)) if (node) main.append(node);
  navigation(id[0] === "t" ? "" : id);
  window.scrollTo(0, 0);
  const heading = main.querySelector("h1");
  document.title = heading.firstChild.textContent + " \u2013 Programs and services";
  LazyRows.updateAll();
  page.start();
}

{
  const themes = ["system", "light", "dark"];
  const button = document.getElementById("theme");
  const remembered = () => {
    try {
      return localStorage.getItem("theme");
    } catch {
      return null;  // Some browsers keep nothing for pages from the disk.
    }
  };
  const apply = (theme) => {
    document.documentElement.dataset.theme = theme;
    button.lastElementChild.textContent = theme;
  };
  let theme = themes.includes(remembered()) ? remembered() : "system";
  apply(theme);
  button.addEventListener("click", () => {
    theme = themes[(themes.indexOf(theme) + 1) % themes.length];
    apply(theme);
    try {
      localStorage.setItem("theme", theme);
    } catch {
      // Then it lasts as long as the page.
    }
  });
}

addEventListener("index", () => {
  new Search(document.getElementById("search"), document.getElementById("results"));
  addEventListener("hashchange", route);
  route();
});
