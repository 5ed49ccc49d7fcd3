#include "Documents.h"

#include "as/Namespaces.h"

namespace bench {

const Flavour java = {"java", as::namespaces::java.uri, as::namespaces::java.schemaFile,
                      " transactionType=\"requires\"", 0};
const Flavour web = {"ws", as::namespaces::ws.uri, as::namespaces::ws.schemaFile,
                     " style=\"rpc\" inputUse=\"literal\" outputUse=\"literal\""
                     " inputNamespace=\"urn:in\" outputNamespace=\"urn:out\"",
                     2};

namespace {

constexpr int parametersOfAnOperation = 10;
constexpr int fieldsOfARecord = 9;

std::string rootOf(const std::string& element, const std::string& ns) {
  return "<" + element + " xmlns=\"" + ns +
         "\" xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\" xsi:schemaLocation=\"" + ns +
         " " + ns + "\" name=\"BENCH\"";
}

std::string record(long number) {
  const std::string n = std::to_string(number);
  const std::string name = "RECORD-" + n;
  std::string text =
      "<group name=\"" + name + "\" length=\"83\" offset=\"0\" line=\"" + n + "\">\n";
  text += "  <numeric name=\"KEY\" picture=\"9(8)\" length=\"8\" digits=\"8\" offset=\"0\"/>\n";
  for (int field = 0; field < 4; field++) {
    text += "  <alphanumeric name=\"FIELD-" + std::to_string(field) +
            "\" picture=\"X(10)\" length=\"10\" offset=\"" + std::to_string(8 + 10 * field) +
            "\"/>\n";
  }
  text +=
      "  <national name=\"TITLE\" picture=\"N(10)\" length=\"20\" offset=\"48\"/>\n"
      "  <numericEdited name=\"SHOWN\" picture=\"Z(6)9.99\" length=\"10\" digits=\"9\" "
      "alignment=\"2\" offset=\"68\" blankWhenZero=\"true\"/>\n"
      "  <numeric name=\"STATE\" picture=\"9\" length=\"1\" digits=\"1\" offset=\"78\">\n"
      "    <numericCondition name=\"CLOSED\"><numericConstant value=\"9\"/>"
      "</numericCondition>\n  </numeric>\n"
      "  <numeric name=\"AMOUNT\" picture=\"S9(7)V99\" usage=\"comp-3\" sign=\"true\" "
      "length=\"5\" digits=\"9\" alignment=\"2\" minOccurs=\"1\" maxOccurs=\"10\" ";
  if (number % 10 == 0) text += "odo=\"" + name + ".STATE\" ";
  return text + "offset=\"79\"/>\n</group>\n";
}

std::string parameter(const std::string& name, const std::string& item) {
  return "<parameter name=\"" + name +
         "\" byType=\"in\" dataType=\"int\"><mappings><mapping item=\"" + item +
         "\"/></mappings></parameter>";
}

std::string fieldOf(const std::string& record, int field) {
  return "RECORD-" + record + ".FIELD-" + std::to_string(field);
}

std::string serviceRoot(const Flavour& flavour, const std::string& dictionary) {
  return rootOf("service", flavour.ns) + " implementation=\"" + flavour.word +
         "\" dataDictFilename=\"" + dictionary + "\"><operations>\n";
}

}  // namespace

std::string dictionary(long items) {
  std::string text = rootOf("program", as::namespaces::dd.uri) + ">\n<dataItems>\n";
  for (long i = 0; i < items / (1 + fieldsOfARecord); i++) text += record(i);
  return text + "</dataItems>\n</program>\n";
}

std::string flatDictionary(long items) {
  std::string text = rootOf("program", as::namespaces::dd.uri) + ">\n<dataItems>\n";
  for (long i = 0; i < items; i++) {
    text += "<numeric name=\"ITEM-" + std::to_string(i) + "\" length=\"4\" digits=\"4\"/>\n";
  }
  return text + "</dataItems>\n</program>\n";
}

std::string recordsAndEntries(long records) {
  std::string text = rootOf("program", as::namespaces::dd.uri) + "><dataItems>";
  for (long r = 0; r < records; r++) {
    text += "<group name=\"RECORD-" + std::to_string(r) + "\">";
    for (int f = 0; f < fieldsOfARecord; f++) {
      text += "<numeric name=\"FIELD-" + std::to_string(f) + "\" length=\"4\" digits=\"4\"/>";
    }
    text += "</group>\n";
  }
  text += "</dataItems><entryPoints>";
  for (long r = 0; r < records; r++)
    text += "<entryPoint name=\"ENTRY-" + std::to_string(r) + "\"/>";
  return text + "</entryPoints></program>";
}

int mappingsOf(const Flavour& flavour) { return parametersOfAnOperation + flavour.messages; }

std::string service(const Flavour& flavour, long operations, const std::string& dictionary) {
  std::string text = serviceRoot(flavour, dictionary);
  for (long o = 0; o < operations; o++) {
    const std::string n = std::to_string(o);
    text += "<operation name=\"operation" + n + "\" entryPoint=\"ENTRY-" + n + "\"" +
            flavour.operationAttributes + "><parameters>";
    for (int p = 0; p < parametersOfAnOperation; p++) {
      text += parameter("parameter" + std::to_string(p), fieldOf(n, p % fieldsOfARecord));
    }
    text += "</parameters>";
    for (int m = 0; m < flavour.messages; m++) {
      const std::string element = m % 2 == 0 ? "header" : "fault";
      text += "<" + element + " namespace=\"urn:" + element + "\" use=\"literal\"><parameters>" +
              parameter(element, fieldOf(n, m)) + "</parameters></" + element + ">";
    }
    text += "</operation>\n";
  }
  return text + "</operations></service>";
}

std::string spreadMappings(long mappings, long items, const std::string& dictionary) {
  std::string text = serviceRoot(java, dictionary) +
                     "<operation name=\"operation\" entryPoint=\"ENTRY\"" +
                     java.operationAttributes + "><parameters>\n";
  for (long m = 0; m < mappings; m++) {
    text +=
        parameter("parameter" + std::to_string(m), "ITEM-" + std::to_string(m * items / mappings)) +
        "\n";
  }
  return text + "</parameters></operation></operations></service>";
}

}  // namespace bench
