// Makes elements. Whatever a document holds gets into a page as text only: nothing here, or
// anywhere else, reads markup.
"use strict";

// el("a.button", {href: "#/"}, "text", element, ...): attributes that are null are left out, those
// that begin with "on" are listeners.
function el(kind, attributes, ...children) {
  const [tag, ...classes] = kind.split(".");
  const element = document.createElement(tag || "div");
  if (classes.length > 0) element.className = classes.join(" ");
  for (const [name, value] of Object.entries(attributes || {})) {
    if (value === null || value === undefined) continue;
    if (name.startsWith("on")) element.addEventListener(name.slice(2), value);
    else element.setAttribute(name, value);
  }
  // One by one: a call takes so many arguments and no more.
  for (const child of children.flat(Infinity)) if (child !== null && child !== undefined) element.append(child);
  return element;
}

function svg(tag, attributes) {
  const element = document.createElementNS("http://www.w3.org/2000/svg", tag);
  for (const [name, value] of Object.entries(attributes)) element.setAttribute(name, value);
  return element;
}

// A text that anything could be, as long as a line of it is read.
function clip(text, most = 120) {
  return text.length > most ? text.slice(0, most) + "\u2026" : text;
}

function plural(number, word) {
  return number.toLocaleString("en") + " " + word + (number === 1 ? "" : "s");
}

// Rows of known heights that are made only where they are seen: the page scrolls, not the list. When
// it is printed all of them are made, up to a number that a printer can take.
class LazyRows {
  static all = new Set();
  static mostPrinted = 4000;

  // heightOf(i) in pixels, make(i) an element.
  constructor(host, count, heightOf, make) {
    this.host = host;
    this.make = make;
    this.made = new Map();
    host.classList.add("lazy");
    this.resize(count, heightOf);
    LazyRows.all.add(this);
  }

  resize(count, heightOf) {
    this.count = count;
    this.tops = new Float64Array(count + 1);
    for (let i = 0; i < count; ++i) this.tops[i + 1] = this.tops[i] + heightOf(i);
    this.host.style.height = this.tops[count] + "px";
    this.clear();
    this.update();
  }

  clear() {
    for (const row of this.made.values()) row.remove();
    this.made.clear();
  }

  // The row at a distance from the top.
  at(y) {
    let low = 0;
    let high = this.count - 1;
    while (low < high) {
      const middle = (low + high + 1) >> 1;
      if (this.tops[middle] <= y) low = middle;
      else high = middle - 1;
    }
    return low;
  }

  update(isPrinted = false) {
    if (!this.host.isConnected || this.count === 0) return;
    const margin = 400;
    const top = this.host.getBoundingClientRect().top;
    let from = this.at(-top - margin);
    let to = this.at(-top + window.innerHeight + margin);
    if (isPrinted) [from, to] = [0, Math.min(this.count, LazyRows.mostPrinted) - 1];
    const focused = document.activeElement;
    for (const [i, row] of this.made) {
      if ((i < from || i > to) && row !== focused) {
        row.remove();
        this.made.delete(i);
      }
    }
    for (let i = from; i <= to; ++i) this.show(i);
  }

  show(i) {
    if (this.made.has(i)) return this.made.get(i);
    const row = this.make(i);
    row.style.transform = "translateY(" + this.tops[i] + "px)";
    row.style.height = this.tops[i + 1] - this.tops[i] + "px";
    // In the order of the rows, for those who do not see them.
    let next = null;
    for (let j = i + 1; j <= i + 60 && next === null; ++j) next = this.made.get(j) || null;
    this.host.insertBefore(row, next);
    this.made.set(i, row);
    return row;
  }

  // Scrolls only when the row is not to be seen.
  reveal(i) {
    const top = this.host.getBoundingClientRect().top + this.tops[i];
    const room = 90;
    if (top < room || top > window.innerHeight - room) {
      window.scrollBy({top: top - window.innerHeight / 3});
      this.update();
    }
    return this.show(i);
  }

  static updateAll(isPrinted = false) {
    for (const rows of LazyRows.all) {
      if (rows.host.isConnected) rows.update(isPrinted);
      else LazyRows.all.delete(rows);
    }
  }
}

{
  let isWaiting = false;
  const later = () => {
    if (isWaiting) return;
    isWaiting = true;
    requestAnimationFrame(() => {
      isWaiting = false;
      LazyRows.updateAll();
    });
  };
  addEventListener("scroll", later, {passive: true});
  addEventListener("resize", later);
  addEventListener("beforeprint", () => LazyRows.updateAll(true));
}
