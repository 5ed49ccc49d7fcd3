// The walk through what the services of all flavours have in common.
#include "Walk.h"

namespace walk {

namespace {

constexpr char content[] =
    "<properties><property name='owner' value='Warehouse'/></properties>"
    "<parameterTypeDefs>"
    "<parameter name='Line' occurs='200'>"
    "<mappings><mapping item='PICK-LIST.PL-LINE(*)' subscript='*'/></mappings>"
    "<field name='quantity'/><field name='unit' occurs='1'/></parameter>"
    "</parameterTypeDefs>"
    "<operations><operation name='pick' entryPoint='WHSTASK' exitPoints='2'>"
    "<hiddenParameters><hiddenParameter item='LK-TASK.LT-KIND' value='PK'/></hiddenParameters>"
    "<parameters><parameter name='list' byType='out'><field name='lines' ref='Line'/></parameter>"
    "<parameter name='line' byType='in' ref='Line'/>"
    "<parameter name='answer' occurs='3'/></parameters>"
    "</operation></operations>";

// A parsed service together with its program.
std::unique_ptr<as::IService> slotsService(const Places& places) {
  return withProgram(places, *service(places, document("java", content)), "WHSLOTS");
}

}  // namespace

void walkService(const Places& places) {
  const auto slots = slotsService(places);
  CHECK(walked("IService::getName") && slots->getName() == "Slots");
  CHECK(walked("IService::setName") &&
        (slots->setName("Pl\xC3\xA4tze"), slots->getName() == "Pl\xC3\xA4tze"));
  CHECK(walked("IService::getNamespaceURI") && slots->getNamespaceURI().empty());
  CHECK(walked("IService::getImplementation") &&
        slots->getImplementation() == as::IService::TYPE_JAVA);
  CHECK(walked("IService::getProgram") &&
        the<as::IProgram>(slots->getProgram()).getName() == "WHSLOTS");
  CHECK(walked("IService::getDDFilename") && slots->getDDFilename() == "WHSLOTS.xml");
  CHECK(walked("IService::setDDFilename") &&
        (slots->setDDFilename("other.xml"), slots->getDDFilename() == "other.xml"));
  CHECK(walked("IService::getExitProgramName") && slots->getExitProgramName() == "WHSEXIT");
  CHECK(walked("IService::setExitProgramName") &&
        (slots->setExitProgramName(nullptr), slots->getExitProgramName().empty()));
  CHECK(walked("IService::getProperties") && slots->getProperties()->getLength() == 1 &&
        member<as::IProperty>(slots->getProperties(), 0).getValue() == "Warehouse");
  CHECK(walked("IService::getParameterTypeDefs") &&
        slots->getParameterTypeDefs()->getLength() == 1 &&
        member<as::IParameter>(slots->getParameterTypeDefs(), 0).getName() == "Line");
  CHECK(walked("IService::getOperations") && slots->getOperations()->getLength() == 1);

  auto& pick = member<as::IOperation>(slots->getOperations(), 0);
  as::IList* const entryPoints = slots->getProgram()->getEntryPoints();
  auto& task = named<as::IEntryPoint>(entryPoints, "WHSTASK");
  auto& map = named<as::IEntryPoint>(entryPoints, "WHSMAP");
  CHECK(walked("IOperation::getName") && pick.getName() == "pick");
  CHECK(walked("IOperation::setName") && (pick.setName("take"), pick.getName() == "take"));
  CHECK(walked("IOperation::getEntryPoint") && pick.getEntryPoint() == &task);
  CHECK(walked("IOperation::getExitPoints") && pick.getExitPoints() == 2);
  CHECK(walked("IOperation::setExitPoints") && (pick.setExitPoints(7), pick.getExitPoints() == 7));
  CHECK(walked("IOperation::getHiddenParameters") && pick.getHiddenParameters()->getLength() == 1);
  CHECK(walked("IOperation::getParameters") && pick.getParameters()->getLength() == 3);

  as::IOperation* added = nullptr;
  CHECK(walked("IService::addOperation") &&
        (added = slots->addOperation("map", &map), added != nullptr) &&
        added->getEntryPoint() == &map && slots->getOperations()->getLength() == 2 &&
        &member<as::IOperation>(slots->getOperations(), 1) == added);
  added = slots->addOperation("later", nullptr);
  CHECK(walked("IOperation::setEntryPoint") && !added->setEntryPoint(nullptr) &&
        added->setEntryPoint(&task) && added->getEntryPoint() == &task &&
        !added->setEntryPoint(&map) && added->getEntryPoint() == &task);
  as::IParameter* parameter = nullptr;
  CHECK(walked("IOperation::addParameter") &&
        (parameter = added->addParameter(as::IParameter::BY_OUT, "answer", 3),
         parameter != nullptr) &&
        parameter->getName() == "answer" && parameter->getByType() == as::IParameter::BY_OUT &&
        parameter->getOccurs() == 3 && added->getParameters()->getLength() == 1);
  auto& kind = item(*slots->getProgram(), "LK-TASK.LT-KIND");
  as::IHiddenParameter* hidden = nullptr;
  CHECK(walked("IOperation::addHiddenParameter") &&
        (hidden = added->addHiddenParameter(&kind, "PK"), hidden != nullptr) &&
        hidden->getRawMapping().empty() && hidden->getValue().empty() &&
        added->getHiddenParameters()->getLength() == 1);

  // What was set and added is in the document.
  const auto again = service(places, as::CAgentServicesFactory::SerializeToString(slots.get()));
  CHECK(again->getName() == "Pl\xC3\xA4tze" && again->getDDFilename() == "other.xml");
  CHECK(again->getAttributeValue("programName") == "WHSLOTS" && again->getProgram() == nullptr);
  CHECK(again->getOperations()->getLength() == 3);
  auto& later = member<as::IOperation>(again->getOperations(), 2);
  CHECK(later.getAttributeValue("entryPoint") == "WHSTASK" && later.getEntryPoint() == nullptr);
  CHECK(later.getParameters()->getLength() == 1 && later.getHiddenParameters()->getLength() == 1);
}

void walkFields(const Places& places) {
  const auto slots = slotsService(places);
  auto& pick = member<as::IOperation>(slots->getOperations(), 0);
  auto& definition = member<as::IParameter>(slots->getParameterTypeDefs(), 0);
  auto& list = named<as::IParameter>(pick.getParameters(), "list");
  auto& line = named<as::IParameter>(pick.getParameters(), "line");
  auto& answer = named<as::IParameter>(pick.getParameters(), "answer");
  auto& lines = named<as::IField>(list.getChildren(), "lines");

  CHECK(walked("IParameter::getByType") && list.getByType() == as::IParameter::BY_OUT &&
        line.getByType() == as::IParameter::BY_IN && answer.getByType() == as::IParameter::BY_IO);
  CHECK(walked("IParameter::setByType") &&
        (answer.setByType(as::IParameter::BY_OUT), answer.getByType() == as::IParameter::BY_OUT) &&
        answer.getAttributeValue("byType") == "out");
  CHECK(walked("IParameter::getReferenceType") && line.getReferenceType() == &definition &&
        list.getReferenceType() == nullptr);

  CHECK(walked("IField::getName") && lines.getName() == "lines" && line.getName() == "line");
  CHECK(walked("IField::setName") && (answer.setName("reply"), answer.getName() == "reply"));
  CHECK(walked("IField::getOccurs") && answer.getOccurs() == 3 && line.getOccurs() == 200 &&
        list.getOccurs() == 0);
  CHECK(walked("IField::setOccurs") && (answer.setOccurs(4), answer.getOccurs() == 4) &&
        (line.setOccurs(4), line.getOccurs() == 200));
  CHECK(walked("IField::getChildren") && lines.getChildren()->getLength() == 2 &&
        named<as::IField>(lines.getChildren(), "unit").getOccurs() == 1);
  CHECK(walked("IField::hasChildren") && lines.hasChildren() && list.hasChildren() &&
        !answer.hasChildren());
  CHECK(walked("IField::getMappings") && line.getMappings()->getLength() == 1 &&
        list.getMappings()->getLength() == 0);
  CHECK(walked("IField::getQualifiedName") && lines.getQualifiedName() == "picklistlines" &&
        list.getQualifiedName() == "picklist" && definition.getQualifiedName() == "Line");

  as::IField* field = nullptr;
  CHECK(walked("IField::addField") && (field = answer.addField("code", 2), field != nullptr) &&
        field->getName() == "code" && field->getOccurs() == 2 &&
        answer.getChildren()->getLength() == 1 && field->getQualifiedName() == "pickreplycode" &&
        line.addField("code", 2) == nullptr);
  auto& code = item(*slots->getProgram(), "LK-ANSWER.LA-CODE");
  as::IMapping* mapping = nullptr;
  CHECK(walked("IField::addMapping") && (mapping = field->addMapping(&code), mapping != nullptr) &&
        mapping->getDataItem() == &code && field->getMappings()->getLength() == 1 &&
        field->addMapping(nullptr) == nullptr && line.addMapping(&code) == nullptr);

  // The same on a service that starts empty.
  const std::unique_ptr<as::IService> fresh(
      as::CAgentServicesFactory::NewJavaService(program(places, "PAYSLIP").release()));
  auto& period = item(*fresh->getProgram(), "LK-PERIOD");
  as::IOperation* const slip = fresh->addOperation(
      "slip", &member<as::IEntryPoint>(fresh->getProgram()->getEntryPoints(), 0));
  as::IParameter* const month = slip->addParameter(as::IParameter::BY_IN, "month", 1);
  CHECK(month->addMapping(&period)->getRawMapping() == "LK-PERIOD");
  CHECK(month->addField("year", 1)->addField("digit", 4)->getQualifiedName() ==
        "slipmonthyeardigit");
  const auto again = service(places, as::CAgentServicesFactory::SerializeToString(fresh.get()));
  auto& readMonth =
      member<as::IParameter>(member<as::IOperation>(again->getOperations(), 0).getParameters(), 0);
  CHECK(readMonth.getByType() == as::IParameter::BY_IN && readMonth.getOccurs() == 1);
  CHECK(member<as::IMapping>(readMonth.getMappings(), 0).getRawMapping() == "LK-PERIOD");
  CHECK(member<as::IField>(member<as::IField>(readMonth.getChildren(), 0).getChildren(), 0)
            .getQualifiedName() == "slipmonthyeardigit");
}

void walkMappings(const Places& places) {
  const std::string mappings =
      "<mapping item='PICK-LIST.PL-LINE.PL-SERIAL(3,*)' subscript='*,2,1'/>"
      "<mapping item='$command_line'/><mapping item='$return_code'/><mapping item='$stdin'/>"
      "<mapping item='$stdout'/><mapping item='PICK-LIST.NONE'/>";
  const auto slots = withProgram(
      places,
      *service(places, document("java",
                                "<operations><operation name='pick'><parameters><parameter "
                                "name='serial'><mappings>" +
                                    mappings +
                                    "</mappings></parameter></parameters></operation>"
                                    "</operations>")),
      "WHSLOTS");
  auto& pick = member<as::IOperation>(slots->getOperations(), 0);
  auto& serial = member<as::IParameter>(pick.getParameters(), 0);
  auto& mapping = member<as::IMapping>(serial.getMappings(), 0);
  auto& item = walk::item(*slots->getProgram(), "PICK-LIST.PL-LINE.PL-SERIAL");

  CHECK(walked("IMapping::getRawMapping") &&
        mapping.getRawMapping() == "PICK-LIST.PL-LINE.PL-SERIAL(3,*)");
  CHECK(walked("IMapping::getFullyQualifiedName") &&
        mapping.getFullyQualifiedName() == "PL-SERIAL of PL-LINE of PICK-LIST");
  CHECK(walked("IMapping::getDataItem") && mapping.getDataItem() == &item);
  int subscripts[16] = {};
  CHECK(walked("IMapping::getDataItemSubscripts") &&
        mapping.getDataItemSubscripts(subscripts) == 2 && subscripts[0] == 3 &&
        subscripts[1] == -1 && subscripts[15] == -1 && mapping.getDataItemSubscripts(nullptr) == 0);
  CHECK(walked("IMapping::getInterfaceSubscripts") &&
        mapping.getInterfaceSubscripts(subscripts) == 3 && subscripts[0] == -1 &&
        subscripts[1] == 2 && subscripts[2] == 1 && mapping.getInterfaceSubscripts(nullptr) == 0);

  CHECK(walked("IMapping::getType") && mapping.getType() == as::IMapping::MAP_DATA_ITEM);
  const as::IMapping::TYPE types[] = {as::IMapping::MAP_DATA_ITEM,   as::IMapping::MAP_COMMAND_LINE,
                                      as::IMapping::MAP_RETURN_CODE, as::IMapping::MAP_STDIN,
                                      as::IMapping::MAP_STDOUT,      as::IMapping::MAP_DATA_ITEM};
  for (int i = 1; i < 6; i++) {
    auto& other = member<as::IMapping>(serial.getMappings(), i);
    CHECK(other.getType() == types[i]);
    CHECK(other.getDataItem() == nullptr);
    CHECK(other.getDataItemSubscripts(subscripts) == 0 && subscripts[0] == -1);
  }

  // An item in no table leaves the interface's subscripts as they were.
  auto& house = walk::item(*slots->getProgram(), "LK-HOUSE");
  CHECK(walked("IMapping::setDataItem") &&
        (mapping.setDataItem(&house), mapping.getDataItem() == &house) &&
        mapping.getRawMapping() == "LK-HOUSE" && mapping.getInterfaceSubscripts(subscripts) == 3 &&
        (mapping.setDataItem(&item), mapping.getDataItem() == &item) &&
        mapping.getRawMapping() == "PICK-LIST.PL-LINE.PL-SERIAL(*,*)" &&
        mapping.getInterfaceSubscripts(subscripts) == 2);

  auto& hidden = the<as::IHiddenParameter>(pick.addHiddenParameter(nullptr, nullptr));
  hidden.setDataItem(&house);
  CHECK(walked("IHiddenParameter::setValue") &&
        (hidden.setValue("W001"), hidden.getAttributeValue("value") == "W001"));
  CHECK(walked("IHiddenParameter::getValue") && hidden.getValue() == "W001");
  CHECK(hidden.getRawMapping() == "LK-HOUSE" && hidden.getDataItem() == &house);

  as::IElement* const element = &hidden;
  CHECK(as::interface_cast<as::IHiddenParameter>(element) == &hidden);
  CHECK(as::interface_cast<as::IMapping>(element) != nullptr);
  element->setUserData(&house);
  CHECK(pick.getHiddenParameters()->getItem(0)->getUserData() == &house);
  CHECK(as::interface_cast<as::IHiddenParameter>(static_cast<as::IElement*>(&mapping)) == nullptr);
}

}  // namespace walk
