#include <stdexcept>

#include "WholeJob.h"
#include "as/AgentServices.h"

namespace bench {

namespace {

class Reader {
 public:
  const Reading& reading() const { return reading_; }

  void readAll(as::IList* items) {
    for (int i = 0; i < items->getLength(); i++) {
      read(*as::interface_cast<as::IDataItem>(items->getItem(i)));
    }
  }

 private:
  void text(const std::string& text) { reading_.characters += text.size(); }
  void flag(bool value) { reading_.flags += value ? 1 : 0; }
  void number(int value) { reading_.numbers += value; }
  void code(int value) { reading_.codes += value; }

  void read(as::IDataItem& item) {
    reading_.items++;
    text(item.getName());
    text(item.getPicture());
    number(item.getLength());
    number(item.getMinOccurs());
    number(item.getMaxOccurs());
    number(item.getOffset());
    number(item.getLine());
    // The item that it is, not the name, is what the accessor answers.
    if (item.hasODO()) {
      text(item.getAttributeValue("odo"));
      code(item.getODO() == nullptr ? 0 : 1);
    }
    flag(item.isLinkage());
    flag(item.isSync());
    flag(item.isRedefined());
    flag(item.isRenamed());
    code(item.getParent() == nullptr ? 0 : 1);
    switch (item.getDataType()) {
      case as::IDataItem::TYPE_GROUP:
        readAll(as::interface_cast<as::IGroup>(&item)->getChildren());
        break;
      case as::IDataItem::TYPE_NUMERIC:
        readNumeric(*as::interface_cast<as::INumeric>(&item));
        break;
      case as::IDataItem::TYPE_ALPHANUMERIC:
        code(as::interface_cast<as::IAlphanumeric>(&item)->getJustification());
        break;
      case as::IDataItem::TYPE_NATIONAL:
        code(as::interface_cast<as::INational>(&item)->getUsage());
        break;
      case as::IDataItem::TYPE_NUMERIC_EDITED:
        readEdited(*as::interface_cast<as::INumericEdited>(&item));
        break;
      default:
        break;
    }
    as::IList* const conditions = item.getConditions();
    for (int c = 0; c < conditions->getLength(); c++) {
      readCondition(*as::interface_cast<as::ICondition>(conditions->getItem(c)));
    }
  }

  void readNumeric(as::INumeric& item) {
    code(item.getUsage());
    code(item.getSign());
    number(item.getDigits());
    number(item.getAlignment());
  }

  void readEdited(as::INumericEdited& item) {
    number(item.getDigits());
    flag(item.isBlankWhenZero());
  }

  void readCondition(as::ICondition& condition) {
    text(condition.getName());
    for (int v = 0; v < condition.getLength(); v++) {
      auto* const value = as::interface_cast<as::IConditionValue>(condition.getItem(v));
      if (value->getType() == as::IConditionValue::TYPE_CONSTANT) {
        text(value->getConstant());
      } else {
        text(value->getFrom());
        text(value->getTo());
      }
    }
  }

  Reading reading_;
};

std::unique_ptr<as::IProgram> programOf(as::IAgentServices& services, const std::string& text) {
  std::unique_ptr<as::IProgram> program(
      services.parseCobolDD("bench", reinterpret_cast<const unsigned char*>(text.data()),
                            static_cast<unsigned int>(text.size())));
  if (program == nullptr) throw std::runtime_error("the dictionary makes no program");
  return program;
}

class OurKeeper : public Keeper {
 public:
  OurKeeper() { services_->setSchemaLocation(AS_SCHEMA_DIR); }

  Reading job(const std::string& text) override {
    return readEverything(*programOf(*services_, text));
  }

 private:
  std::unique_ptr<as::IAgentServices> services_{
      as::CAgentServicesFactory::CreateCachingAgentServices()};
};

}  // namespace

std::unique_ptr<as::IProgram> parseDictionary(const std::string& text) {
  const std::unique_ptr<as::IAgentServices> services(
      as::CAgentServicesFactory::CreateAgentServices());
  services->setSchemaLocation(AS_SCHEMA_DIR);
  return programOf(*services, text);
}

Reading readEverything(as::IProgram& program) {
  Reader reader;
  reader.readAll(program.getDataItems());
  return reader.reading();
}

Reading jobOfOurs(const std::string& text) {
  const std::unique_ptr<as::IProgram> program = parseDictionary(text);
  return readEverything(*program);
}

std::unique_ptr<Keeper> keeperOfOurs() { return std::make_unique<OurKeeper>(); }

}  // namespace bench
