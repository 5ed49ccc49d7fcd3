#include "Documents.h"

#include "Texts.h"
#include "as/AgentServices.h"

namespace growth {

namespace {

// `open` so many times, `inside`, and `close` as often.
std::string nested(int levels, const std::string& open, const std::string& inside,
                   const std::string& close) {
  return repeat(levels, [&](int) { return open; }) + inside +
         repeat(levels, [&](int) { return close; });
}

std::string element(const std::string& name, const std::string& attributes,
                    const std::string& content = "") {
  return "<" + name + " " + attributes + ">" + content + "</" + name + ">";
}

std::string root(const std::string& name, const std::string& ns, const std::string& attributes,
                 const std::string& content) {
  return element(name,
                 "xmlns=\"" + ns +
                     "\" xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\" "
                     "xsi:schemaLocation=\"" +
                     ns + " " + ns + "\" " + attributes,
                 content);
}

std::string item(const std::string& name, const std::string& more = "",
                 const std::string& content = "") {
  return element("numeric", "name=\"" + name + "\" length=\"4\" digits=\"4\" " + more, content);
}

std::string group(const std::string& name, const std::string& content) {
  return element("group", "name=\"" + name + "\"", content);
}

std::string dictionary(const std::string& items, const std::string& entryPoints = "",
                       const std::string& properties = "") {
  return root("program", as::namespaces::dd.uri, "name=\"P\"",
              "<properties>" + properties + "</properties><dataItems>" + items +
                  "</dataItems><entryPoints>" + entryPoints + "</entryPoints>");
}

std::string entryPoint(const std::string& name, const std::string& linkage) {
  return element("entryPoint", "name=\"" + name + "\"", linkage);
}

std::string linkage(const std::string& name) { return "<parameter dataItem=\"" + name + "\"/>"; }

// N items, all at the top, the first of them handed over to entry point E.
std::string flatProgram(int n) {
  return dictionary(repeat(n, [](int i) { return item("I" + number(i)); }),
                    entryPoint("E", linkage("I0")));
}

// N items with an entry point each.
std::string entryPointsProgram(int n) {
  return dictionary(repeat(n, [](int i) { return item("I" + number(i)); }), repeat(n, [](int i) {
                      return entryPoint("E" + number(i), linkage("I" + number(i)));
                    }));
}

std::string deepProgram(int n) {
  return dictionary(nested(n, "<group name=\"G\">", item("LAST"), "</group>"),
                    entryPoint("E", linkage("G")));
}

std::string unnamedProgram(int n) {
  return dictionary(group("G", nested(n, "<group name=\"FILLER\">", item("LAST"), "</group>")),
                    entryPoint("E", linkage("G")));
}

// Only the last of n groups of one name has the item; all of them have one that is none.
std::string alternativesProgram(int n) {
  return dictionary(
      repeat(n,
             [n](int i) { return group("G", group("H", i + 1 == n ? item("LAST") : item("NO"))); }),
      entryPoint("E", linkage("G")));
}

std::string longName(int i) { return "SAME-NAME-UP-TO-THE-LAST-CHARACTERS-" + number(i); }

std::string longNamesProgram(int n) {
  return dictionary(repeat(n, [](int i) { return item(longName(i)); }),
                    entryPoint("E", linkage(longName(0))));
}

std::string sameNamesProgram(int n) {
  return dictionary(repeat(n, [](int) { return item("I0"); }), entryPoint("E", linkage("I0")));
}

std::string tablesProgram(int n) {
  std::string text = item("I");
  for (int level = 16; level > 0; level--) {
    const std::string name = "T" + number(level);
    text = element("group", "name=\"" + name + "\" minOccurs=\"3\" maxOccurs=\"3\"", text);
  }
  return dictionary(text + repeat(n, [](int i) { return item("I" + number(i)); }),
                    entryPoint("E", linkage("T1")));
}

std::string service(const as::Namespace& schema, const char* word, const std::string& content) {
  return root("service", schema.uri,
              "name=\"S\" implementation=\"" + std::string(word) +
                  "\" programName=\"P\" dataDictFilename=\"@\"",
              content);
}

std::string java(const std::string& content) {
  return service(as::namespaces::java, "java", content);
}

// A Web service with one operation.
std::string web(const std::string& parameters, const std::string& messages = "") {
  return service(as::namespaces::ws, "ws",
                 "<operations>" +
                     element("operation",
                             "name=\"o\" entryPoint=\"E\" style=\"rpc\" inputUse=\"literal\" "
                             "outputUse=\"literal\" inputNamespace=\"urn:in\" "
                             "outputNamespace=\"urn:out\"",
                             "<parameters>" + parameters + "</parameters>" + messages) +
                     "</operations>");
}

std::string mapping(const std::string& path) {
  return "<mappings><mapping item=\"" + path + "\"/></mappings>";
}

std::string parameter(const std::string& name, const std::string& path) {
  return element("parameter", "name=\"" + name + "\" byType=\"in\" dataType=\"int\"",
                 mapping(path));
}

std::string operation(const std::string& name, const std::string& entryPointName,
                      const std::string& parameters, const std::string& hidden = "") {
  return element("operation", "name=\"" + name + "\" entryPoint=\"" + entryPointName + "\"",
                 "<hiddenParameters>" + hidden + "</hiddenParameters><parameters>" + parameters +
                     "</parameters>");
}

std::string operations(const std::string& content) {
  return "<operations>" + content + "</operations>";
}

std::string definitions(const std::string& content) {
  return "<parameterTypeDefs>" + content + "</parameterTypeDefs>";
}

std::string reference(const std::string& name, const std::string& type) {
  return "<parameter name=\"" + name + "\" byType=\"in\" ref=\"" + type + "\"/>";
}

// One operation of a parameter for each number.
template <class Part>
std::string parameters(int n, const Part& part) {
  return operations(operation("o", "E", repeat(n, part)));
}

std::string references(int n) {
  return parameters(n, [](int i) { return reference("p" + number(i), "T" + number(i)); });
}

// Each definition refers to the one in front of it; the first is mapped to `path`.
std::string chain(int n, const std::string& path) {
  return definitions(
      element("parameter", "name=\"T0\" dataType=\"int\"", mapping(path)) +
      repeat(n - 1, [](int i) { return reference("T" + number(i + 1), "T" + number(i)); }));
}

// The same, each with a field of its own beside the reference.
std::string structures(int n, const std::string& first, const std::string& own) {
  return definitions(element("parameter", "name=\"T0\" dataType=\"int\"", mapping(first)) +
                     repeat(n - 1, [&](int i) {
                       const std::string at = own == "*" ? "I" + number(i + 1) : own;
                       return element(
                           "parameter", "name=\"T" + number(i + 1) + "\"",
                           element("field", "name=\"own\" dataType=\"int\"", mapping(at)) +
                               "<field name=\"inner\" ref=\"T" + number(i) + "\"/>");
                     }));
}

// clang-format off
const Document documents[] = {
    {"items", flatProgram, nullptr},
    {"children", [](int n) { return dictionary(group("G", repeat(n, [](int i) { return item("I" + number(i)); })), entryPoint("E", linkage("G"))); }, nullptr},
    {"conditions", [](int n) { return dictionary(item("I", "", repeat(n, [](int i) { return element("numericCondition", "name=\"C" + number(i) + "\"", "<numericConstant value=\"1\"/>"); })), entryPoint("E", linkage("I"))); }, nullptr},
    {"values", [](int n) { return dictionary(item("I", "", element("numericCondition", "name=\"C\"", repeat(n, [](int i) { return "<numericConstant value=\"" + number(i) + "\"/>"; }))), entryPoint("E", linkage("I"))); }, nullptr},
    {"properties", [](int n) { return dictionary(item("I"), entryPoint("E", linkage("I")), repeat(n, [](int i) { return "<property name=\"p" + number(i) + "\" value=\"v\"/>"; })); }, nullptr},
    {"redefinitions", [](int n) { return dictionary(group("G", item("I") + repeat(n, [](int i) { return item("R" + number(i), "redefines=\"true\""); })), entryPoint("E", linkage("G"))); }, nullptr},
    {"linkage", linkageProgram, nullptr},
    {"entryPoints", entryPointsProgram, nullptr},
    {"sameEntryPoints", [](int n) { return dictionary(item("I"), repeat(n, [](int) { return entryPoint("E", linkage("I")); })); }, nullptr},
    {"sameLinkage", [](int n) { return dictionary(item("I"), entryPoint("E", repeat(n, [](int) { return linkage("I"); }))); }, nullptr},
    {"sameNames", [](int n) { return dictionary(group("G", repeat(n, [](int) { return item("I"); })), entryPoint("E", linkage("G"))); }, nullptr},
    {"dependingOn", [](int n) { return dictionary(repeat(n, [n](int i) { return item("I" + number(i), "minOccurs=\"1\" maxOccurs=\"3\" odo=\"I" + number(n - 1 - i) + "\""); }), entryPoint("E", linkage("I0"))); }, nullptr},
    {"deep", deepProgram, nullptr, deepest},
    {"deepUnnamed", unnamedProgram, nullptr, deepest},
    {"operations", entryPointsProgram, [](int n) { return java(operations(repeat(n, [](int i) { return operation("o" + number(i), "E" + number(i), parameter("p", "I" + number(i))); }))); }},
    {"lostOperations", entryPointsProgram, [](int n) { return java(operations(repeat(n, [](int i) { return operation("o" + number(i), "NO" + number(i), parameter("p", "I0")); }))); }},
    {"sameOperations", entryPointsProgram, [](int n) { return java(operations(repeat(n, [](int) { return operation("o", "E0", parameter("p", "I0")); }))); }},
    {"parameters", linkageProgram, [](int n) { return java(parameters(n, [](int i) { return parameter("p" + number(i), "I" + number(i)); })); }},
    {"longNames", longNamesProgram, [](int n) { return java(parameters(n, [](int i) { return parameter(longName(i), longName(i)); })); }},
    {"sameParameters", sameNamesProgram, [](int n) { return java(parameters(n, [](int) { return parameter("p", "I0"); })); }},
    {"lostMappings", linkageProgram, [](int n) { return java(parameters(n, [](int i) { return parameter("p" + number(i), "NO.I" + number(i)); })); }},
    {"unreachable", [](int n) { return dictionary(repeat(n, [](int i) { return item("I" + number(i)) + item("U" + number(i)); }), entryPoint("E", repeat(n, [](int i) { return linkage("I" + number(i)); }))); }, [](int n) { return java(parameters(n, [](int i) { return parameter("p" + number(i), "U" + number(i)); })); }},
    {"alternatives", alternativesProgram, [](int n) { return java(parameters(n, [](int i) { return parameter("p" + number(i), i % 2 == 0 ? "G.H.LAST" : "G.H.NONE"); })); }},
    {"badNames", linkageProgram, [](int n) { return java(parameters(n, [](int) { return "<parameter name=\"\" dataType=\"int\"/>"; })); }},
    {"fields", linkageProgram, [](int n) { return java(operations(operation("o", "E", element("parameter", "name=\"p\" byType=\"in\"", repeat(n, [](int i) { return element("field", "name=\"f" + number(i) + "\" dataType=\"int\"", mapping("I" + number(i))); }))))); }},
    {"deepFields", flatProgram, [](int n) { return java(operations(operation("o", "E", element("parameter", "name=\"p\" byType=\"in\"", nested(n - 1, "<field name=\"f\"><mappings><mapping item=\"I0\"/></mappings>", "", "</field>"))))); }, deepest},
    {"dottedNames", deepProgram, [](int n) { return java(parameters(2, [&](int i) { return parameter("p" + number(i), repeat(n + 1, [](int part) { return std::string(part == 0 ? "G" : ".G"); })); })); }, deepest},
    {"mappings", linkageProgram, [](int n) { return java(operations(operation("o", "E", element("parameter", "name=\"p\" byType=\"in\" dataType=\"int\"", "<mappings>" + repeat(n, [](int i) { return "<mapping item=\"I" + number(i) + "\"/>"; }) + "</mappings>")))); }},
    {"subscripts", tablesProgram, [](int n) { const std::string all = "*,*,*,*,*,*,*,*,*,*,*,*,*,*,*,*"; return java(parameters(n, [&](int i) { return element("parameter", "name=\"p" + number(i) + "\" byType=\"in\" dataType=\"int\"", "<mappings><mapping item=\"T1.T2.T3.T4.T5.T6.T7.T8.T9.T10.T11.T12.T13.T14.T15.T16.I(" + all + ")\" subscript=\"" + all + "\"/></mappings>"); })); }},
    {"hiddenParameters", linkageProgram, [](int n) { return java(operations(operation("o", "E", "", repeat(n, [](int i) { return "<hiddenParameter item=\"I" + number(i) + "\" value=\"x\"/>"; })))); }},
    {"serviceProperties", flatProgram, [](int n) { return java("<properties>" + repeat(n, [](int i) { return "<property name=\"p" + number(i) + "\" value=\"v\"/>"; }) + "</properties>"); }},
    {"definitions", flatProgram, [](int n) { return java(definitions(repeat(n, [](int i) { return element("parameter", "name=\"T" + number(i) + "\" dataType=\"int\"", mapping("I0")); })) + references(n)); }},
    {"sameDefinitions", flatProgram, [](int n) { return java(definitions(repeat(n, [](int) { return element("parameter", "name=\"T0\" dataType=\"int\"", mapping("I0")); })) + parameters(n, [](int i) { return reference("p" + number(i), "T0"); })); }},
    {"lostReferences", flatProgram, [](int n) { return java(chain(n, "I0") + parameters(n, [](int i) { return reference("p" + number(i), "NO" + number(i)); })); }},
    {"chain", flatProgram, [](int n) { return java(chain(n, "I0") + references(n)); }},
    {"wrongChain", flatProgram, [](int n) { return java(chain(n, "I1") + references(n)); }},
    {"structures", flatProgram, [](int n) { return java(structures(n, "I0", "I0") + references(n)); }},
    {"wrongStructures", flatProgram, [](int n) { return java(structures(n, "I1", "I0") + references(n)); }},
    {"wrongEverywhere", flatProgram, [](int n) { return java(structures(n, "I1", "*") + references(n)); }},
    {"structuresEverywhere", entryPointsProgram, [](int n) { return java(structures(n, "I0", "I0") + operations(repeat(n, [n](int i) { return operation("o" + number(i), "E" + number(i), reference("p", "T" + number(n - 1))); }))); }},
    {"headers", flatProgram, [](int n) { return web("", repeat(n, [](int) { return element("header", "namespace=\"urn:h\" use=\"literal\"", "<parameters>" + parameter("h", "I0") + "</parameters>"); })); }},
    {"faults", flatProgram, [](int n) { return web("", repeat(n, [](int) { return element("fault", "namespace=\"\"", "<parameters/>"); })); }},
    {"attributes", flatProgram, [](int n) { return web(element("parameter", "name=\"p\" byType=\"in\"", repeat(n, [](int) { return element("fieldAttribute", "name=\"a\" dataType=\"int\"", mapping("I0")); }))); }},
    {"deepAttributes", flatProgram, [](int n) { return web(element("parameter", "name=\"p\" byType=\"in\"", nested(n - 1, "<fieldAttribute name=\"a\" dataType=\"int\">", "", "</fieldAttribute>"))); }, deepest},
};
// clang-format on

}  // namespace

std::span<const Document> allDocuments() { return documents; }

std::string linkageProgram(int n) {
  return dictionary(repeat(n, [](int i) { return item("I" + number(i)); }),
                    entryPoint("E", repeat(n, [](int i) { return linkage("I" + number(i)); })));
}

}  // namespace growth
