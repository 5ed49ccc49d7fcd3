// A record as a map of its bytes, to scale: rows of so many bytes each, elementary items as blocks.
// What lies over others (REDEFINES, RENAMES) stands in lanes below them, tables folded to their first
// element or unfolded.
"use strict";

// Which bytes of which lanes are taken. Nobody looks through more lanes than `most`: the last one is
// shared.
class TakenLanes {
  static most = 500;

  constructor() {
    this.lanes = [];
  }

  // Takes the bytes [from, to) of the first lane, from that one on, where they are free; answers which.
  take(lane, from, to) {
    for (; lane < TakenLanes.most; ++lane) {
      const ranges = this.lanes[lane] = this.lanes[lane] || [];
      const at = this.indexOf(ranges, from);
      const isFree = (at === 0 || ranges[at - 1][1] <= from) && (at === ranges.length || to <= ranges[at][0]);
      if (!isFree) continue;
      if (from < to) ranges.splice(at, 0, [from, to]);
      return lane;
    }
    return TakenLanes.most;
  }

  // Of the first range that begins at `from` or behind it; they are in order, and none reaches into
  // another.
  indexOf(ranges, from) {
    let low = 0;
    let high = ranges.length;
    while (low < high) {
      const middle = (low + high) >> 1;
      if (ranges[middle][0] < from) low = middle + 1;
      else high = middle;
    }
    return low;
  }
}

class ByteMap {
  static laneHeight = 34;
  static gapHeight = 26;

  constructor(program, record, onPick) {
    this.program = program;
    this.record = record;
    this.onPick = onPick;
    this.isUnfolded = false;
    this.isPicked = () => false;
    this.host = el("div.map", {
      role: "img",
      "aria-label": "Bytes of " + clip(program.items[record].n) + " to scale; the table below lists the same items",
    });
    this.length = program.extentOf(record);
    this.measureTrees();
    this.assignLanes();
  }

  // For each item where it and all below it end, and the size of the largest elementary item there.
  measureTrees() {
    const {items, children} = this.program;
    this.ends = new Map();
    this.largest = new Map();
    this.hasTables = false;
    const order = [this.record];
    // Lists of any length: a call takes so many arguments and no more.
    for (let i = 0; i < order.length; ++i) for (const child of children[order[i]]) order.push(child);
    for (const i of order.reverse()) {
      const own = items[i].o + this.program.extentOf(i);
      this.ends.set(i, children[i].reduce((end, child) => Math.max(end, this.ends.get(child)), own));
      const isLeaf = children[i].length === 0;
      const most = children[i].reduce((size, child) => Math.max(size, this.largest.get(child)), isLeaf ? items[i].l : 0);
      const rest = this.isUnfolded ? 0 : this.program.extentOf(i) - items[i].l;
      this.largest.set(i, Math.max(most, rest));
      if ((items[i].max || 0) > 1) this.hasTables = true;
      this.length = Math.max(this.length, this.ends.get(i));
    }
  }

  // The lane of each item; what is stacked at any place of a table counts for all of the table. What
  // finds no lane of its own stands in the last one with others.
  assignLanes() {
    const {items, children} = this.program;
    this.lanes = new Map();
    this.overlays = [];
    const taken = new TakenLanes();
    const waiting = [[this.record, 0, null]];
    for (let at = 0; at < waiting.length; ++at) {
      const [i, around, table] = waiting[at];
      const item = items[i];
      let lane = around;
      if (i !== this.record && (item.rd !== undefined || item.rn)) {
        const [from, to] = table || [item.o, Math.max(this.ends.get(i), item.o + 1)];
        lane = taken.take(Math.max(around, item.rd >= 0 ? this.lanes.get(item.rd) || 0 : 0) + 1, from, to);
        this.overlays.push([from, to, lane]);
      }
      this.lanes.set(i, lane);
      const isTable = (item.max || 0) > 1;
      const inside = table || (isTable ? [item.o, item.o + this.program.extentOf(i)] : null);
      for (const child of children[i]) waiting.push([child, lane, inside]);
    }
  }

  // The blocks that reach into the bytes [from, to).
  blocksIn(from, to, least = 0) {
    const {items, children} = this.program;
    const blocks = [];
    const visit = (i, shift, occurrence) => {
      const item = items[i];
      if (this.largest.get(i) < least || item.o < 0 || item.l < 0) return;
      const start = item.o + shift;
      if (start >= to || this.ends.get(i) + shift <= from) return;
      const times = Math.max(item.max || 0, 1);
      if (times === 1) return one(i, shift, occurrence);
      if (!this.isUnfolded) {
        one(i, shift, occurrence);
        const rest = {i, start: start + item.l, end: start + item.l * times, kind: "rest", times: times - 1, lane: this.lanes.get(i)};
        if (rest.end > from && rest.start < to) blocks.push(rest);
        return;
      }
      const step = Math.max(item.l, 1);
      const first = Math.max(0, Math.floor((from - start) / step));
      const last = Math.min(times - 1, Math.floor((to - 1 - start) / step));
      for (let k = first; k <= last; ++k) one(i, shift + k * step, occurrence.concat(k + 1));
    };
    const one = (i, shift, occurrence) => {
      const item = items[i];
      if (children[i].length > 0) {
        for (const child of children[i]) visit(child, shift, occurrence);
      } else if (item.l > 0) {
        const start = item.o + shift;
        blocks.push({i, start, end: start + item.l, kind: "item", occurrence, lane: this.lanes.get(i)});
      }
    };
    visit(this.record, 0, []);
    return blocks;
  }

  // How many lanes each row has.
  lanesOfRows(count) {
    const lanes = new Uint16Array(count).fill(1);
    // The highest lanes first: a row that has its number is not looked at again.
    const next = Uint32Array.from({length: count + 1}, (_, row) => row);
    const openFrom = (row) => {
      while (next[row] !== row) row = next[row] = next[next[row]];
      return row;
    };
    for (const [from, to, lane] of [...this.overlays].sort((a, b) => b[2] - a[2])) {
      const last = Math.min(count - 1, Math.floor((to - 1) / this.perRow));
      for (let row = openFrom(Math.max(0, Math.min(count, Math.floor(from / this.perRow)))); row <= last; row = openFrom(row)) {
        lanes[row] = lane + 1;
        next[row] = row + 1;
      }
    }
    return lanes;
  }

  // Rows of bytes, as many in each as there is room for; those in the middle of one large item are
  // left out.
  layOut() {
    const gutter = 64;
    const width = Math.max(200, this.host.clientWidth - gutter);
    const sizes = [10, 20, 30, 40, 50, 60, 80, 100];
    this.perRow = sizes[0];
    for (const size of sizes) if (width / size >= 15) this.perRow = size;
    if (this.length < this.perRow) this.perRow = Math.max(this.length, 1);
    while (this.length / this.perRow > 100000) this.perRow *= 10;
    this.unit = Math.min(width / this.perRow, 46);
    const count = Math.ceil(this.length / this.perRow);
    const lanes = this.lanesOfRows(count);
    const isInside = new Uint8Array(count);
    for (const block of this.blocksIn(0, this.length, 4 * this.perRow)) {
      if (block.end - block.start < 4 * this.perRow) continue;
      const last = Math.floor(block.end / this.perRow) - 1;
      for (let row = Math.ceil(block.start / this.perRow) + 1; row < last; ++row) {
        if (lanes[row] === 1) isInside[row] = 1;
      }
    }
    this.rows = [];
    for (let row = 0; row < count; ++row) {
      const first = row;
      while (isInside[row] && isInside[row + 1]) ++row;
      if (row > first) this.rows.push({gap: true, from: first, to: row + 1});
      else this.rows.push({gap: false, from: row, to: row + 1, lanes: lanes[row]});
    }
    const heightOf = (i) => this.rows[i].gap ? ByteMap.gapHeight : this.rows[i].lanes * ByteMap.laneHeight + 8;
    if (this.lazy) this.lazy.resize(this.rows.length, heightOf);
    else this.lazy = new LazyRows(this.host, this.rows.length, heightOf, (i) => this.rowOf(this.rows[i]));
  }

  rowOf(row) {
    const from = row.from * this.perRow;
    const to = Math.min(row.to * this.perRow, this.length);
    const gutter = el("span.offset", {}, String(from));
    if (row.gap) {
      return el("div.row.gap", {}, gutter, el("span.track", {}, plural(to - from, "byte") + " more of it"));
    }
    const track = el("span.track", {});
    track.style.width = (to - from) * this.unit + "px";
    track.style.setProperty("--unit", this.unit + "px");
    for (const block of this.blocksIn(from, to)) track.append(this.blockOf(block, from, to));
    return el("div.row", {}, gutter, track);
  }

  // As much of the end of a name as there is room for: names in a record begin alike.
  shortName(name, width) {
    const fits = (text) => text.length * 7.2 <= width;
    let text = name;
    while (!fits(text) && text.includes("-")) text = text.slice(text.indexOf("-") + 1);
    return text;
  }

  blockOf(block, from, to) {
    const item = this.program.items[block.i];
    const start = Math.max(block.start, from);
    const end = Math.min(block.end, to);
    const width = (end - start) * this.unit;
    const isRest = block.kind === "rest";
    const name = clip(item.n, 60) + (block.occurrence && block.occurrence.length > 0 ? " (" + block.occurrence.join(",") + ")" : "");
    const text = isRest ? "\u00d7 " + block.times + " more " + clip(item.n, 60) : name;
    const details = clip(this.program.pathOf(block.i), 300) + "\n" + (isRest ? plural(block.times, "more element") + ", " : "") +
      "bytes " + block.start + " to " + (block.end - 1) + (item.pic ? ", PICTURE " + clip(item.pic, 60) : "");
    const element = el("span.block.tone-" + (isRest ? "rest" : this.program.toneOf(block.i)), {title: details, "data-item": block.i});
    if (block.start < from) element.classList.add("begun");
    if (block.end > to) element.classList.add("open");
    if (this.lanes.get(block.i) > 0) element.classList.add("over");
    if (item.rn) element.classList.add("renames");
    if (this.isPicked(block.i)) element.classList.add("picked");
    element.style.left = (start - from) * this.unit + "px";
    element.style.width = Math.max(width - 1, 1) + "px";
    element.style.top = 4 + block.lane * ByteMap.laneHeight + "px";
    const isNarrow = width < 44;
    if (isNarrow) element.classList.add("narrow");
    const room = width - (isNarrow ? 7 : 16);
    const picture = clip(item.pic || item.u || "", 24);
    if (width >= 14) element.append(el("b", {}, isRest ? text : this.shortName(name, room)));
    const isRoomy = name.length * 7.4 + picture.length * 6.8 + 8 <= room;
    if (isRoomy && !isRest && picture !== "" && block.start >= from) element.append(el("i", {}, picture));
    element.addEventListener("click", () => this.onPick(block.i));
    return element;
  }

  setUnfolded(isUnfolded) {
    this.isUnfolded = isUnfolded;
    this.measureTrees();
    this.layOut();
  }

  // Marks the blocks of an item, and of all in a group; none for -1.
  pick(i) {
    const inside = new Set([i]);
    const waiting = [i];
    while (i >= 0 && waiting.length > 0) {
      for (const child of this.program.children[waiting.pop()]) {
        inside.add(child);
        waiting.push(child);
      }
    }
    this.isPicked = (item) => inside.has(item);
    for (const block of this.host.querySelectorAll(".block")) {
      block.classList.toggle("picked", this.isPicked(Number(block.dataset.item)));
    }
  }
}
