#include "Requests.h"

#include <fstream>
#include <memory>
#include <utility>

#include "fuzz/DictionaryWalk.h"
#include "support/ModelText.h"

namespace peers {

namespace fs = std::filesystem;

namespace {

struct Kind {
  const char* ns;
  const char* schema;  // The file's name.
};

constexpr Kind kinds[] = {
#define AS_NAMESPACE(name, uri, file) {uri, file},
#include "as/Namespaces.def"
};
constexpr const Kind& dictionary = kinds[0];
// Stands for the flavours of services: they differ in their builders alone.
constexpr const Kind& comService = kinds[1];

bool isDictionary(const Kind& kind) { return kind.ns == dictionary.ns; }

// Stands for whatever file is tried, in the folders that have it in place of a schema.
constexpr char peerLink[] = "peer";

// A small document of that kind.
std::string documentOf(const std::string& ns, const std::string& hints, const std::string& content,
                       const std::string& declaration = "") {
  const std::string root = ns == dictionary.ns ? "program" : "service";
  return declaration + "<" + root + " xmlns='" + ns +
         "' xmlns:xsi='http://www.w3.org/2001/XMLSchema-instance' name='P' " + hints + ">" +
         content + "</" + root + ">";
}

std::string locations(const std::string& pairs) { return "xsi:schemaLocation='" + pairs + "'"; }

// A schema of the roots of our documents, with any attributes and that content.
std::string schemaOf(const std::string& ns, const std::string& content) {
  std::string roots;
  for (const char* const root : {"program", "service"}) {
    roots += std::string("<xs:element name='") + root + "'><xs:complexType>" + content +
             "<xs:anyAttribute processContents='lax'/></xs:complexType></xs:element>";
  }
  return "<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema' targetNamespace='" + ns + "'>" +
         roots + "</xs:schema>";
}

// Of the folders within the work folder: the schemas of the one let nothing in, those of the other
// everything. Reading the shipped ones would take most of the time.
constexpr char strictFolder[] = "strict";
constexpr char laxFolder[] = "lax";

void write(const fs::path& file, const std::string& content) {
  std::ofstream(file, std::ios::binary) << content;
}

Outcome walked(as::IProgram* root) {
  const std::unique_ptr<as::IProgram> program(root);
  if (!program) return null;
  // Not all schemas here are the shipped ones.
  fuzz::DictionaryWalk(fuzz::Schemas::any).walk(*program);
  return model;
}

Outcome walked(as::IService* root) {
  const std::unique_ptr<as::IService> service(root);
  if (!service) return null;
  test::modelText(*service);
  as::CAgentServicesFactory::SerializeToString(service.get());
  return model;
}

}  // namespace

// What is given to the library: the same as a file and from memory.
struct Requests::Document {
  std::string name;
  std::string file;
  std::shared_ptr<const std::string> text;

  const unsigned char* bytes() const {
    return reinterpret_cast<const unsigned char*>(text->data());
  }
  unsigned int length() const { return static_cast<unsigned int>(text->size()); }
};

// An entry object, with the schema directory that it was told.
class Requests::Asker {
 public:
  Asker() : services_(as::CAgentServicesFactory::CreateAgentServices()) {}
  explicit Asker(const fs::path& schemas, std::string name = "schema directory set") : Asker() {
    services_->setSchemaLocation(schemas.c_str());
    name_ = std::move(name);
  }

  std::shared_ptr<as::IAgentServices> services() const { return services_; }
  const std::string& name() const { return name_; }

 private:
  std::shared_ptr<as::IAgentServices> services_;
  std::string name_ = "schema directory not set";
};

void Requests::prepareFolder(const fs::path& schemas, const fs::path& work) {
  fs::create_directory(work / strictFolder);
  fs::create_directory(work / laxFolder);
  for (const Kind& replaced : kinds) {
    write(work / strictFolder / replaced.schema, schemaOf(replaced.ns, ""));
    write(work / laxFolder / replaced.schema,
          schemaOf(replaced.ns,
                   "<xs:sequence><xs:any processContents='lax' minOccurs='0' "
                   "maxOccurs='unbounded'/></xs:sequence>"));
    const fs::path folder = work / replaced.schema;
    fs::create_directory(folder);
    for (const Kind& kind : kinds) {
      const fs::path target = &kind == &replaced ? work / peerLink : schemas / kind.schema;
      fs::create_symlink(target, folder / kind.schema);
    }
  }
}

Requests::Requests(const Peer& peer, fs::path schemas, fs::path work)
    : peer_(peer), schemas_(std::move(schemas)), work_(std::move(work)) {
  asDocument();
  asContent();
  asNamedSchema();
  asNamedProgram();
  asShippedSchema();
}

void Requests::addProgram(Place place, const Asker& asker, const Document& document) {
  const auto add = [&](const std::string& form, auto ask) {
    all_.push_back({place, "parseCobolDD of " + document.name + form + ", " + asker.name(),
                    [ask, document, services = asker.services()] {
                      return walked(ask(*services, document));
                    }});
  };
  add("", [](as::IAgentServices& services, const Document& given) {
    return services.parseCobolDD(given.file.c_str());
  });
  add(" in memory", [](as::IAgentServices& services, const Document& given) {
    return services.parseCobolDD(given.file.c_str(), given.bytes(), given.length());
  });
}

void Requests::addService(Place place, const Asker& asker, const Document& document,
                          bool loadProgram) {
  const auto add = [&](const std::string& form, auto ask) {
    all_.push_back({place,
                    "parseService of " + document.name + form +
                        (loadProgram ? " with its program" : "") + ", " + asker.name(),
                    [ask, document, loadProgram, services = asker.services()] {
                      return walked(ask(*services, document, loadProgram));
                    }});
  };
  add("", [](as::IAgentServices& services, const Document& given, bool load) {
    return services.parseService(given.file.c_str(), load);
  });
  add(" in memory", [](as::IAgentServices& services, const Document& given, bool load) {
    return services.parseService(given.file.c_str(), given.bytes(), given.length(), load);
  });
}

// The same requests, but that a failure is told in a text.
void Requests::addTellingService(const Asker& asker, const Document& document, bool loadProgram) {
  const auto add = [&](const std::string& form, auto ask) {
    all_.push_back({Place::document,
                    "parseService of " + document.name + form +
                        (loadProgram ? " with its program" : "") + " into a text, " + asker.name(),
                    [ask, document, loadProgram, services = asker.services()] {
                      std::string text;
                      const Outcome outcome = walked(ask(*services, document, loadProgram, text));
                      return text.empty() ? outcome : told;
                    }});
  };
  add("", [](as::IAgentServices& services, const Document& given, bool load, std::string& text) {
    return services.parseService(given.file.c_str(), text, load);
  });
  add(" in memory",
      [](as::IAgentServices& services, const Document& given, bool load, std::string& text) {
        return services.parseService(given.file.c_str(), given.bytes(), given.length(), text, load);
      });
}

void Requests::asDocument() {
  const Document itself{"the file", peer_.path(), std::make_shared<std::string>(peer_.text())};
  for (const Asker& asker : {Asker(), Asker(schemas_)}) {
    addProgram(Place::document, asker, itself);
    for (const bool loadProgram : {false, true}) {
      addService(Place::document, asker, itself, loadProgram);
      addTellingService(asker, itself, loadProgram);
    }
  }
}

// A document that brings a schema of its own, one that lets everything in. It goes by a name beside
// the file, so that what the file names is found.
void Requests::asContent() {
  const auto parts = peer_.parts();
  if (!parts) return;
  for (const Kind& kind : {dictionary, comService}) {
    const std::string schema = work_ / laxFolder / kind.schema;
    const auto text = std::make_shared<std::string>(documentOf(
        kind.ns, locations(std::string(kind.ns) + " " + schema), parts->root, parts->declaration));
    for (const Asker& asker : {Asker(), Asker(schemas_)}) {
      all_.push_back(
          {content, "request of a document in memory around the file, " + asker.name(),
           [text, kind, services = asker.services(), id = peer_.path() + "~"] {
             const auto* const bytes = reinterpret_cast<const unsigned char*>(text->data());
             const auto length = static_cast<unsigned int>(text->size());
             return isDictionary(kind)
                        ? walked(services->parseCobolDD(id.c_str(), bytes, length))
                        : walked(services->parseService(id.c_str(), bytes, length, false));
           }});
    }
  }
}

void Requests::asNamedSchema() {
  const std::string reference = peer_.reference();
  for (const Kind& kind : {dictionary, comService}) {
    const std::string ours = kind.ns;
    std::vector<std::pair<std::string, std::string>> hints = {
        {"a document whose schema it is", locations(ours + " " + reference)},
        {"a document whose schema without a namespace it is",
         locations(ours + " " + ours) + " xsi:noNamespaceSchemaLocation='" + reference + "'"}};
    if (const auto target = peer_.targetNamespace()) {
      hints.emplace_back("a document that names it for its namespace",
                         locations(ours + " " + ours + " " + *target + " " + reference));
    }
    for (const auto& [name, hint] : hints) {
      const std::string file = work_ / ("hint" + std::to_string(all_.size()) + ".xml");
      const auto text = std::make_shared<std::string>(documentOf(kind.ns, hint, ""));
      write(file, *text);
      const Document document{name, file, text};
      for (const Asker& asker : {Asker(), Asker(work_ / strictFolder)}) {
        if (isDictionary(kind)) {
          addProgram(namedSchema, asker, document);
        } else {
          addService(namedSchema, asker, document, false);
        }
      }
    }
  }
}

void Requests::asNamedProgram() {
  const auto text = std::make_shared<std::string>(
      documentOf(comService.ns,
                 locations(std::string(comService.ns) + " " + comService.ns) +
                     " dataDictFilename='" + escaped(peer_.path()) + "'",
                 ""));
  const std::string file = work_ / "service.xml";
  write(file, *text);
  addService(namedProgram, Asker(work_ / strictFolder), {"a service that names it", file, text},
             true);
}

void Requests::asShippedSchema() {
  const fs::path link = work_ / peerLink;
  fs::remove(link);
  fs::create_symlink(peer_.path(), link);
  for (const Kind& kind : kinds) {
    const std::string ours = kind.ns;
    const auto text =
        std::make_shared<std::string>(documentOf(kind.ns, locations(ours + " " + ours), ""));
    const std::string file = work_ / (std::string(kind.schema) + ".xml");
    write(file, *text);
    const Asker asker(work_ / kind.schema, std::string("the file in place of ") + kind.schema);
    if (isDictionary(kind)) {
      addProgram(shippedSchema, asker, {"a program", file, text});
    } else {
      addService(shippedSchema, asker, {"a service", file, text}, false);
    }
  }
}

}  // namespace peers
