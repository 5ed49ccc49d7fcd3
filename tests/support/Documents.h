// The texts of documents for tests: roots with their declarations around snippets, and a small
// program with services for it.
#ifndef TESTS_SUPPORT_DOCUMENTS_H_
#define TESTS_SUPPORT_DOCUMENTS_H_

#include <string>
#include <vector>

#include "as/Namespaces.h"

namespace test {

// What the root of a document declares: its namespace `uri`, for elements without a prefix or for
// those under `prefix`, and with `schemaLocation` where the schema is.
inline std::string declarations(const std::string& uri, const std::string& schemaLocation,
                                const std::string& prefix = "") {
  return "xmlns" + (prefix.empty() ? "" : ":" + prefix) + "=\"" + uri +
         "\" xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\" xsi:schemaLocation=\"" +
         schemaLocation + "\"";
}

// The same with the schema in the directory that the library is told of.
inline std::string declarations(const std::string& uri) {
  return declarations(uri, uri + " " + uri);
}

inline std::string element(const std::string& name, const std::string& content,
                           const std::string& attributes = "") {
  return "<" + name + (attributes.empty() ? "" : " ") + attributes + ">" + content + "</" + name +
         ">";
}

// Dictionaries.

// The root around `content`.
inline std::string dictionary(const std::string& content) {
  return element("program", content, declarations(as::namespaces::dd.uri) + " name=\"PAYROLL\"");
}

// The root around top-level data items.
inline std::string dictionaryOf(const std::string& dataItems) {
  return dictionary("<dataItems>" + dataItems + "</dataItems>");
}

// A dictionary with an item, which names `schema` as that of its namespace.
inline std::string dictionaryWithHint(const std::string& schema) {
  const std::string uri = as::namespaces::dd.uri;
  return element("program", "<dataItems><numeric name=\"N\"/></dataItems>",
                 declarations(uri, uri + " " + schema) + " name=\"HINTED\"");
}

// A schema of the namespace `uri` that allows these elements, empty, as roots.
inline std::string schemaOfRoots(const std::string& uri, const std::vector<std::string>& roots) {
  std::string content;
  for (const std::string& root : roots) {
    content += "<xs:element name='" + root + "'><xs:complexType/></xs:element>";
  }
  return element("xs:schema", content,
                 "xmlns:xs='http://www.w3.org/2001/XMLSchema' targetNamespace='" + uri +
                     "' elementFormDefault='qualified'");
}

// Services.

// The root of a service of the flavour that the namespace `uri` is of, around `content`.
inline std::string serviceDocument(const std::string& uri, const std::string& attributes,
                                   const std::string& content) {
  return element("service", content, declarations(uri) + " " + attributes);
}

inline std::string javaService(const std::string& attributes, const std::string& content) {
  return serviceDocument(as::namespaces::java.uri, attributes, content);
}

inline std::string webService(const std::string& attributes, const std::string& content) {
  return serviceDocument(as::namespaces::ws.uri, attributes, content);
}

// A service for the program in `dictionaryFile` with one operation, "op", around `parameters`, and
// `definitions` of types.
inline std::string parameterDocument(const std::string& uri, const std::string& parameters,
                                     const std::string& definitions = "",
                                     const std::string& dictionaryFile = "PAY.xml") {
  return serviceDocument(uri, "dataDictFilename=\"" + dictionaryFile + "\"",
                         "<parameterTypeDefs>" + definitions +
                             "</parameterTypeDefs><operations><operation name=\"op\"><parameters>" +
                             parameters + "</parameters></operation></operations>");
}

// A small program.

inline std::string payProgram() {
  return dictionary(R"xml(
<dataItems>
<numeric name="WS-COUNT" offset="0" length="2" picture="9(4)" usage="comp" digits="4"/>
<group name="REQ" offset="0" length="40" linkage="true">
 <numeric name="ID" offset="0" length="4" picture="9(9)" usage="comp" digits="9"/>
 <alphanumeric name="TITLE" offset="4" length="10" picture="X(10)"/>
 <group name="LINE" offset="14" length="6" minOccurs="3" maxOccurs="3">
  <numeric name="AMOUNT" offset="14" length="5" picture="S9(7)V99" usage="comp-3" sign="true" digits="9" alignment="2"/>
  <numeric name="CELL" offset="19" length="1" picture="9" digits="1" minOccurs="2" maxOccurs="2"/>
 </group>
</group>
<numeric name="RC" offset="0" length="4" picture="S9(9)" usage="comp-5" sign="true" digits="9" linkage="true"/>
</dataItems>
<entryPoints><entryPoint name="PAY"><parameter dataItem="REQ" byType="reference"/><parameter dataItem="RC" byType="returning"/></entryPoint></entryPoints>)xml");
}

// A Java service for payProgram() in PAY.xml.
inline std::string payService(const std::string& content) {
  return javaService(
      "name='Pay' implementation='java' programName='PAYROLL' dataDictFilename='PAY.xml'", content);
}

}  // namespace test

#endif  // TESTS_SUPPORT_DOCUMENTS_H_
