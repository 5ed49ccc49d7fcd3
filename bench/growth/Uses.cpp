// Measures the growth of what is done with programs and services that were read.
#include <benchmark/benchmark.h>

#include <memory>
#include <ostream>
#include <streambuf>
#include <string>
#include <vector>

#include "Documents.h"
#include "Files.h"
#include "Growth.h"
#include "as/AgentServices.h"
#include "as/toolkit/Toolkit.h"

namespace growth {

namespace {

namespace toolkit = as::toolkit;

// Takes what is written and forgets it.
class Nowhere : public std::ostream, private std::streambuf {
 public:
  Nowhere() : std::ostream(this) {}

 private:
  int overflow(int character) override { return character; }
  std::streamsize xsputn(const char*, std::streamsize count) override { return count; }
};

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

bool addAll() {
  for (const Document& document : allDocuments()) {
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
  return true;
}

[[maybe_unused]] const bool added = addAll();

}  // namespace

}  // namespace growth
