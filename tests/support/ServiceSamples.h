// Services of every flavour that hold a little of everything.
#ifndef TESTS_SUPPORT_SERVICESAMPLES_H_
#define TESTS_SUPPORT_SERVICESAMPLES_H_

#include <array>
#include <ostream>
#include <string>

#include "support/Documents.h"
#include "support/Flavours.h"
#include "support/XmlText.h"

namespace test {

// A flavour, with something of its own for every place in a document.
struct ServiceSample {
  Flavour flavour;
  const char* operation;     // Attributes of an operation ...
  const char* parameter;     // ... of a parameter ...
  const char* field;         // ... and of a field.
  const char* inParameter;   // Content of a parameter.
  const char* inOperation;   // What stands behind the parameters of an operation.
  const char* emptyContent;  // The same without anything in it.
};

inline void PrintTo(const ServiceSample& sample, std::ostream* out) {
  *out << sample.flavour.label;
}

namespace samples {

inline constexpr ServiceSample java = {flavours::java,
                                       R"(transactionType="requiresNew")",
                                       R"(dataType="BigDecimal")",
                                       R"(dataType="byteArray")",
                                       "",
                                       "",
                                       ""};

inline constexpr ServiceSample web = {
    flavours::web,
    R"(style="rpc" inputUse="literal" outputUse="encoded" inputNamespace="urn:in" )"
    R"(outputNamespace="urn:out")",
    R"(dataType="unsignedByte" namespace="urn:p" elementForm="qualified" )"
    R"(attributeForm="unqualified")",
    R"(dataType="Array" namespace="urn:f" elementForm="unqualified")",
    R"(<fieldAttribute name="fa" dataType="string" occurs="1"><mappings><mapping item="RC"/>)"
    R"(</mappings></fieldAttribute><fieldAttribute/>)",
    R"(<fault namespace="urn:fault" use="encoded"/><header byType="out" namespace="urn:header" )"
    R"(use="literal"><parameters><parameter name="hp" dataType="UInt16"/></parameters></header>)"
    R"(<fault><parameters><parameter name="fp" ref="BASE"/></parameters></fault><header/>)",
    "<header/><fault/>"};

inline constexpr ServiceSample com = {flavours::com,
                                      "",
                                      R"(dataType="currency" returnParameter="True")",
                                      R"(dataType="object")",
                                      "",
                                      "",
                                      ""};

inline constexpr ServiceSample dotNet = {
    flavours::dotNet, "", R"(dataType="UInt16")", R"(dataType="SByte")", "", "", ""};

inline constexpr std::array<ServiceSample, 4> all = {java, web, com, dotNet};

}  // namespace samples

// The attributes of the root.
inline std::string attributesOf(const ServiceSample& sample) {
  return declarations(sample.flavour.own.uri) + " implementation=\"" + sample.flavour.word + "\"";
}

inline std::string rootOf(const ServiceSample& sample, const std::string& content,
                          const std::string& attributes = "name=\"Pay\"") {
  return "<service " + attributesOf(sample) + " " + attributes + ">" + content + "</service>";
}

// A little of everything that the root can hold, without blanks between.
inline std::string everything(const ServiceSample& sample) {
  std::string content = R"xml(
<properties><property name="a" value="1"/><property name="b"/></properties>
<parameterTypeDefs>
<parameter name="BASE" occurs="3" byType="out" @parameter>
<mappings><mapping item="REQ.LINE.CELL(2,*)" subscript="1,*"/></mappings>
<field name="f" occurs="2" @field><mappings><mapping item="$stdin"/></mappings><field name="g"/></field>
@inParameter</parameter>
<parameter name="NODE"><field name="next" ref="NODE"/></parameter>
<parameter name="DERIVED" ref="BASE"/>
<parameter name="A" ref="B"/><parameter name="B" ref="A"/>
</parameterTypeDefs>
<operations>
<operation name="op" entryPoint="PAY" exitPoints="4294967295" @operation>
<hiddenParameters>
<hiddenParameter item="RC" value="7"/>
<hiddenParameter item="REQ.LINE.AMOUNT(1)" subscript="*" value=""/>
</hiddenParameters>
<parameters>
<parameter name="p" occurs="-1" byType="in" @parameter>
<mappings><mapping item="REQ.TITLE"/><mapping/></mappings>
<field name="q" @field/>
</parameter>
<parameter name="r" ref="BASE" byType="io"/>
<parameter name="s" ref="DERIVED"/>
<parameter name="t" ref="NODE"/>
<parameter ref="MISSING"><field name="lost"/></parameter>
</parameters>
@inOperation</operation>
<operation/>
</operations>
)xml";
  const struct {
    const char* mark;
    const char* text;
  } parts[] = {{"\n", ""},
               {"@inParameter", sample.inParameter},
               {"@inOperation", sample.inOperation},
               {"@parameter", sample.parameter},
               {"@field", sample.field},
               {"@operation", sample.operation},
               {" >", ">"},
               {" />", "/>"}};
  for (const auto& part : parts) content = replaced(std::move(content), part.mark, part.text);
  return content;
}

}  // namespace test

#endif  // TESTS_SUPPORT_SERVICESAMPLES_H_
