// What generators make of Web services of a small program, and snippets of such services.
#ifndef TESTS_SUPPORT_GENERATEDWEB_H_
#define TESTS_SUPPORT_GENERATEDWEB_H_

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

#include "support/Documents.h"
#include "support/Generated.h"
#include "support/Json.h"

namespace test {

namespace web {

// Two tables have counters of their own.
inline const char* const program = R"xml(<dataItems>
<group name="R" offset="0" length="78" linkage="true">
 <numeric name="STATE" offset="0" length="1" picture="9" digits="1">
  <numericCondition name="LOW"><numericRange from="1" to="3"/></numericCondition></numeric>
 <alphanumeric name="NAME" offset="1" length="8" picture="X(8)"/>
 <numeric name="AMOUNT" offset="9" length="7" picture="S9(5)V99" sign="true" digits="7" alignment="2">
  <numericCondition name="NOTHING"><numericConstant value="ZERO"/></numericCondition></numeric>
 <numeric name="N" offset="16" length="2" picture="9(4)" usage="comp-5" digits="4"/>
 <numeric name="M" offset="18" length="2" picture="9(4)" usage="comp-5" digits="4"/>
 <group name="FIRST" offset="20" length="5" minOccurs="1" maxOccurs="4" odo="R.N">
  <alphanumeric name="CODE" offset="20" length="2" picture="X(2)"/>
  <numeric name="CELL" offset="22" length="1" picture="9" digits="1" minOccurs="3" maxOccurs="3"/>
 </group>
 <alphanumeric name="SECOND" offset="40" length="2" picture="X(2)" minOccurs="2" maxOccurs="4" odo="R.M"/>
 <numeric name="CODED" offset="48" length="1" picture="9" digits="1">
  <numericCondition name="YES"><numericConstant value="1"/></numericCondition>
  <numericCondition name="NO"><numericConstant value="+2"/></numericCondition></numeric>
 <alphanumeric name="OTHER" offset="48" length="8" picture="X(8)"/>
 <alphanumeric name="THIRD" offset="68" length="2" picture="X(2)" minOccurs="2" maxOccurs="4" odo="R.NONE"/>
 <group name="GROUP" offset="56" length="12"><alphanumeric name="PART" offset="56" length="12" picture="X(12)"/></group>
</group></dataItems>
<entryPoints><entryPoint name="T"><parameter dataItem="R" byType="reference"/></entryPoint></entryPoints>)xml";

inline std::string mapped(const std::string& item, const std::string& subscript = "") {
  return "<mappings><mapping item='R." + item + "'" +
         (subscript.empty() ? "" : " subscript='" + subscript + "'") + "/></mappings>";
}

inline std::string parameter(const std::string& attributes,
                             const std::string& content = mapped("NAME")) {
  return element("parameter", content, attributes);
}

inline std::string field(const std::string& attributes,
                         const std::string& content = mapped("NAME")) {
  return element("field", content, attributes);
}

inline std::string attribute(const std::string& attributes,
                             const std::string& content = mapped("NAME")) {
  return element("fieldAttribute", content, attributes);
}

inline std::string message(
    const std::string& kind, const std::string& parameters,
    const std::string& attributes = "namespace='urn:message' use='literal'") {
  return element(kind, element("parameters", parameters), attributes);
}

inline const std::string rpc =
    " style='rpc' inputUse='literal' outputUse='literal' inputNamespace='urn:in' "
    "outputNamespace='urn:out'";
inline const std::string document =
    " style='document' inputUse='literal' outputUse='literal' inputNamespace='urn:in' "
    "outputNamespace='urn:out'";
inline const std::string in = " byType='in' dataType='string'";
inline const std::string out = " byType='out' dataType='string'";

struct Service {
  std::string operations;
  std::string types{};
  std::string attributes = "name='Tests'";
  std::string properties{};
  // The rules that a comment of the document switches off.
  std::vector<const char*> withoutRules{};
  // New .NET services stand in the namespace of Web services.
  const char* implementation = "ws";
};

inline std::string operation(const std::string& name, const std::string& parameters,
                             const std::string& messages = "",
                             const std::string& attributes = rpc) {
  return element("operation", element("parameters", parameters) + messages,
                 "name='" + name + "' entryPoint='T'" + attributes);
}

}  // namespace web

class GenerateWebTest : public GenerateTest {
 protected:
  toolkit::Generated made(const std::string& kind, const web::Service& service,
                          const toolkit::GenerateOptions& options = {}) const {
    write("p.xml", dictionary(web::program));
    std::string text;
    for (const char* const rule : service.withoutRules) {
      text += std::string("<!-- lint: off ") + rule + " -->";
    }
    text += webService(service.attributes + " implementation='" + service.implementation +
                           "' programName='PAYROLL' dataDictFilename='p.xml'",
                       element("properties", service.properties) +
                           element("parameterTypeDefs", service.types) +
                           element("operations", service.operations));
    write("s.xml", text);
    return toolkit::generateFrom(reader(), *toolkit::findGeneratorKind(kind), {"s.xml"}, options);
  }

  // All files, one behind the other.
  static std::string allOf(const toolkit::Generated& made) {
    std::string text;
    for (const toolkit::GeneratedFile& file : made.files) text += file.content;
    EXPECT_FALSE(text.empty()) << testing::PrintToString(textsOf(made.findings));
    return text;
  }
  std::string text(const std::string& kind, const web::Service& service,
                   const std::map<std::string, std::string>& values = {}) const {
    return allOf(made(kind, service, optionsOf(values)));
  }
  std::string text(const std::string& kind, const std::string& operations) const {
    return text(kind, web::Service{operations});
  }
  nlohmann::json openApi(const web::Service& service,
                         const std::map<std::string, std::string>& values = {}) const {
    return parsedJson(text("openapi", service, values));
  }

  static toolkit::GenerateOptions optionsOf(const std::map<std::string, std::string>& values) {
    toolkit::GenerateOptions options;
    for (const auto& [name, value] : values) options.values[name] = value;
    return options;
  }
};

}  // namespace test

#endif  // TESTS_SUPPORT_GENERATEDWEB_H_
