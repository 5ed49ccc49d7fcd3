// Measures what the entry object that keeps schemas saves: reading small documents one after the
// other through it, to the same through the plain one, in turn.
#include <benchmark/benchmark.h>

#include <chrono>
#include <memory>
#include <string>

#include "as/AgentServices.h"

namespace {

using Clock = std::chrono::steady_clock;

std::string rootOf(const std::string& element, const std::string& ns) {
  return "<" + element + " xmlns=\"" + ns +
         "\" xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\" xsi:schemaLocation=\"" + ns +
         " " + ns + "\" name=\"SMALL\"";
}

// Records of ten items, in groups, with a condition each.
std::string dictionary(long items) {
  std::string text = rootOf("program", as::namespaces::dd.uri) + ">\n<dataItems>\n";
  for (long i = 0; i < items; i += 10) {
    text += "<group name=\"RECORD-" + std::to_string(i) + "\" length=\"74\" offset=\"0\">\n";
    for (int field = 0; field < 8; field++) {
      text += "  <alphanumeric name=\"FIELD-" + std::to_string(field) +
              "\" picture=\"X(9)\" length=\"9\" offset=\"" + std::to_string(9 * field) + "\"/>\n";
    }
    text +=
        "  <numeric name=\"STATE\" picture=\"9\" length=\"1\" digits=\"1\" offset=\"72\">\n"
        "    <numericCondition name=\"CLOSED\"><numericConstant value=\"9\"/>"
        "</numericCondition>\n  </numeric>\n</group>\n";
  }
  return text + "</dataItems>\n</program>\n";
}

// Of one operation for every ten parameters.
std::string service(long parameters) {
  std::string text =
      rootOf("service", as::namespaces::ws.uri) + " implementation=\"ws\">\n<operations>\n";
  for (long i = 0; i < parameters; i += 10) {
    text += "<operation name=\"operation" + std::to_string(i) + "\">\n<parameters>\n";
    for (int p = 0; p < 10; p++) {
      text += "  <parameter name=\"parameter" + std::to_string(p) +
              "\" byType=\"in\" dataType=\"int\"><mappings><mapping item=\"RECORD.FIELD\"/>"
              "</mappings></parameter>\n";
    }
    text += "</parameters>\n</operation>\n";
  }
  return text + "</operations>\n</service>\n";
}

double secondsToRead(as::IAgentServices& services, const std::string& text, bool isDictionary) {
  const auto start = Clock::now();
  const auto* const bytes = reinterpret_cast<const unsigned char*>(text.data());
  const auto length = static_cast<unsigned int>(text.size());
  if (isDictionary) {
    const std::unique_ptr<as::IProgram> program(services.parseCobolDD("bench", bytes, length));
  } else {
    const std::unique_ptr<as::IService> read(services.parseService("bench", bytes, length, false));
  }
  return std::chrono::duration<double>(Clock::now() - start).count();
}

void readThroughCache(benchmark::State& state, bool isDictionary) {
  const std::string text = isDictionary ? dictionary(state.range(0)) : service(state.range(0));
  const std::unique_ptr<as::IAgentServices> plain(as::CAgentServicesFactory::CreateAgentServices());
  const std::unique_ptr<as::IAgentServices> caching(
      as::CAgentServicesFactory::CreateCachingAgentServices());
  for (as::IAgentServices* services : {plain.get(), caching.get()}) {
    services->setSchemaLocation(AS_SCHEMA_DIR);
  }
  // One document only: what an object takes that keeps schemas for nothing.
  const double first = secondsToRead(*caching, text, isDictionary);
  const double firstOfPlain = secondsToRead(*plain, text, isDictionary);
  double own = 0;
  double ofPlain = 0;
  for ([[maybe_unused]] auto _ : state) {
    ofPlain += secondsToRead(*plain, text, isDictionary);
    const double seconds = secondsToRead(*caching, text, isDictionary);
    own += seconds;
    state.SetIterationTime(seconds);
  }
  state.counters["cached_to_plain"] = own / ofPlain;
  state.counters["first_to_plain"] = first / firstOfPlain;
}

void measure(benchmark::internal::Benchmark* benchmark) {
  benchmark->UseManualTime()->Unit(benchmark::kMicrosecond)->Arg(50)->Arg(1000);
}

BENCHMARK_CAPTURE(readThroughCache, Dictionary, true)->Apply(measure);
BENCHMARK_CAPTURE(readThroughCache, WebService, false)->Apply(measure);

}  // namespace
