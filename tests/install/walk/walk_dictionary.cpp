// The walk through the dictionary side of the model, over the sample dictionaries.
#include "Walk.h"

namespace walk {

void walkProgram(const Places& places) {
  const auto deposits = program(places, "DEPINT01");
  CHECK(walked("IProgram::getName") && deposits->getName() == "DEPINT01");
  CHECK(walked("IProgram::getFileSection") && deposits->getFileSection()->getLength() == 5);
  CHECK(walked("IProgram::getDataItems") && deposits->getDataItems()->getLength() == 9);
  CHECK(walked("IProgram::getProperties") && deposits->getProperties()->getLength() == 9);
  CHECK(walked("IProgram::getEntryPoints") && deposits->getEntryPoints()->getLength() == 1);

  auto& property = member<as::IProperty>(deposits->getProperties(), 1);
  CHECK(walked("IProperty::getName") && property.getName() == "application");
  CHECK(walked("IProperty::getValue") && property.getValue() == "Deposits");

  auto& file = member<as::IFD>(deposits->getFileSection(), 1);
  CHECK(walked("IFD::getName") && file.getName() == "ACCT-MASTER");
  CHECK(walked("IFD::getAccessMode") && file.getAccessMode() == 1);
  CHECK(walked("IFD::getOrganization") && file.getOrganization() == 0);
  CHECK(walked("IFD::getDataItems") && file.getDataItems()->getLength() == 1 &&
        member<as::IDataItem>(file.getDataItems(), 0).getName() == "ACCT-RECORD");

  // Whatever is an element.
  int stored = 0;
  CHECK(walked("IElement::getAttributeValue") && file.getAttributeValue("accessMode") == "dynamic");
  CHECK(file.getAttributeValue("none").empty() && file.getAttributeValue(nullptr).empty());
  CHECK(walked("IElement::getUserData") && file.getUserData() == nullptr);
  CHECK(walked("IElement::setUserData") &&
        (file.setUserData(&stored), deposits->getFileSection()->getItem(1)->getUserData()) ==
            &stored);
  file.setUserData(nullptr);
  CHECK(file.getUserData() == nullptr);

  // Whatever is a list.
  auto& files = the<as::IList>(deposits->getFileSection());
  CHECK(walked("IList::getLength") && files.getLength() == 5);
  CHECK(walked("IList::getItem") && files.getItem(1) == static_cast<as::IElement*>(&file) &&
        files.getItem(-1) == nullptr && files.getItem(5) == nullptr);

  // A program without files.
  const auto motor = program(places, "MOTPREM");
  CHECK(motor->getFileSection() != nullptr && motor->getFileSection()->getLength() == 0);
  CHECK(member<as::IProperty>(motor->getProperties(), 0).getValue() ==
        "Kfz-Versicherung: Pr\xC3\xA4mienberechnung");

  auto& tax = named<as::IEntryPoint>(motor->getEntryPoints(), "MOTPTAX");
  CHECK(walked("IEntryPoint::getName") && tax.getName() == "MOTPTAX");
  CHECK(walked("IEntryPoint::getCallConv") && tax.getCallConv() == 8);
  CHECK(tax.getLength() == 2);
  auto& premium = member<as::IEntryPoint>(motor->getEntryPoints(), 0);
  CHECK(premium.getCallConv() == 0 && premium.getLength() == 3);
  auto& request = member<as::ILinkageItem>(&premium, 0);
  CHECK(walked("ILinkageItem::getByType") && request.getByType() == as::ILinkageItem::BY_REFERENCE);
  CHECK(walked("ILinkageItem::getDataItem") &&
        request.getDataItem() == &item(*motor, "LK-REQUEST"));
  CHECK(member<as::ILinkageItem>(&premium, 2).getByType() == as::ILinkageItem::BY_RETURNING);
  CHECK(member<as::ILinkageItem>(&tax, 0).getByType() == as::ILinkageItem::BY_VALUE);
}

namespace {

void walkItem(const Places& places) {
  const auto slots = program(places, "WHSLOTS");
  auto& line = item<as::IGroup>(*slots, "PICK-LIST.PL-LINE");
  CHECK(walked("IDataItem::getDataType") && line.getDataType() == as::IDataItem::TYPE_GROUP);
  CHECK(walked("IDataItem::getName") && line.getName() == "PL-LINE");
  CHECK(walked("IDataItem::getPicture") && line.getPicture().empty() &&
        item(*slots, "PICK-LIST.PL-LINE.PL-TEXT").getPicture() == "X(30)");
  CHECK(walked("IDataItem::getLength") && line.getLength() == 88);
  CHECK(walked("IDataItem::getMinOccurs") && line.getMinOccurs() == 0 &&
        item(*slots, "TRANSPORT-QUEUE.TQ-ORDER").getMinOccurs() == 1);
  CHECK(walked("IDataItem::getMaxOccurs") && line.getMaxOccurs() == 200);
  CHECK(walked("IDataItem::getOffset") && line.getOffset() == 26);
  CHECK(walked("IDataItem::getLine") && line.getLine() == 123);
  CHECK(walked("IDataItem::getODO") &&
        line.getODO() == &item(*slots, "PICK-LIST.PL-HEADER.PL-LINE-COUNT"));
  CHECK(walked("IDataItem::hasODO") && line.hasODO());
  auto& record = item(*slots, "PICK-LIST");
  CHECK(!record.hasODO() && record.getODO() == nullptr);
  CHECK(walked("IDataItem::isLinkage") && !line.isLinkage() && item(*slots, "LK-MAP").isLinkage());
  CHECK(walked("IDataItem::isSync") && !line.isSync() &&
        item(*slots, "TRANSPORT-QUEUE.TQ-ORDER.TQ-TRUCK").isSync());
  CHECK(walked("IDataItem::isRedefined") && !line.isRedefined() &&
        item(*slots, "DISTANCE-VALUES").isRedefined());
  CHECK(walked("IDataItem::isRenamed") && !line.isRenamed() &&
        item(*program(places, "DEPINT01"), "WS-RUN-DATE.WS-RUN-PERIOD").isRenamed());
  CHECK(walked("IDataItem::getParent") && record.getParent() == nullptr &&
        line.getParent() == as::interface_cast<as::IGroup>(&record));
  CHECK(walked("IGroup::getChildren") && line.getChildren()->getLength() == 6 &&
        member<as::IDataItem>(line.getChildren(), 5).getName() == "PL-SERIAL");

  // Condition names; those of alphanumeric items are no members.
  auto& code = item(*slots, "LK-ANSWER.LA-CODE");
  CHECK(walked("IDataItem::getConditions") && code.getConditions()->getLength() == 2 &&
        item(*slots, "LK-HOUSE").getConditions()->getLength() == 0);
  auto& refused = member<as::ICondition>(code.getConditions(), 1);
  CHECK(walked("ICondition::getName") && refused.getName() == "LA-REFUSED");
  CHECK(refused.getLength() == 2);
  auto& range = member<as::IConditionValue>(&refused, 1);
  auto& constant = member<as::IConditionValue>(&member<as::ICondition>(code.getConditions(), 0), 0);
  CHECK(walked("IConditionValue::getType") && range.getType() == as::IConditionValue::TYPE_RANGE &&
        constant.getType() == as::IConditionValue::TYPE_CONSTANT);
  CHECK(walked("IConditionValue::getConstant") && range.getConstant().empty() &&
        constant.getConstant() == "0");
  CHECK(walked("IConditionValue::getFrom") && range.getFrom() == "90" &&
        constant.getFrom().empty());
  CHECK(walked("IConditionValue::getTo") && range.getTo() == "99" && constant.getTo().empty());
}

}  // namespace

void walkDataItems(const Places& places) {
  walkItem(places);
  const auto pay = program(places, "PAYSLIP");

  const struct {
    const char* path;
    as::IDataItem::TYPE type;
  } types[] = {
      {"EMPLOYEE", as::IDataItem::TYPE_GROUP},
      {"WS-MONTH-COUNT", as::IDataItem::TYPE_NUMERIC},
      {"EMPLOYEE.EMP-PERMIT", as::IDataItem::TYPE_ALPHANUMERIC},
      {"SESSION.SES-FORM", as::IDataItem::TYPE_ALPHANUMERIC},
      {"SESSION.SES-CALLBACK", as::IDataItem::TYPE_POINTER},
      {"EMPLOYEE.EMP-NAME.EMP-SURNAME", as::IDataItem::TYPE_NATIONAL},
      {"SLIP-LINES.SL-HEAD.SL-MONTH", as::IDataItem::TYPE_NUMERIC_EDITED},
      {"SESSION.SES-CURSOR", as::IDataItem::TYPE_INDEX},
  };
  for (const auto& row : types) CHECK(item(*pay, row.path).getDataType() == row.type);

  auto& initials = item<as::IAlphanumeric>(*pay, "EMPLOYEE.EMP-INITIALS");
  auto& center = item<as::IAlphanumeric>(*pay, "EMPLOYEE.EMP-COST-CENTRE");
  CHECK(walked("IAlphanumeric::getJustification") &&
        initials.getJustification() == as::IAlphanumeric::JUSTIFIED_LEFT &&
        center.getJustification() == as::IAlphanumeric::JUSTIFIED_RIGHT);

  auto& surname = item<as::INational>(*pay, "EMPLOYEE.EMP-NAME.EMP-SURNAME");
  auto& sortName = item<as::INational>(*pay, "EMPLOYEE.EMP-NAME.EMP-SORT-NAME");
  CHECK(walked("INational::getUsage") && surname.getUsage() == as::INational::USAGE_UNICODE &&
        sortName.getUsage() == as::INational::USAGE_DISPLAY);

  auto& quantity = item<as::INumericEdited>(*pay, "SLIP-LINES.SL-BODY.SL-QUANTITY");
  auto& amount = item<as::INumericEdited>(*pay, "SLIP-LINES.SL-BODY.SL-AMOUNT");
  CHECK(walked("INumericEdited::getDigits") && quantity.getDigits() == 5 &&
        amount.getDigits() == 9);
  CHECK(walked("INumericEdited::isBlankWhenZero") && quantity.isBlankWhenZero() &&
        !amount.isBlankWhenZero());

  auto& split = item<as::INumeric>(*pay, "EMPLOYEE.EMP-BANK.EMP-SPLIT-PCT");
  CHECK(walked("INumeric::getUsage") && split.getUsage() == as::INumeric::USAGE_DISPLAY);
  CHECK(walked("INumeric::getSign") && split.getSign() == as::INumeric::SIGN_NONE);
  CHECK(walked("INumeric::getDigits") && split.getDigits() == 4);
  CHECK(walked("INumeric::getAlignment") && split.getAlignment() == 1);

  using Number = as::INumeric;
  const struct {
    const char* name;
    Number::USAGE usage;
    Number::SIGN sign;
    int digits;
    int alignment;
  } numbers[] = {
      {"PE-BASIC", Number::USAGE_COMP_3, Number::SIGN_SIGNED, 9, 2},
      {"PE-BONUS", Number::USAGE_DISPLAY, Number::SIGN_LEADING, 9, 2},
      {"PE-CORRECTION", Number::USAGE_DISPLAY, Number::SIGN_LEADING_SEPARATE, 9, 2},
      {"PE-ADVANCE", Number::USAGE_DISPLAY, Number::SIGN_TRAILING, 9, 2},
      {"PE-GARNISHMENT", Number::USAGE_DISPLAY, Number::SIGN_TRAILING_SEPARATE, 9, 2},
      {"PE-OVERTIME", Number::USAGE_COMP, Number::SIGN_SIGNED, 4, 0},
      {"PE-NIGHT-MINUTES", Number::USAGE_COMP_4, Number::SIGN_NONE, 9, 0},
      {"PE-HOLIDAYS", Number::USAGE_COMP_5, Number::SIGN_SIGNED, 4, 1},
      {"PE-PENSION-FACTOR", Number::USAGE_COMP_1, Number::SIGN_SIGNED, 0, 0},
      {"PE-INDEX-FACTOR", Number::USAGE_COMP_2, Number::SIGN_SIGNED, 0, 0},
      {"PE-ANNUITY", Number::USAGE_EXTERNAL_FLOAT, Number::SIGN_SIGNED, 7, 4},
      {"PE-MICRO-RATE", Number::USAGE_DISPLAY, Number::SIGN_NONE, 7, 7},
      {"PE-COUNTER", Number::USAGE_COMP_X, Number::SIGN_NONE, 3, 0},
  };
  for (const auto& row : numbers) {
    auto& number = item<Number>(*pay, std::string("PAY-ELEMENTS.") + row.name);
    CHECK(number.getUsage() == row.usage);
    CHECK(number.getSign() == row.sign);
    CHECK(number.getDigits() == row.digits);
    CHECK(number.getAlignment() == row.alignment);
  }
  CHECK(item<Number>(*pay, "EMPLOYEE.EMP-DATES.EMP-LEFT").getUsage() == Number::USAGE_COMP_6);
}

// From one interface of an object to another, and to none that it has not.
void walkCasts(const Places& places) {
  const auto deposits = program(places, "DEPINT01");
  const auto motor = program(places, "MOTPREM");
  const auto pay = program(places, "PAYSLIP");
  const auto at = [&](const char* path) -> as::IElement* { return &item(*pay, path); };

  as::IElement* const root = deposits.get();
  CHECK(as::interface_cast<as::IProgram>(root) == deposits.get());
  CHECK(as::interface_cast<as::IElement>(deposits.get()) == root);
  CHECK(as::interface_cast<as::IList>(root) == nullptr);
  CHECK(as::interface_cast<as::IService>(root) == nullptr);
  CHECK(root->RTTI_cast(root->RTTI_vinfo()) != nullptr);

  as::IElement* const file = deposits->getFileSection()->getItem(0);
  CHECK(as::interface_cast<as::IFD>(file) != nullptr);
  CHECK(as::interface_cast<as::IProperty>(file) == nullptr);
  as::IElement* const property = deposits->getProperties()->getItem(0);
  CHECK(as::interface_cast<as::IProperty>(property) != nullptr);
  CHECK(as::interface_cast<as::IFD>(property) == nullptr);
  as::IElement* const entryPoint = motor->getEntryPoints()->getItem(0);
  CHECK(as::interface_cast<as::IEntryPoint>(entryPoint) != nullptr);
  CHECK(as::interface_cast<as::IList>(entryPoint) != nullptr);
  CHECK(as::interface_cast<as::ICondition>(entryPoint) == nullptr);
  as::IElement* const linkage = as::interface_cast<as::IEntryPoint>(entryPoint)->getItem(0);
  CHECK(as::interface_cast<as::ILinkageItem>(linkage) != nullptr);
  CHECK(as::interface_cast<as::IDataItem>(linkage) == nullptr);

  as::IElement* const group = at("EMPLOYEE");
  CHECK(as::interface_cast<as::IGroup>(group) != nullptr);
  CHECK(as::interface_cast<as::IDataItem>(group) != nullptr);
  CHECK(as::interface_cast<as::INumeric>(group) == nullptr);
  as::IElement* const numeric = at("EMPLOYEE.EMP-MARITAL");
  CHECK(as::interface_cast<as::INumeric>(numeric) != nullptr);
  CHECK(as::interface_cast<as::IGroup>(numeric) == nullptr);
  as::IElement* const condition = item(*pay, "EMPLOYEE.EMP-MARITAL").getConditions()->getItem(2);
  CHECK(as::interface_cast<as::ICondition>(condition) != nullptr);
  CHECK(as::interface_cast<as::IList>(condition) != nullptr);
  as::IElement* const value = as::interface_cast<as::ICondition>(condition)->getItem(0);
  CHECK(as::interface_cast<as::IConditionValue>(value) != nullptr);
  CHECK(as::interface_cast<as::ICondition>(value) == nullptr);
  as::IElement* const text = at("EMPLOYEE.EMP-PERMIT");
  CHECK(as::interface_cast<as::IAlphanumeric>(text) != nullptr);
  CHECK(as::interface_cast<as::INational>(text) == nullptr);
  as::IElement* const national = at("EMPLOYEE.EMP-NAME.EMP-SURNAME");
  CHECK(as::interface_cast<as::INational>(national) != nullptr);
  CHECK(as::interface_cast<as::IAlphanumeric>(national) == nullptr);
  as::IElement* const edited = at("SLIP-LINES.SL-HEAD.SL-MONTH");
  CHECK(as::interface_cast<as::INumericEdited>(edited) != nullptr);
  CHECK(as::interface_cast<as::INumeric>(edited) == nullptr);

  // Kinds that only their data type tells, and one that no dictionary holds.
  for (const char* const path :
       {"SESSION.SES-CALLBACK", "SESSION.SES-CURSOR", "SESSION.SES-FORM"}) {
    CHECK(as::interface_cast<as::IDataItem>(at(path)) != nullptr);
    CHECK(as::interface_cast<as::IPointer>(at(path)) == nullptr);
    CHECK(as::interface_cast<as::IIndex>(at(path)) == nullptr);
    CHECK(as::interface_cast<as::IObject>(at(path)) == nullptr);
    CHECK(as::interface_cast<as::IAlphanumericEdited>(at(path)) == nullptr);
  }
}

}  // namespace walk
