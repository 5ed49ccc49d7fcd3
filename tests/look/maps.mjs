// Tests what a page of a report works out of a record, without a browser: its byte map, of records
// that have more members, and more redefinitions of one item, than anybody would look at.
//   node maps.mjs SITE
import { readFileSync } from "node:fs";
import vm from "node:vm";

const site = process.argv[2];
const page = vm.createContext({ window: {}, document: {}, el: () => ({}), clip: (text) => text });
for (const script of ["model.js", "bytemap.js"]) {
  vm.runInContext(readFileSync(site + "/" + script, "utf8"), page, { filename: script });
}
const [Program, ByteMap, TakenLanes] = vm.runInContext("[Program, ByteMap, TakenLanes]", page);

const problems = [];
function check(isFine, text) {
  console.log((isFine ? "  ok    " : "  WRONG ") + text);
  if (!isFine) problems.push(text);
}

// A record of elementary items: [offset, length, number of the item that it redefines].
function mapOf(members) {
  const length = members.reduce((end, [offset, size]) => Math.max(end, offset + size), 1);
  const items = [{ n: "R", c: "group", p: -1, o: 0, l: length }];
  for (const [o, l, rd] of members) {
    items.push(Object.assign({ n: "I", c: "alphanumeric", p: 0, o, l }, rd === undefined ? {} : { rd }));
  }
  return new ByteMap(new Program("d1", { items, sections: [] }), 0, () => {});
}

// Lanes one after the other, each range compared with all others.
function plainLanes(members) {
  const lanes = [0];
  const taken = [];
  members.forEach(([from, size, redefined], i) => {
    let lane = 0;
    if (redefined !== undefined) {
      lane = (redefined > 0 ? lanes[redefined] : 0) + 1;
      const to = from + Math.max(size, 1);
      while (taken.some(([a, b, other]) => other === lane && a < to && from < b)) ++lane;
      taken.push([from, to, lane]);
    }
    lanes[i + 1] = lane;
  });
  return lanes;
}

{
  const map = mapOf(Array.from({ length: 200000 }, (_, i) => [i, 1]));
  check(map.length === 200000 && map.overlays.length === 0, "a record of 200,000 members is measured");
}

{
  const map = mapOf([[0, 8], ...Array.from({ length: 60000 }, () => [0, 8, 1])]);
  const lanes = map.overlays.map(([, , lane]) => lane);
  check(lanes.slice(0, 499).every((lane, i) => lane === i + 1), "redefinitions of one item stand in lanes of their own");
  check(lanes.slice(499).every((lane) => lane === TakenLanes.most), "those for which there is none share the last one");
  map.perRow = 4;
  check(map.lanesOfRows(2).join() === "501,501", "a row has no more lanes than there are");
}

{
  // Made up of numbers that look like chance, and are the same each time.
  let seed = 1;
  const below = (most) => (seed = (seed * 48271) % 2147483647) % most;
  let areAlike = true;
  for (let round = 0; round < 200; ++round) {
    const members = [[0, 40]];
    for (let i = 1; i < 40; ++i) members.push([below(36), 1 + below(5), 1 + below(members.length)]);
    const map = mapOf(members);
    const expected = plainLanes(members);
    areAlike = areAlike && expected.every((lane, i) => map.lanes.get(i) === lane);
    map.perRow = 3;
    const rows = Array.from({ length: Math.ceil(map.length / 3) }, () => 1);
    for (const [from, to, lane] of map.overlays) {
      for (let byte = from; byte < to; ++byte) rows[Math.floor(byte / 3)] = Math.max(rows[Math.floor(byte / 3)], lane + 1);
    }
    areAlike = areAlike && map.lanesOfRows(rows.length).join() === rows.join();
  }
  check(areAlike, "lanes are those that comparing all with all gives");
}

if (problems.length > 0) process.exit(1);
