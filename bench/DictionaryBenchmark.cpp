// Measures parsing and walking dictionaries of 50 to 1,000,000 items. Machines differ, so what
// counts are the ratios to the bare XML parser reading and validating the same document in the same
// run, and how time and memory per item develop with size.
#include <benchmark/benchmark.h>
#include <malloc.h>

#include <chrono>
#include <cstdlib>
#include <memory>
#include <string>
#include <xercesc/framework/LocalFileInputSource.hpp>
#include <xercesc/framework/MemBufInputSource.hpp>
#include <xercesc/parsers/XercesDOMParser.hpp>
#include <xercesc/sax/EntityResolver.hpp>
#include <xercesc/util/XMLString.hpp>

#include "as/AgentServices.h"

namespace {

using Clock = std::chrono::steady_clock;

// A dictionary of `count` items: records of ten, in groups, with conditions and tables.
std::string dictionary(long count) {
  const std::string ns = as::namespaces::dd.uri;
  std::string text = "<program xmlns=\"" + ns +
                     "\" xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\" "
                     "xsi:schemaLocation=\"" +
                     ns + " " + ns + "\" name=\"BENCH\">\n<dataItems>\n";
  for (long i = 0; i < count; i += 10) {
    const std::string n = std::to_string(i);
    text += "<group name=\"RECORD-" + n + "\" length=\"74\" offset=\"0\" line=\"" + n + "\">\n";
    text += "  <numeric name=\"KEY\" picture=\"9(8)\" length=\"8\" digits=\"8\" offset=\"0\"/>\n";
    for (int field = 0; field < 6; field++) {
      text += "  <alphanumeric name=\"FIELD-" + std::to_string(field) +
              "\" picture=\"X(10)\" length=\"10\" offset=\"" + std::to_string(8 + 10 * field) +
              "\"/>\n";
    }
    text +=
        "  <numeric name=\"STATE\" picture=\"9\" length=\"1\" digits=\"1\" offset=\"68\">\n"
        "    <numericCondition name=\"CLOSED\"><numericConstant value=\"9\"/>"
        "</numericCondition>\n  </numeric>\n"
        "  <numeric name=\"AMOUNT\" picture=\"S9(7)V99\" usage=\"comp-3\" sign=\"true\" "
        "length=\"5\" digits=\"9\" alignment=\"2\" minOccurs=\"1\" maxOccurs=\"1\" "
        "offset=\"69\"/>\n</group>\n";
  }
  return text + "</dataItems>\n</program>\n";
}

std::unique_ptr<as::IProgram> parse(const std::string& text) {
  const std::unique_ptr<as::IAgentServices> services(
      as::CAgentServicesFactory::CreateAgentServices());
  services->setSchemaLocation(AS_SCHEMA_DIR);
  return std::unique_ptr<as::IProgram>(
      services->parseCobolDD("bench", reinterpret_cast<const unsigned char*>(text.data()),
                             static_cast<unsigned int>(text.size())));
}

// The XML parser alone: the same document read into a DOM tree and validated.
std::unique_ptr<xercesc::XercesDOMParser> parseBare(const std::string& text) {
  class Resolver : public xercesc::EntityResolver {
    xercesc::InputSource* resolveEntity(const XMLCh* /*publicId*/,
                                        const XMLCh* /*systemId*/) override {
      XMLCh* path = xercesc::XMLString::transcode(AS_SCHEMA_DIR "/vorcobol.xsd");
      auto* const source = new xercesc::LocalFileInputSource(path);
      xercesc::XMLString::release(&path);
      return source;
    }
  } resolver;
  auto parser = std::make_unique<xercesc::XercesDOMParser>();
  parser->setEntityResolver(&resolver);
  parser->setValidationScheme(xercesc::XercesDOMParser::Val_Always);
  parser->setDoNamespaces(true);
  parser->setDoSchema(true);
  const xercesc::MemBufInputSource source(reinterpret_cast<const XMLByte*>(text.data()),
                                          text.size(), "bare");
  parser->parse(source);
  if (parser->getErrorCount() != 0) std::abort();
  parser->setEntityResolver(nullptr);
  return parser;
}

// What the heap holds, in bytes.
double heap() {
  const struct mallinfo2 info = ::mallinfo2();
  return static_cast<double>(info.uordblks + info.hblkhd);
}

void parseDictionary(benchmark::State& state) {
  const std::string text = dictionary(state.range(0));
  const auto items = static_cast<double>(state.range(0));
  double own = 0;
  double bare = 0;
  for ([[maybe_unused]] auto _ : state) {
    const auto start = Clock::now();
    if (parse(text) == nullptr) state.SkipWithError("no program");
    const auto middle = Clock::now();
    parseBare(text);
    const auto end = Clock::now();
    const std::chrono::duration<double> ownTime = middle - start;
    own += ownTime.count();
    bare += std::chrono::duration<double>(end - middle).count();
    state.SetIterationTime(ownTime.count());
  }
  state.counters["us_per_item"] = 1e6 * own / items / static_cast<double>(state.iterations());
  state.counters["time_to_bare"] = own / bare;
  const double before = heap();
  const std::unique_ptr<as::IProgram> program = parse(text);
  const double ownMemory = heap() - before;
  const std::unique_ptr<xercesc::XercesDOMParser> bareParser = parseBare(text);
  const double bareMemory = heap() - before - ownMemory;
  state.counters["bytes_per_item"] = ownMemory / items;
  state.counters["memory_to_bare"] = ownMemory / bareMemory;
}

BENCHMARK(parseDictionary)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond)
    ->Arg(50)
    ->Arg(1000)
    ->Arg(5000)
    ->Arg(50000)
    ->Arg(1000000);

// Everything an accessor answers about every item, against parsing the same dictionary.
void walkDictionary(benchmark::State& state) {
  const std::string text = dictionary(state.range(0));
  const auto start = Clock::now();
  const std::unique_ptr<as::IProgram> program = parse(text);
  const std::chrono::duration<double> parseTime = Clock::now() - start;
  double walked = 0;
  for ([[maybe_unused]] auto _ : state) {
    const auto begin = Clock::now();
    long sum = 0;
    as::IList* const records = program->getDataItems();
    for (int r = 0; r < records->getLength(); r++) {
      auto* const group = as::interface_cast<as::IGroup>(records->getItem(r));
      as::IList* const children = group->getChildren();
      for (int i = 0; i < children->getLength(); i++) {
        auto* const item = as::interface_cast<as::IDataItem>(children->getItem(i));
        sum += item->getLength() + item->getOffset() + item->getMaxOccurs() + item->getDataType() +
               static_cast<long>(item->getName().size() + item->getPicture().size());
      }
    }
    benchmark::DoNotOptimize(sum);
    walked += std::chrono::duration<double>(Clock::now() - begin).count();
  }
  state.counters["time_to_parse"] =
      walked / static_cast<double>(state.iterations()) / parseTime.count();
}

BENCHMARK(walkDictionary)->Unit(benchmark::kMillisecond)->Arg(1000)->Arg(100000);

}  // namespace
