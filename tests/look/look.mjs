// Looks at a report in a headless Chromium: pictures of its pages, light, dark, on a phone and in
// print; whether search and keyboard do what they are to; what axe says of accessibility; whether
// anything was asked of a network, and any script failed.
//   node look.mjs BROWSER SITE PICTURES
import { mkdirSync, readFileSync } from "node:fs";
import { createRequire } from "node:module";
import { pathToFileURL } from "node:url";
import { HtmlValidate } from "html-validate";
import puppeteer from "puppeteer-core";

const [browserPath, site, pictures] = process.argv.slice(2);
const axe = createRequire(import.meta.url).resolve("axe-core/axe.min.js");
const home = pathToFileURL(site + "/index.html").href;
mkdirSync(pictures, { recursive: true });

// The page as it is written is judged by its style, too (no native element is a search with a list);
// what scripts make of it, as it stands.
const styled = new HtmlValidate({ extends: ["html-validate:recommended"], rules: { "prefer-native-element": "off" } });
const standard = new HtmlValidate({ extends: ["html-validate:standard"] });
async function wrongIn(validator, text) {
  const { results } = await validator.validateString(text);
  const wrong = results.flatMap((result) => result.messages).map((message) => message.ruleId + ": " + message.message);
  return [...new Set(wrong)].join("; ");
}

const problems = [];
function check(isFine, text) {
  console.log((isFine ? "  ok    " : "  WRONG ") + text);
  if (!isFine) problems.push(text);
}

const browser = await puppeteer.launch({
  executablePath: browserPath,
  args: ["--no-sandbox", "--force-color-profile=srgb", "--hide-scrollbars"],
});
const page = await browser.newPage();
page.setDefaultTimeout(120000);
page.on("pageerror", (failure) => check(false, "a script failed: " + failure.message));
page.on("console", (message) => {
  if (message.type() === "error") check(false, "the console says: " + message.text());
});
page.on("request", (request) => {
  const isLocal = /^(file|data):/.test(request.url());
  if (!isLocal) check(false, "asked of a network: " + request.url());
});

const settle = () => page.evaluate(() => new Promise((done) => setTimeout(done, 120)));
async function open(address, size = { width: 1280, height: 900 }) {
  await page.setViewport(size);
  await page.goto("about:blank");
  await page.goto(home + address, { waitUntil: "load" });
  await settle();
}
const heading = () => page.$eval("h1", (title) => title.firstChild.textContent);
const focused = () => page.evaluate(() => document.activeElement.textContent);

const documents = await (async () => {
  await open("");
  return page.evaluate(() => asReport.index.documents);
})();
const program = documents.find((known) => known.kind === "program" && known.name === "MOTPREM") || documents.find((known) => known.kind === "program");
const service = documents.find((known) => known.errors > 0) || documents.find((known) => known.kind === "service");
const wired = documents.find((known) => known.program === program.id && known.errors === 0) || service;
const record = await page.evaluate(async (id) => {
  const program = new Program(id, await asReport.load(id));
  return program.sections.flatMap((section) => section.records).find((i) => program.children[i].some((child) => program.items[child].rd >= 0)) || 0;
}, program.id);
const source = await page.evaluate(async (id) => (await asReport.load(id)).source, program.id);
const views = [
  ["overview", ""],
  ["program", "#/" + program.id],
  ["record", "#/" + program.id + "/" + record],
  ["service", "#/" + service.id],
  ["wiring", "#/" + wired.id + "/" + (wired.counts.operations - 1)],
  ...(source ? [["source", "#/" + source + "/40"]] : []),
];

const wrong = await wrongIn(styled, readFileSync(site + "/index.html", "utf8"));
check(wrong === "", "index.html: valid HTML " + wrong);

console.log("pictures");
const themes = [["light", 1280, 900], ["dark", 1280, 900], ["phone", 360, 740], ["phone-dark", 360, 740]];
for (const [theme, width, height] of themes) {
  const scheme = theme.endsWith("dark") ? "dark" : "light";
  await page.emulateMediaFeatures([{ name: "prefers-color-scheme", value: scheme }]);
  for (const [name, address] of views) {
    await open(address, { width, height, deviceScaleFactor: width < 500 ? 2 : 1 });
    await page.screenshot({ path: pictures + "/" + name + "-" + theme + ".png" });
    const wide = await page.evaluate(() => document.documentElement.scrollWidth - innerWidth);
    check(wide <= 0, name + ", " + theme + ": nothing stands beyond the edge (" + wide + ")");
    await page.addScriptTag({ path: axe });
    const found = await page.evaluate(() => axe.run(document, { preload: false }));
    const told = found.violations.map((one) => one.id + " (" + one.nodes.length + ": " + one.nodes[0].target + ")");
    check(told.length === 0, name + ", " + theme + ": accessible" + (told.length > 0 ? ": " + told.join(", ") : ""));
    if (theme !== "light") continue;
    const wrong = await wrongIn(standard, await page.content());
    check(wrong === "", name + ": valid HTML " + wrong);
  }
}
await page.emulateMediaFeatures([{ name: "prefers-color-scheme", value: "light" }]);
for (const [name, address] of views.filter(([name]) => name === "record" || name === "service")) {
  await open(address);
  await page.pdf({ path: pictures + "/" + name + "-print.pdf", format: "A4", printBackground: true });
  // As a picture, too: how it is laid out for a sheet.
  await page.emulateMediaType("print");
  await page.setViewport({ width: 794, height: 1123 });
  await page.evaluate(() => dispatchEvent(new Event("beforeprint")));
  await settle();
  await page.screenshot({ path: pictures + "/" + name + "-print.png" });
  const cut = await page.$$eval(".line > *, .line .name, .field .type", (cells) => cells
    .filter((cell) => cell.scrollWidth > cell.clientWidth + 1).map((cell) => cell.textContent));
  check(cut.length === 0, name + ", on paper: nothing is cut off " + cut.slice(0, 3).join(", "));
  await page.emulateMediaType(null);
}

console.log("keyboard");
await open("");
await page.keyboard.press("/");
check(await page.evaluate(() => document.activeElement.id === "search"), "/ goes to the search");
const name = await page.evaluate(async (id, i) => (await asReport.load(id)).items[i].n, program.id, record);
await page.keyboard.type(name.toLowerCase());
check(await page.$eval("#results li .name", (first) => first.textContent) === name, "the search finds " + name + " first");
for (let i = 0; i < 4; ++i) await page.keyboard.press("Backspace");
await page.keyboard.press("ArrowDown");
check(await page.$eval("#results li:nth-child(2)", (second) => second.getAttribute("aria-selected")) === "true", "the arrow goes to the second name");
await page.keyboard.type(name.toLowerCase().slice(-4));
await page.keyboard.press("Enter");
await settle();
check(await heading() === name, "Enter opens the record");
await page.keyboard.press("/");
await page.keyboard.type("x");
await page.keyboard.press("Escape");
check(await page.$eval("#results", (list) => list.hidden), "Escape closes the search");
await page.focus('.tree [tabindex="0"]');
await page.keyboard.press("ArrowDown");
const second = await focused();
check(!second.includes(name), "the arrow goes to the next item");
await page.keyboard.press("ArrowUp");
await page.keyboard.press("ArrowLeft");
check(await page.$eval('.tree [tabindex="0"]', (row) => row.getAttribute("aria-expanded")) === "false", "the left arrow closes a group");
await page.keyboard.press("ArrowRight");
check(await page.$eval('.tree [tabindex="0"]', (row) => row.getAttribute("aria-expanded")) === "true", "the right arrow opens it");
await open("#/" + program.id);
for (let i = 0; i < 3; ++i) await page.keyboard.press("Tab");
check(await page.evaluate(() => document.activeElement.matches("a, button, input")), "Tab reaches links");

console.log("mouse");
await open("#/" + program.id + "/" + record);
const folded = await page.$$eval(".block", (blocks) => blocks.length);
const fold = await page.$(".tools .plain");
if (fold) {
  await fold.click();
  await settle();
  await page.screenshot({ path: pictures + "/record-unfolded.png" });
  check(await page.$$eval(".block", (blocks) => blocks.length) >= folded, "tables unfold");
}
await page.click(".map .block");
check((await page.$eval(".details h2", (title) => title.textContent)).length > 0, "a block tells of its item");

const large = documents.find((known) => known.name === "LARGE");
if (large) {
  console.log("a record of " + large.counts.items + " items");
  const timed = async (action) => {
    const start = performance.now();
    await action();
    return Math.round(performance.now() - start);
  };
  const shown = await timed(async () => {
    await page.goto("about:blank");
    await page.goto(home + "#/" + large.id + "/0");
    await page.waitForSelector(".tree .line.picked");
  });
  check(shown < 3000, "is shown after " + shown + " ms");
  // What the machine does beside counts as little as it can: the middle one of many jumps, and the
  // time that the page's own script takes.
  const [jump, own] = await page.evaluate(async () => {
    const jumps = [];
    const owns = [];
    for (let i = 0; i < 60; ++i) {
      const start = performance.now();
      scrollTo(0, (document.documentElement.scrollHeight * i) / 60);
      LazyRows.updateAll();
      owns.push(performance.now() - start);
      await new Promise((done) => requestAnimationFrame(() => setTimeout(done)));
      jumps.push(performance.now() - start);
    }
    const middle = (numbers) => Math.round(10 * numbers.sort((a, b) => a - b)[30]) / 10;
    return [middle(jumps), middle(owns)];
  });
  check(jump < 150, "a jump through it is shown after " + jump + " ms, " + own + " of them script");
  const rows = await page.evaluate(() => document.querySelectorAll(".line, .block").length);
  check(rows < 2500, rows + " rows and blocks are made at a time");
  await page.evaluate(() => scrollTo(0, 0));
  await page.focus("#search");
  const typed = await timed(() => page.keyboard.type("g999-last"));
  check(await page.$eval("#results li .name", (first) => first.textContent) === "G999-LAST", "the search finds an item in it");
  check(typed < 2000, "nine letters of the search take " + typed + " ms");
}

console.log("links");
const names = new Set();
for (const [, address] of views) {
  await open(address);
  for (const href of await page.$$eval("main a", (links) => links.map((link) => link.getAttribute("href")))) names.add(href);
}
for (const href of [...names].slice(0, 60)) {
  await open(href);
  const title = await heading();
  if (title.startsWith("There is no") || title.startsWith("This page cannot")) check(false, href + " leads nowhere");
}
check(names.size > 0, names.size + " links seen, the first 60 followed");

await browser.close();
console.log(problems.length === 0 ? "all is well" : problems.length + " problems");
process.exit(problems.length === 0 ? 0 : 1);
