// Measures growth: what each operation takes for n of something and for four times as many, and the
// ratio of the two ("fourfold"). An operation whose time is in proportion to what it is given has
// about 4; one that looks at everything for each of n things heads for 16. The runs of the two
// sizes take turns and their medians count, so that a busy machine weighs on both alike.
// AS_GROWTH=25000 in the environment measures with that n.
#include <benchmark/benchmark.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include "as/AgentServices.h"
#include "as/toolkit/Toolkit.h"

namespace {

namespace fs = std::filesystem;
namespace toolkit = as::toolkit;

// What is measured, prepared: the time of the call counts, that of preparing it does not.
using Work = std::function<void()>;

const toolkit::DocumentReader& reader() {
  static const toolkit::DocumentReader instance(AS_SCHEMA_DIR);
  return instance;
}

// ---- Text of documents

std::string number(int i) { return std::to_string(i); }

// part(0) part(1) ... part(count - 1)
template <class Part>
std::string repeat(int count, const Part& part) {
  std::string text;
  for (int i = 0; i < count; i++) text += part(i);
  return text;
}

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

// The same with all of them handed over.
std::string linkageProgram(int n) {
  return dictionary(repeat(n, [](int i) { return item("I" + number(i)); }),
                    entryPoint("E", repeat(n, [](int i) { return linkage("I" + number(i)); })));
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

// A document, made for n. Deep ones nest n levels, so n is at most `most`.
struct Document {
  const char* name;
  std::string (*program)(int n);
  std::string (*service)(int n);  // Null: the program by itself.
  int most = 1 << 30;
};

// As deep as the parser lets documents be, less what stands around it, a quarter of it.
constexpr int deepest = (2048 - 16) / 4;

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

// ---- Reading them

// A document in a folder of its own, which goes with it.
class Files {
 public:
  Files(const Document& document, int n) {
    static int count = 0;
    folder_ =
        fs::temp_directory_path() /
        ("agentservices-growth-" + number(static_cast<int>(::getpid())) + "-" + number(count++));
    fs::create_directory(folder_);
    std::ofstream(dictionary()) << document.program(n);
    if (document.service == nullptr) return;
    std::string text = document.service(n);
    const std::size_t at = text.find("\"@\"") + 1;
    std::ofstream(service()) << text.replace(at, 1, dictionary());
  }
  ~Files() { fs::remove_all(folder_); }
  Files(const Files&) = delete;
  Files& operator=(const Files&) = delete;

  std::string dictionary() const { return (folder_ / "dictionary.xml").string(); }
  std::string service() const { return (folder_ / "service.xml").string(); }
  // A copy of `file` where every `what` has become `with`.
  std::string changed(const std::string& file, const std::string& what,
                      const std::string& with) const {
    std::ifstream in(file);
    std::string text{std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
    std::string made;
    std::size_t from = 0;
    for (std::size_t at = text.find(what); at != std::string::npos; at = text.find(what, from)) {
      made.append(text, from, at - from).append(with);
      from = at + what.size();
    }
    const std::string name = (folder_ / "changed.xml").string();
    std::ofstream(name) << made.append(text, from);
    return name;
  }

 private:
  fs::path folder_;
};

// Each model is shared by what is done with it.
using Program = std::shared_ptr<as::IProgram>;
using Service = std::shared_ptr<as::IService>;

Program readProgram(const Files& files) { return reader().readDictionary(files.dictionary()); }
Service readService(const Files& files) {
  return reader().readServiceWithProgram(files.service()).service;
}

// Takes what is written and forgets it.
class Nowhere : public std::ostream, private std::streambuf {
 public:
  Nowhere() : std::ostream(this) {}

 private:
  int overflow(int character) override { return character; }
  std::streamsize xsputn(const char*, std::streamsize count) override { return count; }
};

template <class T>
T* at(as::IList* list, int i) {
  return as::interface_cast<T>(list->getItem(i));
}

// Looks every mapping, linkage item, entry point, definition and item that another depends on up.
void lookUp(as::IList* fields) {
  for (int i = 0; i < fields->getLength(); i++) {
    auto* const field = at<as::IField>(fields, i);
    for (int m = 0; m < field->getMappings()->getLength(); m++) {
      benchmark::DoNotOptimize(at<as::IMapping>(field->getMappings(), m)->getDataItem());
    }
    if (field->getAttributeValue("ref").empty()) lookUp(field->getChildren());
  }
}

void lookUp(as::IService& service) {
  for (int i = 0; i < service.getOperations()->getLength(); i++) {
    auto* const operation = at<as::IOperation>(service.getOperations(), i);
    benchmark::DoNotOptimize(operation->getEntryPoint());
    lookUp(operation->getParameters());
    for (int h = 0; h < operation->getHiddenParameters()->getLength(); h++) {
      benchmark::DoNotOptimize(
          at<as::IMapping>(operation->getHiddenParameters(), h)->getDataItem());
    }
  }
  lookUp(service.getParameterTypeDefs());
}

void lookUp(as::IProgram& program) {
  for (int i = 0; i < program.getDataItems()->getLength(); i++) {
    benchmark::DoNotOptimize(at<as::IDataItem>(program.getDataItems(), i)->getODO());
  }
  for (int i = 0; i < program.getEntryPoints()->getLength(); i++) {
    auto* const list = as::interface_cast<as::IList>(program.getEntryPoints()->getItem(i));
    for (int l = 0; l < list->getLength(); l++) {
      benchmark::DoNotOptimize(at<as::ILinkageItem>(list, l)->getDataItem());
    }
  }
}

// ---- What is done with them

struct Use {
  const char* name;
  Work (*prepare)(const std::shared_ptr<Files>& files);
};

// To a program whose every `what` has become `with`, and back.
Work diffPrograms(const std::shared_ptr<Files>& files, const char* what, const char* with) {
  const std::string other = files->changed(files->dictionary(), what, with);
  return [before = readProgram(*files), after = Program(reader().readDictionary(other))] {
    benchmark::DoNotOptimize(toolkit::diff(*before, *after).changes.size());
    benchmark::DoNotOptimize(toolkit::diff(*after, *before).changes.size());
  };
}

Work diffServices(const std::shared_ptr<Files>& files, const char* what, const char* with) {
  const std::string other = files->changed(files->service(), what, with);
  return [before = readService(*files),
          after = Service(reader().readServiceWithProgram(other).service)] {
    benchmark::DoNotOptimize(toolkit::diff(*before, *after).changes.size());
    benchmark::DoNotOptimize(toolkit::diff(*after, *before).changes.size());
  };
}

Work reportOf(const std::vector<std::string>& files, const std::shared_ptr<Files>& kept) {
  return [files, kept] {
    benchmark::DoNotOptimize(toolkit::makeReport(reader(), files).files.size());
  };
}

const Use programUses[] = {
    {"parse",
     [](const std::shared_ptr<Files>& files) -> Work {
       return [files, kept = std::make_shared<Program>()] { *kept = readProgram(*files); };
     }},
    {"delete",
     [](const std::shared_ptr<Files>& files) -> Work {
       return [program = readProgram(*files)]() mutable { program.reset(); };
     }},
    {"lookUp",
     [](const std::shared_ptr<Files>& files) -> Work {
       return [program = readProgram(*files)] { lookUp(*program); };
     }},
    {"show",
     [](const std::shared_ptr<Files>& files) -> Work {
       return [program = readProgram(*files)] {
         Nowhere out;
         toolkit::renderText(out, *program);
       };
     }},
    {"showJson",
     [](const std::shared_ptr<Files>& files) -> Work {
       return [program = readProgram(*files)] {
         Nowhere out;
         toolkit::renderJson(out, *program);
       };
     }},
    {"diff",
     [](const std::shared_ptr<Files>& f) {
       return diffPrograms(f, "digits=\"4\"", "digits=\"3\"");
     }},
    {"diffLost",
     [](const std::shared_ptr<Files>& f) { return diffPrograms(f, "name=\"I", "name=\"J"); }},
    {"report", [](const std::shared_ptr<Files>& f) { return reportOf({f->dictionary()}, f); }},
    {"make",
     [](const std::shared_ptr<Files>& files) -> Work {
       auto made = std::make_shared<toolkit::MadeService>();
       auto program = std::make_shared<std::unique_ptr<as::IProgram>>(
           reader().readDictionary(files->dictionary()));
       return [made, program] {
         *made = toolkit::makeService(std::move(*program), *toolkit::findFlavour("ws"), {});
       };
     }},
    {"makeNamed",
     [](const std::shared_ptr<Files>& files) -> Work {
       auto program = std::make_shared<std::unique_ptr<as::IProgram>>(
           reader().readDictionary(files->dictionary()));
       auto made = std::make_shared<toolkit::MadeService>();
       toolkit::MakeOptions options;
       as::IList* const all = (*program)->getEntryPoints();
       for (int i = 0; i < all->getLength(); i++) {
         options.entryPoints.push_back(at<as::IEntryPoint>(all, i)->getName());
       }
       return [made, program, options] {
         if (!toolkit::unknownEntryPoints(**program, options.entryPoints).empty()) return;
         *made = toolkit::makeService(std::move(*program), *toolkit::findFlavour("java"), options);
       };
     }},
};

template <class Do>
Work withService(const std::shared_ptr<Files>& files, const Do& what) {
  return [service = readService(*files), what] { what(*service); };
}

Work convertTo(const char* flavour, const std::shared_ptr<Files>& files) {
  return [files, service = readService(*files), flavour,
          kept = std::make_shared<toolkit::ConvertedService>()] {
    *kept = toolkit::convertService(reader(), *service, files->service(),
                                    *toolkit::findFlavour(flavour), service->getProgram());
  };
}

Work generate(const char* kind, const std::shared_ptr<Files>& files) {
  return [service = readService(*files), kind] {
    benchmark::DoNotOptimize(
        toolkit::generate(*toolkit::findGeneratorKind(kind), *service).files.size());
  };
}

const Use serviceUses[] = {
    {"parse",
     [](const std::shared_ptr<Files>& files) -> Work {
       return [files, kept = std::make_shared<Service>()] {
         *kept = reader().readService(files->service());
       };
     }},
    {"delete",
     [](const std::shared_ptr<Files>& files) -> Work {
       return [service = Service(reader().readService(files->service()))]() mutable {
         service.reset();
       };
     }},
    {"lookUp",
     [](const std::shared_ptr<Files>& files) -> Work {
       return withService(files, [](as::IService& service) { lookUp(service); });
     }},
    {"write",
     [](const std::shared_ptr<Files>& files) -> Work {
       return withService(files, [](as::IService& service) {
         benchmark::DoNotOptimize(as::CAgentServicesFactory::SerializeToString(&service).size());
       });
     }},
    {"lint",
     [](const std::shared_ptr<Files>& files) -> Work {
       return withService(files, [](as::IService& service) {
         benchmark::DoNotOptimize(toolkit::lint(service).size());
       });
     }},
    {"lintFile",
     [](const std::shared_ptr<Files>& files) -> Work {
       return [files] {
         benchmark::DoNotOptimize(toolkit::lintFile(reader(), files->service()).size());
       };
     }},
    {"show",
     [](const std::shared_ptr<Files>& files) -> Work {
       return withService(files, [](as::IService& service) {
         Nowhere out;
         toolkit::renderText(out, service);
       });
     }},
    {"showJson",
     [](const std::shared_ptr<Files>& files) -> Work {
       return withService(files, [](as::IService& service) {
         Nowhere out;
         toolkit::renderJson(out, service);
       });
     }},
    {"diff",
     [](const std::shared_ptr<Files>& f) { return diffServices(f, "\"int\"", "\"long\""); }},
    {"diffLost",
     [](const std::shared_ptr<Files>& f) { return diffServices(f, "name=\"p", "name=\"q"); }},
    {"report",
     [](const std::shared_ptr<Files>& f) {
       return reportOf({f->dictionary(), f->service()}, f);
     }},
    {"generateXsd", [](const std::shared_ptr<Files>& f) { return generate("xsd", f); }},
    {"generateMarkdown", [](const std::shared_ptr<Files>& f) { return generate("markdown", f); }},
    {"generateJava", [](const std::shared_ptr<Files>& f) { return generate("java", f); }},
    {"convertToWeb", [](const std::shared_ptr<Files>& f) { return convertTo("ws", f); }},
    {"convertToCOM", [](const std::shared_ptr<Files>& f) { return convertTo("com", f); }},
};

// ---- Edits

// A new Web service over n items, with one operation that has one parameter.
class Edited {
 public:
  explicit Edited(int n) {
    const Document document = {"", linkageProgram, nullptr};
    Files files(document, n);
    as::IProgram* const read = reader().readDictionary(files.dictionary()).release();
    service.reset(as::CAgentServicesFactory::NewWebService(read));
    program = read;
    operation = as::interface_cast<as::IWSOperation>(service->addOperation("o", nullptr));
    parameter = operation->addParameter(as::IParameter::BY_IN, "p", 1);
  }

  as::IDataItem* item(int i) const { return at<as::IDataItem>(program->getDataItems(), i); }

  Service service;
  as::IProgram* program = nullptr;
  as::IWSOperation* operation = nullptr;
  as::IParameter* parameter = nullptr;
};

struct Edit {
  const char* name;
  void (*prepare)(Edited& edited, int n);  // Null for nothing.
  void (*run)(Edited& edited, int n);      // N edits.
  int most = 1 << 30;
};

void addParameters(Edited& edited, int n) {
  for (int i = 0; i < n; i++) {
    edited.operation->addParameter(as::IParameter::BY_IN, "p", 1)->addMapping(edited.item(i));
  }
}

as::IParameter* parameterAt(const Edited& edited, int i) {
  return at<as::IParameter>(edited.operation->getParameters(), i);
}

// clang-format off
const Edit edits[] = {
    {"addOperation", nullptr, [](Edited& e, int n) { as::IEntryPoint* const point = at<as::IEntryPoint>(e.program->getEntryPoints(), 0); for (int i = 0; i < n; i++) e.service->addOperation("o", point); }},
    {"addParameter", nullptr, [](Edited& e, int n) { for (int i = 0; i < n; i++) e.operation->addParameter(as::IParameter::BY_IN, "p", 1); }},
    {"addHiddenParameter", nullptr, [](Edited& e, int n) { for (int i = 0; i < n; i++) e.operation->addHiddenParameter(nullptr, nullptr)->setDataItem(e.item(i)); }},
    {"addField", nullptr, [](Edited& e, int n) { for (int i = 0; i < n; i++) e.parameter->addField("f", 1); }},
    {"addFieldBelow", nullptr, [](Edited& e, int n) { as::IField* field = e.parameter; for (int i = 0; i < n; i++) field = field->addField("f", 1); }, deepest},
    {"addFieldAttribute", nullptr, [](Edited& e, int n) { auto* const field = as::interface_cast<as::IWSField>(e.parameter); for (int i = 0; i < n; i++) field->addFieldAttribute("a"); }},
    {"addMapping", nullptr, [](Edited& e, int n) { for (int i = 0; i < n; i++) e.parameter->addMapping(e.item(i)); }},
    {"addHeader", nullptr, [](Edited& e, int n) { for (int i = 0; i < n; i++) e.operation->addHeader(as::IWSHeader::BY_IN); }},
    {"addFault", nullptr, [](Edited& e, int n) { for (int i = 0; i < n; i++) e.operation->addFault(); }},
    {"addHeaderParameter", nullptr, [](Edited& e, int n) { as::IWSHeader* const header = e.operation->addHeader(as::IWSHeader::BY_IN); for (int i = 0; i < n; i++) header->addParameter(as::IParameter::BY_IN, "p", 1); }},
    {"addFaultParameter", nullptr, [](Edited& e, int n) { as::IWSFault* const fault = e.operation->addFault(); for (int i = 0; i < n; i++) fault->addParameter(as::IParameter::BY_IN, "p", 1); }},
    {"rename", addParameters, [](Edited& e, int n) { for (int i = 0; i < n; i++) parameterAt(e, i)->setName("another name"); }},
    {"renameLonger", addParameters, [](Edited& e, int n) { const std::string name(200, 'x'); for (int i = 0; i < n; i++) parameterAt(e, i)->setName(name.c_str()); }},
    {"renameAgain", nullptr, [](Edited& e, int n) { for (int i = 0; i < n; i++) e.parameter->setName(std::string(static_cast<std::size_t>(i % 100), 'x').c_str()); }},
    {"mapAnew", addParameters, [](Edited& e, int n) { for (int i = 0; i < n; i++) at<as::IMapping>(parameterAt(e, i + 1)->getMappings(), 0)->setDataItem(e.item(n - 1 - i)); }},
    {"mapAndLookUp", addParameters, [](Edited& e, int n) { for (int i = 0; i < n; i++) { auto* const mapping = at<as::IMapping>(parameterAt(e, i + 1)->getMappings(), 0); mapping->setDataItem(e.item(n - 1 - i)); benchmark::DoNotOptimize(mapping->getDataItem()); } }},
    {"addAndLookUp", nullptr, [](Edited& e, int n) { as::IEntryPoint* const point = at<as::IEntryPoint>(e.program->getEntryPoints(), 0); for (int i = 0; i < n; i++) { as::IOperation* const operation = e.service->addOperation("o", point); benchmark::DoNotOptimize(operation->getEntryPoint()); benchmark::DoNotOptimize(operation->addParameter(as::IParameter::BY_IN, "p", 1)->addMapping(e.item(i))->getDataItem()); } }},
    {"addAndAskForQualifiedName", nullptr, [](Edited& e, int n) { for (int i = 0; i < n; i++) benchmark::DoNotOptimize(e.parameter->addField("f", 1)->getQualifiedName()); }},
    {"write", addParameters, [](Edited& e, int) { benchmark::DoNotOptimize(as::CAgentServicesFactory::SerializeToString(e.service.get()).size()); }},
    {"writeDeep", [](Edited& e, int n) { as::IField* field = e.parameter; for (int i = 0; i < n; i++) field = field->addField("f", 1); }, [](Edited& e, int) { benchmark::DoNotOptimize(as::CAgentServicesFactory::SerializeToString(e.service.get()).size()); }, deepest},
    {"delete", addParameters, [](Edited& e, int) { e.service.reset(); }},
};
// clang-format on

// ---- Importing

std::string cobol(const std::string& entries, const std::string& statements = "") {
  return "       IDENTIFICATION DIVISION.\n       PROGRAM-ID. P.\n       DATA DIVISION.\n"
         "       WORKING-STORAGE SECTION.\n" +
         entries + "       PROCEDURE DIVISION.\n" + statements + "           GOBACK.\n";
}

struct Source {
  const char* name;
  std::string (*text)(int n);
};

// clang-format off
const Source sources[] = {
    {"items", [](int n) { return cobol(repeat(n, [](int i) { return "       01  I" + number(i) + " PIC S9(7)V99 COMP-3.\n"; })); }},
    {"fields", [](int n) { return cobol("       01  G.\n" + repeat(n, [](int i) { return "           05  I" + number(i) + " PIC X(10) OCCURS 3.\n"; })); }},
    {"conditions", [](int n) { return cobol("       01  I PIC 9(6).\n" + repeat(n, [](int i) { return "           88  C" + number(i) + " VALUE " + number(i) + ".\n"; })); }},
    {"redefinitions", [](int n) { return cobol("       01  I0 PIC 9(6).\n" + repeat(n, [](int i) { return "       01  I" + number(i + 1) + " REDEFINES I" + number(i) + " PIC X(6).\n"; })); }},
    {"comments", [](int n) { return cobol(repeat(n, [](int) { return "      * Nothing.\n"; }) + "       01  I PIC 9.\n"); }},
    {"statements", [](int n) { return cobol("       01  I PIC 9.\n", repeat(n, [](int) { return "           MOVE 1 TO I.\n"; })); }},
    {"mistakes", [](int n) { return cobol(repeat(n, [](int i) { return "       01  I" + number(i) + " PIC Q.\n"; })); }},
};
// clang-format on

// ---- Measuring

// The processor's time that the work takes, in milliseconds.
double millisecondsOf(const Work& work) {
  const auto now = [] {
    timespec time = {};
    ::clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return 1e3 * static_cast<double>(time.tv_sec) + 1e-6 * static_cast<double>(time.tv_nsec);
  };
  const double begin = now();
  work();
  return now() - begin;
}

double medianOf(std::vector<double> values) {
  std::nth_element(values.begin(), values.begin() + static_cast<long>(values.size() / 2),
                   values.end());
  return values[values.size() / 2];
}

int size() {
  const char* const wanted = std::getenv("AS_GROWTH");
  return wanted == nullptr ? 2500 : std::atoi(wanted);
}

// `prepare(n)` is the work with n of what is measured.
void measure(benchmark::State& state, int n, const std::function<Work(int)>& prepare) {
  constexpr int rounds = 3;
  std::vector<double> once;
  std::vector<double> fourfold;
  for ([[maybe_unused]] auto _ : state) {
    for (int round = 0; round < rounds; round++) {
      once.push_back(millisecondsOf(prepare(n)));
      fourfold.push_back(millisecondsOf(prepare(4 * n)));
    }
    state.SetIterationTime(1e-3 * medianOf(fourfold));
  }
  state.counters["n"] = n;
  state.counters["ms"] = medianOf(once);
  state.counters["fourfold"] = medianOf(fourfold) / medianOf(once);
}

void add(const std::string& name, int most, const std::function<Work(int)>& prepare) {
  const auto run = [most, prepare](benchmark::State& state) {
    measure(state, std::min(size(), most), prepare);
  };
  benchmark::RegisterBenchmark(("growth/" + name).c_str(), run)
      ->UseManualTime()
      ->Unit(benchmark::kMillisecond)
      ->Iterations(1);
}

bool addAll() {
  for (const Document& document : documents) {
    const auto addUse = [&document](const Use& use) {
      add(std::string(use.name) + "/" + document.name, document.most,
          [&document, &use](int n) { return use.prepare(std::make_shared<Files>(document, n)); });
    };
    if (document.service == nullptr) {
      for (const Use& use : programUses) addUse(use);
    } else {
      for (const Use& use : serviceUses) addUse(use);
    }
  }
  for (const Source& source : sources) {
    add(std::string("import/") + source.name, 1 << 30, [&source](int n) -> Work {
      return [text = source.text(n)] {
        benchmark::DoNotOptimize(toolkit::importCobol(text, "P.cbl").programs.size());
      };
    });
  }
  for (const Edit& edit : edits) {
    add(std::string("edit/") + edit.name, edit.most, [&edit](int n) -> Work {
      const auto edited = std::make_shared<Edited>(n);
      if (edit.prepare != nullptr) edit.prepare(*edited, n);
      return [edited, &edit, n] { edit.run(*edited, n); };
    });
  }
  return true;
}

[[maybe_unused]] const bool added = addAll();

}  // namespace
