// Measures a large service: 2,000 operations with 20,000 mappings over a program of 20,000 items,
// and its tenth, so that growth can be seen: loading with its program, resolving every mapping,
// writing back. Once as a Java service and once as a Web service, which has a header and a fault
// more in each operation. The yardstick of each is reading the same service alone, in the same run;
// that of writing is also the XML parser's own writer, given a document of the same text.
#include <benchmark/benchmark.h>

#include <chrono>
#include <filesystem>
#include <fstream>
#include <memory>
#include <string>
#include <xercesc/dom/DOM.hpp>
#include <xercesc/framework/MemBufFormatTarget.hpp>
#include <xercesc/framework/MemBufInputSource.hpp>
#include <xercesc/parsers/XercesDOMParser.hpp>
#include <xercesc/util/XMLUni.hpp>

#include "as/AgentServices.h"

namespace {

using Clock = std::chrono::steady_clock;

double secondsSince(Clock::time_point start) {
  return std::chrono::duration<double>(Clock::now() - start).count();
}

std::string rootOf(const std::string& element, const std::string& ns) {
  return "<" + element + " xmlns=\"" + ns +
         "\" xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\" xsi:schemaLocation=\"" + ns +
         " " + ns + "\" name=\"BIG\"";
}

// A program of `records` records with nine fields each, and an entry point for each.
std::string program(int records) {
  std::string text = rootOf("program", as::namespaces::dd.uri);
  text += "><dataItems>";
  for (int r = 0; r < records; r++) {
    text += "<group name=\"RECORD-" + std::to_string(r) + "\">";
    for (int f = 0; f < 9; f++) {
      text += "<numeric name=\"FIELD-" + std::to_string(f) + "\" length=\"4\" digits=\"4\"/>";
    }
    text += "</group>\n";
  }
  text += "</dataItems><entryPoints>";
  for (int r = 0; r < records; r++)
    text += "<entryPoint name=\"ENTRY-" + std::to_string(r) + "\"/>";
  return text + "</entryPoints></program>";
}

std::string parameter(const std::string& name, const std::string& operation, int field) {
  return "<parameter name=\"" + name +
         "\" byType=\"in\" dataType=\"int\"><mappings><mapping item=\"RECORD-" + operation +
         ".FIELD-" + std::to_string(field) + "\"/></mappings></parameter>";
}

// What a service of that flavour is made of.
struct Flavour {
  const char* word;
  const char* ns;
  const char* operationAttributes;
  int messages;  // Headers and faults in each operation, with a mapped parameter each.
};

constexpr Flavour java = {"java", as::namespaces::java.uri, " transactionType=\"requires\"", 0};
constexpr Flavour web = {"ws", as::namespaces::ws.uri,
                         " style=\"rpc\" inputUse=\"literal\" outputUse=\"literal\""
                         " inputNamespace=\"urn:in\" outputNamespace=\"urn:out\"",
                         2};

// A service of `operations` operations with ten mapped parameters each.
std::string service(const Flavour& flavour, int operations, const std::string& dictionary) {
  std::string text = rootOf("service", flavour.ns);
  text += " implementation=\"" + std::string(flavour.word) + "\" dataDictFilename=\"" + dictionary +
          "\"><operations>";
  for (int o = 0; o < operations; o++) {
    const std::string n = std::to_string(o);
    text += "<operation name=\"operation" + n + "\" entryPoint=\"ENTRY-" + n + "\"" +
            flavour.operationAttributes + "><parameters>";
    for (int p = 0; p < 10; p++) text += parameter("parameter" + std::to_string(p), n, p % 9);
    text += "</parameters>";
    for (int m = 0; m < flavour.messages; m++) {
      const std::string element = m % 2 == 0 ? "header" : "fault";
      text += "<" + element + " namespace=\"urn:" + element + "\" use=\"literal\"><parameters>" +
              parameter(element, n, m) + "</parameters></" + element + ">";
    }
    text += "</operation>\n";
  }
  return text + "</operations></service>";
}

// The number of mappings of the parameters that lead to an item.
int resolve(as::IList* parameters) {
  int resolved = 0;
  for (int p = 0; p < parameters->getLength(); p++) {
    auto* const parameter = as::interface_cast<as::IParameter>(parameters->getItem(p));
    as::IList* const mappings = parameter->getMappings();
    for (int m = 0; m < mappings->getLength(); m++) {
      auto* const mapping = as::interface_cast<as::IMapping>(mappings->getItem(m));
      if (mapping->getDataItem() != nullptr) resolved++;
    }
  }
  return resolved;
}

template <class Message>
int resolveMessages(as::IList* messages) {
  int resolved = 0;
  for (int m = 0; m < messages->getLength(); m++) {
    resolved += resolve(as::interface_cast<Message>(messages->getItem(m))->getParameters());
  }
  return resolved;
}

// The number of mappings that lead to an item.
int resolve(as::IService& service) {
  int resolved = 0;
  as::IList* const operations = service.getOperations();
  for (int o = 0; o < operations->getLength(); o++) {
    auto* const operation = as::interface_cast<as::IOperation>(operations->getItem(o));
    if (operation->getEntryPoint() == nullptr) return -1;
    resolved += resolve(operation->getParameters());
    if (auto* const soap = as::interface_cast<as::IWSOperation>(operation)) {
      resolved += resolveMessages<as::IWSHeader>(soap->getHeaders());
      resolved += resolveMessages<as::IWSFault>(soap->getFaults());
    }
  }
  return resolved;
}

// The seconds that the XML parser's writer takes for a document of `text`.
double secondsToWriteBare(const std::string& text) {
  xercesc::XercesDOMParser parser;
  parser.setDoNamespaces(true);
  parser.parse(xercesc::MemBufInputSource(reinterpret_cast<const XMLByte*>(text.data()),
                                          text.size(), "bare"));
  auto* const implementation = xercesc::DOMImplementationRegistry::getDOMImplementation(u"LS");
  xercesc::DOMLSSerializer* const writer = implementation->createLSSerializer();
  xercesc::DOMLSOutput* const output = implementation->createLSOutput();
  xercesc::MemBufFormatTarget target;
  output->setEncoding(xercesc::XMLUni::fgUTF8EncodingString);
  output->setByteStream(&target);
  const auto start = Clock::now();
  writer->write(parser.getDocument(), output);
  const std::string written(reinterpret_cast<const char*>(target.getRawBuffer()), target.getLen());
  const double seconds = secondsSince(start);
  benchmark::DoNotOptimize(written.data());
  output->release();
  writer->release();
  return seconds;
}

void loadResolveWrite(benchmark::State& state, const Flavour& flavour) {
  const int operations = static_cast<int>(state.range(0));
  const std::filesystem::path directory = std::filesystem::temp_directory_path();
  const std::string dictionary = (directory / "agentservices-bench.xml").string();
  const std::string file = (directory / "agentservices-bench-service.xml").string();
  std::ofstream(dictionary) << program(operations);
  std::ofstream(file) << service(flavour, operations, dictionary);

  const std::unique_ptr<as::IAgentServices> services(
      as::CAgentServicesFactory::CreateAgentServices());
  services->setSchemaLocation(AS_SCHEMA_DIR);
  double alone = 0;
  double load = 0;
  double resolveAll = 0;
  double write = 0;
  double rewrite = 0;
  double bareWrite = 0;
  for ([[maybe_unused]] auto _ : state) {
    auto start = Clock::now();
    const std::unique_ptr<as::IService> bare(services->parseService(file.c_str(), false));
    alone += secondsSince(start);

    const auto begin = Clock::now();
    const std::unique_ptr<as::IService> loaded(services->parseService(file.c_str(), true));
    load += secondsSince(begin);

    start = Clock::now();
    const int mappings = (10 + flavour.messages) * operations;
    if (resolve(*loaded) != mappings) state.SkipWithError("a mapping leads nowhere");
    resolveAll += secondsSince(start);

    start = Clock::now();
    const std::string text = as::CAgentServicesFactory::SerializeToString(loaded.get());
    write += secondsSince(start);
    benchmark::DoNotOptimize(text.data());
    state.SetIterationTime(secondsSince(begin));

    start = Clock::now();
    const std::string again = as::CAgentServicesFactory::SerializeToString(loaded.get());
    rewrite += secondsSince(start);
    benchmark::DoNotOptimize(again.data());
    bareWrite += secondsToWriteBare(text);
  }
  const auto runs = static_cast<double>(state.iterations());
  state.counters["load_ms"] = 1e3 * load / runs;
  state.counters["resolve_ms"] = 1e3 * resolveAll / runs;
  state.counters["write_ms"] = 1e3 * write / runs;
  state.counters["load_to_alone"] = load / alone;
  state.counters["resolve_to_alone"] = resolveAll / alone;
  state.counters["write_to_alone"] = write / alone;
  state.counters["rewrite_to_bare"] = rewrite / bareWrite;
  std::filesystem::remove(dictionary);
  std::filesystem::remove(file);
}

void measure(benchmark::internal::Benchmark* benchmark) {
  benchmark->UseManualTime()->Unit(benchmark::kMillisecond)->Arg(200)->Arg(2000);
}

BENCHMARK_CAPTURE(loadResolveWrite, Java, java)->Apply(measure);
BENCHMARK_CAPTURE(loadResolveWrite, Web, web)->Apply(measure);

}  // namespace
