// Judges JSON Schemas and OpenAPI documents with ajv and swagger-parser: node json_check.js FILE...
// What examples hold is accepted; each rule of a schema that is broken by itself is refused. Prints
// how often each rule was broken, in JSON.
'use strict';
const fs = require('fs');
const Ajv = require('ajv/dist/2020').default;
const addFormats = require('ajv-formats').default;
const SwaggerParser = require('@apidevtools/swagger-parser');

const copy = (value) => JSON.parse(JSON.stringify(value));

// Ways to break a value that fits its schema: a name, and what is wrong then, or undefined.
const rules = {
  'missing property': (s, v) => {
    const name = (s.required || [])[0];
    if (name === undefined) return undefined;
    const broken = copy(v);
    delete broken[name];
    return broken;
  },
  'last property missing': (s, v) => {
    const name = (s.required || []).slice(-1)[0];
    if (name === undefined) return undefined;
    const broken = copy(v);
    delete broken[name];
    return broken;
  },
  'unknown property': (s, v) =>
    s.additionalProperties === false ? {...copy(v), 'no such name': 1} : undefined,
  'property of other case': (s, v) => {
    const name = Object.keys(v || {}).find((key) => key !== key.toUpperCase());
    if (s.type !== 'object' || name === undefined) return undefined;
    return {...copy(v), [name.toUpperCase()]: v[name]};
  },
  'array for object': (s, v) => s.type === 'object' ? [v] : undefined,
  'text for object': (s) => s.type === 'object' ? 'text' : undefined,
  'null for value': (s) => s.type ? null : undefined,
  'truth for value': (s) => s.type ? true : undefined,
  'object for value': (s) => s.type && s.type !== 'object' ? {} : undefined,
  'array for value': (s, v) => s.type && s.type !== 'array' ? [v] : undefined,
  'object for array': (s, v) => s.type === 'array' ? {...v} : undefined,
  'array too short': (s, v) => s.minItems > 0 ? v.slice(0, s.minItems - 1) : undefined,
  'array too long': (s, v) => s.maxItems !== undefined && v.length > 0 && s.maxItems < 3000
    ? Array(s.maxItems + 1).fill(v[0]) : undefined,
  'text for integer': (s, v) => s.type === 'integer' ? String(v) : undefined,
  'fraction for integer': (s, v) => s.type === 'integer' ? v + 0.5 : undefined,
  'integer too small': (s) => s.minimum !== undefined ? s.minimum - 1 : undefined,
  'integer too large': (s) => s.maximum !== undefined ? s.maximum + 1 : undefined,
  'number for text': (s) => s.type === 'string' ? 1 : undefined,
  'text too long': (s) => s.maxLength !== undefined ? 'x'.repeat(s.maxLength + 1) : undefined,
  'letters for numeral': (s) => s.pattern ? 'abc' : undefined,
  'exponent in numeral': (s) => s.pattern ? '1E2' : undefined,
  'numeral too long': (s) => /\{1,/.test(s.pattern || '') ? '9'.repeat(60) : undefined,
  'too many decimals': (s) => s.pattern && !s.pattern.includes('[0-9]+)') ? '0.' + '1'.repeat(60) : undefined,
  'negative numeral': (s) => s.pattern && !s.pattern.startsWith('^-') ? '-1' : undefined,
  'empty numeral': (s) => s.pattern && s.pattern.startsWith('^[') ? '' : undefined,
  'text for number': (s) => s.type === 'number' ? 'text' : undefined,
  'no date': (s) => s.format === 'date-time' ? 'yesterday' : undefined,
  'other value': (s) => s.enum ? (typeof s.enum[0] === 'number' ? 123456789 : 'no such value') : undefined,
};

const broken = {};

// Breaks each rule of the schema and of those below it, once for each schema.
function breakAll(ajv, root, schema, value, seen, file) {
  if (value === undefined) return;
  if (schema.$ref) {
    const name = decodeURIComponent(schema.$ref.slice(schema.$ref.lastIndexOf('/') + 1));
    const target = (root.$defs || root.components.schemas)[name];
    if (!seen.has(name)) {
      seen.add(name);
      breakAll(ajv, root, target, value, seen, file);
    }
    return;
  }
  const prefix = root.$defs ? {$defs: root.$defs} : {components: root.components};
  const validate = ajv.compile({...prefix, ...schema});
  if (!validate(value)) {
    throw new Error(`${file}: a sample is refused: ${JSON.stringify(value).slice(0, 200)} ` +
      JSON.stringify(validate.errors.slice(0, 2)));
  }
  for (const [name, rule] of Object.entries(rules)) {
    const wrong = rule(schema, value);
    if (wrong === undefined) continue;
    if (validate(wrong)) {
      throw new Error(`${file}: ${name} is accepted: ${JSON.stringify(wrong).slice(0, 200)}`);
    }
    broken[name] = (broken[name] || 0) + 1;
  }
  if (schema.type === 'object') {
    for (const [name, part] of Object.entries(schema.properties || {})) {
      breakAll(ajv, root, part, value[name], seen, file);
    }
  }
  if (schema.type === 'array') breakAll(ajv, root, schema.items, value[0], seen, file);
}

function reader() {
  const ajv = new Ajv({strict: true, validateFormats: true, inlineRefs: false});
  addFormats(ajv);
  ajv.addVocabulary(['components']);
  return ajv;
}

async function judge(file) {
  const document = JSON.parse(fs.readFileSync(file));
  if (document.$schema) {
    reader().compile(document);
    return 0;
  }
  await SwaggerParser.validate(copy(document));
  let samples = 0;
  for (const path of Object.values(document.paths)) {
    const messages = [path.post.requestBody, ...Object.values(path.post.responses)];
    const seen = new Set();
    for (const message of messages) {
      const media = message.content['application/json'];
      if (!('example' in media)) continue;
      samples += 1;
      breakAll(reader(), document, media.schema, media.example, seen, file);
    }
  }
  return samples;
}

(async () => {
  let samples = 0;
  for (const file of process.argv.slice(2)) samples += await judge(file);
  console.log(JSON.stringify({samples, broken}));
})().catch((failure) => {
  console.error(failure.message || failure);
  process.exit(1);
});
