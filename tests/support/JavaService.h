// A small program's dictionary, and Java services for it.
#ifndef TESTS_SUPPORT_JAVASERVICE_H_
#define TESTS_SUPPORT_JAVASERVICE_H_

#include <string>

#include "support/Dictionary.h"

namespace test {

// The root of a Java service document around `content`.
inline std::string javaService(const std::string& attributes, const std::string& content) {
  const std::string ns = as::namespaces::java.uri;
  return "<service xmlns=\"" + ns +
         "\" xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\" xsi:schemaLocation=\"" + ns +
         " " + ns + "\" " + attributes + ">" + content + "</service>";
}

// A service with the root attributes of one for payProgram() in PAY.xml.
inline std::string payService(const std::string& content) {
  return javaService(
      "name='Pay' implementation='java' programName='PAYROLL' dataDictFilename='PAY.xml'", content);
}

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

}  // namespace test

#endif  // TESTS_SUPPORT_JAVASERVICE_H_
