// The walk through what stands beside the model: globals, exceptions, identities, parse requests
// and the factory.
#include <as/Globals.h>

#include <fstream>
#include <iterator>

#include "Walk.h"

namespace walk {

namespace {

constexpr char badXml[] = "<?xml version='1.0'?>\n<program\n a='1'<";

std::string contentOf(const std::string& file) {
  std::ifstream in(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

}  // namespace

void walkGlobals() {
  CHECK(walked("nXercesInitStatus") && nXercesInitStatus == 1);
  CHECK(walked("gUTF8Transcoder") && gUTF8Transcoder != nullptr);
  CHECK(walked("APIDATA_KEY") && std::basic_string<XMLCh>(APIDATA_KEY).size() == 5);
}

void walkExceptions() {
  const as::CASException failure("what went wrong");
  CHECK(walked("CASException::getErrorText") && failure.getErrorText() == "what went wrong");
  as::CASException other(failure);
  other = as::CASException("another");
  CHECK(other.getErrorText() == "another" && failure.getErrorText() == "what went wrong");

  const as::CASParseException message(1, 2, 3, "text", "public", "system");
  CHECK(walked("CASParseException::getErrorCode") && message.getErrorCode() == 1);
  CHECK(walked("CASParseException::getLineNum") && message.getLineNum() == 2);
  CHECK(walked("CASParseException::getColNum") && message.getColNum() == 3);
  CHECK(walked("CASParseException::getErrorText") && message.getErrorText() == "text");
  CHECK(walked("CASParseException::getPublicId") && message.getPublicId() == "public");
  CHECK(walked("CASParseException::getSystemId") && message.getSystemId() == "system");
  as::CASParseException copy(message);
  copy = as::CASParseException(4, 5, 6, "", "", "");
  CHECK(copy.getErrorCode() == 4 && copy.getLineNum() == 5 && copy.getColNum() == 6);
  CHECK(copy.getErrorText() + copy.getPublicId() + copy.getSystemId() == "");

  CHECK(throws<as::CASInvalidNamespaceException>([] { throw as::CASInvalidNamespaceException(); }));
}

void walkIdentities() {
  const RTTItypeid group(&as::IGroup::RTTI_obj);
  CHECK(walked("RTTItypeid::record") && group.record() == &as::IGroup::RTTI_obj);
  CHECK(std::string(group.record()->name) == "IGroup");
  CHECK(walked("RTTItypeid::designates") && group.designates(as::IGroup::RTTI_obj));
  CHECK(!group.designates(as::IDataItem::RTTI_obj));
  CHECK(std::string(RTTITypeinfo::null_type.name) == "NULL");
  CHECK(!RTTItypeid(nullptr).designates(RTTITypeinfo::null_type));
  CHECK(RTTIdyntypeid::a == 0 && RTTIdyntypeid(&as::IGroup::RTTI_obj).record() == group.record());

  as::CAgentServicesFactory factory;
  CHECK(as::interface_cast<as::CAgentServicesFactory>(&factory) == &factory);
  CHECK(factory.RTTI_vinfo().designates(as::CAgentServicesFactory::RTTI_obj));
  CHECK(as::CAgentServicesFactory::RTTI_scast(1, &factory) == &factory);
  CHECK(as::CAgentServicesFactory::RTTI_scast(0, nullptr) == nullptr);
  CHECK(as::interface_cast<as::IElement>(&factory) == nullptr);
  as::IElement* const nothing = nullptr;
  CHECK(as::interface_cast<as::IElement>(nothing) == nullptr);
}

void walkRequests(const Places& places) {
  using Factory = as::CAgentServicesFactory;
  const std::unique_ptr<as::IAgentServices> services(Factory::CreateAgentServices());
  CHECK(walked("IAgentServices::setSchemaLocation") &&
        throws<std::out_of_range>([&] { services->setSchemaLocation(""); }) &&
        throws<std::out_of_range>([&] { services->setSchemaLocation(nullptr); }));
  services->setSchemaLocation(places.schemas.c_str());
  CHECK(as::interface_cast<as::IAgentServices>(services.get()) == services.get());

  // Dictionaries.
  std::unique_ptr<as::IProgram> program;
  const std::string dictionary = places.examples + "/WHSLOTS.xml";
  CHECK(walked("IAgentServices::parseCobolDD(file)") &&
        (program.reset(services->parseCobolDD(dictionary.c_str())), program != nullptr) &&
        program->getName() == "WHSLOTS");
  const std::string text = contentOf(dictionary);
  CHECK(walked("IAgentServices::parseCobolDD(buffer)") &&
        (program.reset(services->parseCobolDD("slots.xml", bytes(text), size(text))),
         program != nullptr) &&
        program->getName() == "WHSLOTS");

  // What is no dictionary.
  const auto cannotBeOpened = [&](const as::CASParseException& message) {
    return message.getLineNum() == 0 && message.getColNum() == 0 && message.getErrorCode() > 0 &&
           message.getErrorText().find("none.xml") != std::string::npos;
  };
  CHECK(throws<as::CASParseException>([&] { services->parseCobolDD("/none/none.xml"); },
                                      cannotBeOpened));
  CHECK(throws<as::CASParseException>(
      [&] { services->parseCobolDD("orders.xml", bytes(badXml), size(badXml)); },
      [](const as::CASParseException& message) {
        return message.getErrorCode() > 0 && message.getLineNum() == 3 &&
               message.getColNum() == 7 && !message.getErrorText().empty() &&
               message.getPublicId().empty() && message.getSystemId() == "orders.xml";
      }));
  const std::string slots = document("ws", "");
  CHECK(throws<as::CASInvalidNamespaceException>(
      [&] { services->parseCobolDD("slots.xml", bytes(slots), size(slots)); }));

  // Services.
  const std::string file = places.work + "/slots.xml";
  const auto withDictionary = walk::service(places, slots);
  withDictionary->setDDFilename(dictionary.c_str());
  CHECK(walked("CAgentServicesFactory::Serialize") &&
        (Factory::Serialize(withDictionary.get(), file.c_str()), true) &&
        contentOf(file) == Factory::SerializeToString(withDictionary.get()));
  const std::string written = contentOf(file);
  std::unique_ptr<as::IService> service;
  std::string error = "as before";
  CHECK(walked("IAgentServices::parseService(file)") &&
        (service.reset(services->parseService(file.c_str(), true)), service != nullptr) &&
        service->getProgram() != nullptr && service->getDDFilename() == "WHSLOTS.xml");
  CHECK(walked("IAgentServices::parseService(file, errorText)") &&
        (service.reset(services->parseService(file.c_str(), error, false)), service != nullptr) &&
        service->getProgram() == nullptr && service->getDDFilename() == dictionary &&
        error == "as before");
  CHECK(walked("IAgentServices::parseService(buffer)") &&
        (service.reset(services->parseService("slots.xml", bytes(written), size(written), true)),
         service != nullptr) &&
        service->getProgram() != nullptr && service->getProgram()->getName() == "WHSLOTS");
  CHECK(walked("IAgentServices::parseService(buffer, errorText)") &&
        (service.reset(
             services->parseService("slots.xml", bytes(written), size(written), error, false)),
         service != nullptr) &&
        service->getProgram() == nullptr && error == "as before");

  // What is no service.
  CHECK(throws<as::CASParseException>([&] { services->parseService("/none/none.xml", false); },
                                      cannotBeOpened));
  CHECK(throws<as::CASInvalidNamespaceException>(
      [&] { services->parseService(dictionary.c_str(), false); }));
  CHECK(services->parseService(dictionary.c_str(), error, false) == nullptr &&
        error != "as before" && !error.empty());
  error.clear();
  CHECK(services->parseService("bad.xml", bytes(badXml), size(badXml), error, false) == nullptr &&
        !error.empty());
}

void walkFactory(const Places& places) {
  using Factory = as::CAgentServicesFactory;
  std::unique_ptr<as::IAgentServices> services;
  CHECK(walked("CAgentServicesFactory::CreateAgentServices") &&
        (services.reset(Factory::CreateAgentServices()), services != nullptr));
  CHECK(walked("CAgentServicesFactory::CreateCachingAgentServices") &&
        (services.reset(Factory::CreateCachingAgentServices()), services != nullptr));
  // Without schemas a document that names one is not read.
  const std::string dictionary = places.examples + "/PAYSLIP.xml";
  CHECK(throws<as::CASParseException>([&] { services->parseCobolDD(dictionary.c_str()); }));

  const auto newProgram = [&] { return walk::program(places, "PAYSLIP").release(); };
  std::unique_ptr<as::IService> service;
  CHECK(walked("CAgentServicesFactory::NewWebService") &&
        (service.reset(Factory::NewWebService(newProgram())), service != nullptr) &&
        service->getImplementation() == as::IService::TYPE_WS &&
        Factory::NewWebService(nullptr) == nullptr);
  CHECK(walked("CAgentServicesFactory::NewCOMService") &&
        (service.reset(Factory::NewCOMService(newProgram())), service != nullptr) &&
        service->getImplementation() == as::IService::TYPE_COM &&
        Factory::NewCOMService(nullptr) == nullptr);
  CHECK(walked("CAgentServicesFactory::NewDotNETService") &&
        (service.reset(Factory::NewDotNETService(newProgram())), service != nullptr) &&
        service->getImplementation() == as::IService::TYPE_DOTNET &&
        Factory::NewDotNETService(nullptr) == nullptr);
  CHECK(walked("CAgentServicesFactory::NewJavaService") &&
        (service.reset(Factory::NewJavaService(newProgram())), service != nullptr) &&
        service->getImplementation() == as::IService::TYPE_JAVA &&
        Factory::NewJavaService(nullptr) == nullptr);

  const std::string start = "<?xml version=\"1.0\" encoding=\"UTF-8\"";
  CHECK(walked("CAgentServicesFactory::SerializeToString") &&
        Factory::SerializeToString(service.get()).compare(0, start.size(), start) == 0);
  const std::string refusal = "AgentServices: An error occurred serializing the XML to file ";
  CHECK(throws<as::CASException>(
      [] { Factory::SerializeToString(nullptr); },
      [&](const as::CASException& exception) { return exception.getErrorText() == refusal; }));
  CHECK(throws<as::CASException>([] { Factory::Serialize(nullptr, "none.xml"); },
                                 [&](const as::CASException& exception) {
                                   return exception.getErrorText() == refusal + "none.xml";
                                 }));
  const std::string unwritable = places.work + "/none/none.xml";
  Factory::Serialize(service.get(), unwritable.c_str());
  CHECK(!std::ifstream(unwritable).is_open());
}

}  // namespace walk
