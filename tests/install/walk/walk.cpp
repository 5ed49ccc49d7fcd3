// A walk through the whole public interface, standing for a user's project that has found the
// installed library.
// Usage: walk SCHEMA_DIR EXAMPLES_DIR WORK_DIR
// WORK_DIR is made when it is not there. Exit status: 0, or 1 when anything was not as expected.
#include "Walk.h"

#include <cstdio>
#include <exception>
#include <filesystem>
#include <set>

namespace walk {

namespace {

std::set<std::string>& operations() {
  static std::set<std::string> operations;
  return operations;
}

int failures = 0;

}  // namespace

bool walked(const char* operation) {
  operations().insert(operation);
  return true;
}

void failed(const char* file, int line, const char* expression) {
  std::printf("%s:%d: %s\n", file, line, expression);
  failures++;
}

std::unique_ptr<as::IAgentServices> newServices(const Places& places) {
  std::unique_ptr<as::IAgentServices> services(as::CAgentServicesFactory::CreateAgentServices());
  services->setSchemaLocation(places.schemas.c_str());
  return services;
}

std::unique_ptr<as::IProgram> program(const Places& places, const std::string& name) {
  const std::string file = places.examples + "/" + name + ".xml";
  std::unique_ptr<as::IProgram> program(newServices(places)->parseCobolDD(file.c_str()));
  if (program == nullptr) throw std::logic_error("there is no program in " + file);
  return program;
}

std::unique_ptr<as::IService> service(const Places& places, const std::string& document,
                                      bool loadProgram) {
  std::unique_ptr<as::IService> service(
      newServices(places)->parseService("walk.xml", bytes(document), size(document), loadProgram));
  if (service == nullptr) throw std::logic_error("there is no service in " + document);
  return service;
}

std::unique_ptr<as::IService> withProgram(const Places& places, as::IService& of,
                                          const std::string& name) {
  of.setDDFilename((places.examples + "/" + name + ".xml").c_str());
  return service(places, as::CAgentServicesFactory::SerializeToString(&of), true);
}

std::string document(const std::string& flavour, const std::string& content) {
  const std::string version = flavour == "java" ? "v2.0" : "v1.0";
  const std::string ns =
      "http://agentservices.example/schema/" + flavour + "/" + version + "/vor" + flavour + ".xsd";
  return "<service xmlns='" + ns + "' xmlns:xsi='http://www.w3.org/2001/XMLSchema-instance' " +
         "xsi:schemaLocation='" + ns + " " + ns + "' name='Slots' implementation='" + flavour +
         "' programName='WHSLOTS' dataDictFilename='WHSLOTS.xml' exitProgramName='WHSEXIT'>" +
         content + "</service>";
}

namespace {

// The exceptions of the library derive from nothing: each has to be caught by its own type.
void walkAll(const Places& places) {
  try {
    walkGlobals();
    walkExceptions();
    walkIdentities();
    walkRequests(places);
    walkProgram(places);
    walkDataItems(places);
    walkCasts(places);
    walkService(places);
    walkFields(places);
    walkMappings(places);
    walkFactory(places);
    walkWebService(places);
    walkCOMService(places);
    walkJavaService(places);
    walkDotNETService(places);
  } catch (const as::CASException& exception) {
    failed(__FILE__, __LINE__, exception.getErrorText().c_str());
  } catch (const as::CASParseException& exception) {
    failed(exception.getSystemId().c_str(), exception.getLineNum(),
           exception.getErrorText().c_str());
  } catch (const as::CASInvalidNamespaceException&) {
    failed(__FILE__, __LINE__, "a document of the wrong kind");
  } catch (const std::exception& exception) {
    failed(__FILE__, __LINE__, exception.what());
  }
}

}  // namespace

}  // namespace walk

int main(int argc, char** argv) {
  if (argc != 4) {
    std::fprintf(stderr, "usage: %s SCHEMA_DIR EXAMPLES_DIR WORK_DIR\n", argv[0]);
    return 2;
  }
  std::filesystem::create_directories(argv[3]);
  walk::walkAll({argv[1], argv[2], argv[3]});
  std::printf("%zu operations walked, %d failures\n", walk::operations().size(), walk::failures);
  return walk::failures == 0 ? 0 : 1;
}
