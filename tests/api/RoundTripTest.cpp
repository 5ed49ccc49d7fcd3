// Tests of writing services and reading them back: nothing of the model may get lost or change on
// the way, whatever the document looks like, and writing again must change nothing more.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <ostream>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "as/AgentServices.h"
#include "support/Dictionary.h"
#include "support/JavaService.h"
#include "support/ModelText.h"
#include "support/TempDirectory.h"

namespace {

using test::itemOf;
using test::modelText;
using test::QualifiedNames;
using test::TempDirectory;
using testing::IsEmpty;

constexpr char failure[] = "AgentServices: An error occurred serializing the XML to file ";

// Reading and writing.

test::Outcome<as::IService> outcomeOf(const std::string& document, bool loadProgram) {
  return test::outcomeOf([&] {
    return test::newServices()->parseService(
        "service.xml", reinterpret_cast<const unsigned char*>(document.data()),
        static_cast<unsigned int>(document.size()), loadProgram);
  });
}

// The service; a standard exception, which tests tell more of, when there is none.
std::unique_ptr<as::IService> parse(const std::string& document, bool loadProgram = false) {
  auto outcome = outcomeOf(document, loadProgram);
  if (!outcome.root) throw std::runtime_error(outcome.text + "\n" + document.substr(0, 5000));
  return std::move(outcome.root);
}

std::string written(as::IService& service) {
  return as::CAgentServicesFactory::SerializeToString(&service);
}

std::string contentOf(const std::string& file) {
  std::ifstream in(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

// The flavours, each with something of its own.

struct Flavour {
  const char* label;
  std::string xmlns;
  const char* schemaFile;
  const char* word;
  const char* operation;     // Attributes of an operation ...
  const char* parameter;     // ... of a parameter ...
  const char* field;         // ... and of a field.
  const char* inParameter;   // Content of a parameter.
  const char* inOperation;   // What stands behind the parameters of an operation.
  const char* emptyContent;  // The same without anything in it.
};

void PrintTo(const Flavour& flavour, std::ostream* out) { *out << flavour.label; }

const std::string schemas = "http://agentservices.example/schema/";

const Flavour flavours[] = {
    {"Java", schemas + "java/v2.0/vorjava.xsd", "vorjava.xsd", "java",
     R"(transactionType="requiresNew")", R"(dataType="BigDecimal")", R"(dataType="byteArray")", "",
     "", ""},
    {"Web", schemas + "ws/v1.0/vorws.xsd", "vorws.xsd", "ws",
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
     "<header/><fault/>"},
    {"COM", schemas + "com/v1.0/vorcom.xsd", "vorcom.xsd", "com", "",
     R"(dataType="currency" returnParameter="True")", R"(dataType="object")", "", "", ""},
    {"DotNet", schemas + "dotnet/v1.0/vordotnet.xsd", "vordotnet.xsd", "dotnet", "",
     R"(dataType="UInt16")", R"(dataType="SByte")", "", "", ""},
};

// The documents.

std::string attributesOf(const Flavour& flavour, const std::string& schemaLocation = "") {
  return "xmlns=\"" + flavour.xmlns +
         "\" xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\" xsi:schemaLocation=\"" +
         (schemaLocation.empty() ? flavour.xmlns + " " + flavour.xmlns : schemaLocation) +
         "\" implementation=\"" + flavour.word + "\"";
}

std::string rootOf(const Flavour& flavour, const std::string& content,
                   const std::string& attributes = "name=\"Pay\"") {
  return "<service " + attributesOf(flavour) + " " + attributes + ">" + content + "</service>";
}

std::string replaced(std::string text, const std::string& from, const std::string& to) {
  for (std::size_t at = text.find(from); at != std::string::npos; at = text.find(from, at)) {
    text.replace(at, from.size(), to);
    at += to.size();
  }
  return text;
}

// A little of everything that a document of the flavour can hold, without blanks between.
std::string everything(const Flavour& flavour) {
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
               {"@inParameter", flavour.inParameter},
               {"@inOperation", flavour.inOperation},
               {"@parameter", flavour.parameter},
               {"@field", flavour.field},
               {"@operation", flavour.operation},
               {" >", ">"},
               {" />", "/>"}};
  for (const auto& part : parts) content = replaced(std::move(content), part.mark, part.text);
  return content;
}

// Every element under `prefix`.
std::string prefixed(const std::string& xml, const std::string& prefix) {
  std::string result;
  for (std::size_t i = 0; i < xml.size(); i++) {
    result += xml[i];
    const bool isTag = xml[i] == '<' || (xml[i] == '/' && i > 0 && xml[i - 1] == '<');
    if (isTag && i + 1 < xml.size() && std::isalpha(static_cast<unsigned char>(xml[i + 1])) != 0) {
      result += prefix;
    }
  }
  return result;
}

// With comments and processing instructions between all tags, and around the root.
std::string commented(const std::string& xml) {
  static const char* const nodes[] = {"<!-- plain -->",
                                      "<?target with data?>",
                                      "<!--\xC3\xA4 <service> & \"-' \xF0\x9F\x98\x80-->",
                                      "<?t?>",
                                      "<!---->",
                                      "<?t <a b=\"c\"> & \xE4\xB8\xAD?>"};
  std::string result = "<!-- before --><?before it?>";
  std::size_t count = 0;
  for (const char c : xml) {
    result += c;
    if (c == '>') result += nodes[count++ % std::size(nodes)];
  }
  return result + "<!-- behind --><?behind it?>";
}

// Each tag on a line of its own.
std::string onLines(const std::string& xml, const std::string& lineEnd) {
  return replaced(xml, "><", ">" + lineEnd + "   <");
}

std::vector<std::uint32_t> codePoints(const std::string& utf8) {
  std::vector<std::uint32_t> points;
  for (const char c : utf8) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte < 0x80U) {
      points.push_back(byte);
    } else if (byte < 0xC0U) {
      points.back() = points.back() << 6U | (byte & 0x3FU);
    } else {
      points.push_back(byte < 0xE0U ? byte & 0x1FU : byte < 0xF0U ? byte & 0x0FU : byte & 0x07U);
    }
  }
  return points;
}

std::string utf16(const std::string& utf8, bool bigEndian) {
  std::string result;
  const auto put = [&](std::uint32_t unit) {
    const char high = static_cast<char>(unit >> 8U);
    const char low = static_cast<char>(unit & 0xFFU);
    result += bigEndian ? high : low;
    result += bigEndian ? low : high;
  };
  put(0xFEFFU);
  for (const std::uint32_t point : codePoints(utf8)) {
    if (point < 0x10000U) {
      put(point);
    } else {
      put(0xD800U + ((point - 0x10000U) >> 10U));
      put(0xDC00U + ((point - 0x10000U) & 0x3FFU));
    }
  }
  return result;
}

std::string latin1(const std::string& utf8) {
  std::string result;
  for (const std::uint32_t point : codePoints(utf8)) result += static_cast<char>(point);
  return result;
}

std::string repeated(const std::string& text, int count) {
  std::string result;
  for (int i = 0; i < count; i++) result += text;
  return result;
}

std::string large(const Flavour& flavour) {
  std::string definitions;
  std::string operations;
  for (int i = 0; i < 200; i++) {
    const std::string number = std::to_string(i);
    definitions += "<parameter name=\"T" + number + "\" occurs=\"" + number + "\" " +
                   flavour.parameter + "><mappings><mapping item=\"REQ.LINE.CELL(" + number +
                   ",*)\" subscript=\"*," + number + "\"/></mappings>" +
                   repeated("<field name=\"n" + number + "\" " + flavour.field + ">", 5) +
                   repeated("</field>", 5) + flavour.inParameter + "</parameter>";
    operations += "<operation name=\"op" + number + "\" exitPoints=\"" + number + "\" " +
                  flavour.operation + "><hiddenParameters><hiddenParameter item=\"RC\" value=\"" +
                  number + "\"/></hiddenParameters><parameters><parameter name=\"p\" ref=\"T" +
                  number + "\"/><parameter name=\"q\"><field name=\"r\" ref=\"T" + number +
                  "\"/></parameter></parameters>" + (i % 10 == 0 ? flavour.inOperation : "") +
                  "</operation>";
  }
  // What flavours put into an operation refers to it.
  definitions += "<parameter name=\"BASE\"/>";
  return rootOf(flavour, "<parameterTypeDefs>" + definitions + "</parameterTypeDefs><operations>" +
                             operations + "</operations>");
}

// A service with this text, as it stands, in attributes of every kind of element.
std::string texts(const Flavour& flavour, const std::string& text) {
  const std::string value = "=\"" + text + "\"";
  return rootOf(
      flavour,
      "<properties><property name" + value + " value" + value +
          "/></properties><parameterTypeDefs><parameter name" + value + "><field name" + value +
          "/></parameter></parameterTypeDefs><operations><operation name" + value + " entryPoint" +
          value + "><hiddenParameters><hiddenParameter item=\"RC\" value" + value +
          "/></hiddenParameters><parameters><parameter ref" + value + "/><parameter name" + value +
          "><mappings><mapping item" + value + "/></mappings></parameter></parameters>" +
          flavour.inOperation + "</operation></operations>",
      "name" + value + " programName" + value + " dataDictFilename" + value + " exitProgramName" +
          value);
}

const std::string umlauts = "\xC3\xA4\xC3\xB6\xC3\xBC\xC3\x9F \xC3\x84\xC3\xA9";
const std::string foreign = umlauts +
                            " \xE4\xB8\xAD\xE6\x96\x87 \xF0\x9F\x98\x80\xF0\x9F\x8F\xBD "  // Pairs.
                            "e\xCC\x81 \xD7\xA9\xD7\x9C \xE0\xB8\x97\xE0\xB8\xB5\xE0\xB9\x88 "
                            "\xEE\x80\x80 \xF4\x8F\xBF\xBD \xEF\xBB\xBF|";

struct Kind {
  const char* label;
  bool inEveryFlavour;
  std::string (*source)(const Flavour& flavour);
  std::string (*encode)(const std::string& source);  // Null for UTF-8.
  const char* prefix = "";
};

std::string declared(const std::string& encoding, const std::string& rest) {
  return "<?xml version=\"1.0\" encoding=\"" + encoding + "\"?>" + rest;
}

const Kind kinds[] = {
    {"Small", false,
     [](const Flavour& f) {
       return rootOf(f, "<operations><operation name=\"op\"/></operations>");
     },
     nullptr},
    {"Everything", true, [](const Flavour& f) { return rootOf(f, everything(f)); }, nullptr},
    {"Empty", false, [](const Flavour& f) { return "<service " + attributesOf(f) + "/>"; },
     nullptr},
    {"EmptyWithAnEndTag", false, [](const Flavour& f) { return rootOf(f, ""); }, nullptr},
    {"EmptySections", true,
     [](const Flavour& f) {
       return rootOf(f,
                     "<properties/><parameterTypeDefs></parameterTypeDefs><operations>"
                     "<operation><hiddenParameters/><parameters></parameters>" +
                         std::string(f.emptyContent) +
                         "</operation><operation name=\"\"><parameters><parameter><mappings/>"
                         "<field/></parameter></parameters></operation></operations>");
     },
     nullptr},
    {"Large", true, large, nullptr},
    {"Deep", false,
     [](const Flavour& f) {
       return rootOf(f, "<operations><operation><parameters><parameter>" +
                            repeated("<field name=\"f\">", 200) + repeated("</field>", 200) +
                            "</parameter></parameters></operation></operations>");
     },
     nullptr},
    {"Prefixed", true,
     [](const Flavour& f) {
       return replaced(prefixed(rootOf(f, everything(f)), "p:"), "xmlns=", "xmlns:p=");
     },
     nullptr, "p:"},
    {"PrefixedWithForeignLetters", false,
     [](const Flavour& f) {
       return replaced(prefixed(rootOf(f, everything(f)), "pr\xC3\xA4-1.\xE4\xB8\xAD:"),
                       "xmlns=", "xmlns:pr\xC3\xA4-1.\xE4\xB8\xAD=");
     },
     nullptr, "pr\xC3\xA4-1.\xE4\xB8\xAD:"},
    {"PrefixedBesideADefault", false,
     [](const Flavour& f) {
       return replaced(prefixed(rootOf(f, everything(f)), "p:"),
                       "xmlns=", "xmlns=\"urn:other\" xmlns:p=");
     },
     nullptr, "p:"},
    {"PrefixedEmpty", false,
     [](const Flavour& f) {
       return replaced(prefixed("<service " + attributesOf(f) + "/>", "p:"), "xmlns=", "xmlns:p=");
     },
     nullptr, "p:"},
    {"PrefixedCommented", false,
     [](const Flavour& f) {
       return commented(replaced(prefixed(rootOf(f, everything(f)), "p:"), "xmlns=", "xmlns:p="));
     },
     nullptr, "p:"},
    {"DeclaredAnewInside", false,
     [](const Flavour& f) {
       return replaced(
           replaced(rootOf(f, "<properties xmlns:u='urn:unused'><property name='a'/></properties>" +
                                  prefixed("<operations><operation/></operations>", "q:")),
                    "<q:operations>",
                    "<q:operations xmlns:q='" + f.xmlns + "' xmlns='" + f.xmlns + "'>"),
           "<service ", "<service xmlns:w='urn:unused too' ");
     },
     nullptr},
    {"InstanceNamespaceUnderAnotherName", false,
     [](const Flavour& f) { return replaced(rootOf(f, everything(f)), "xsi", "instance"); },
     nullptr},
    {"TwoSchemas", true,
     [](const Flavour& f) {
       return replaced(rootOf(f, everything(f)), "xsi:schemaLocation=\"",
                       "xsi:schemaLocation=\"" + schemas + "service/v2.0/vorservice.xsd " +
                           schemas + "service/v2.0/vorservice.xsd ");
     },
     nullptr},
    {"TwoSchemasByFileNameOnLines", false,
     [](const Flavour& f) {
       return "<service " +
              attributesOf(f, "\n  " + f.xmlns + "\t" + f.schemaFile + "\n  " + schemas +
                                  "service/v2.0/vorservice.xsd\r\n\tvorservice.xsd\n") +
              ">" + everything(f) + "</service>";
     },
     nullptr},
    {"Commented", true, [](const Flavour& f) { return commented(rootOf(f, everything(f))); },
     nullptr},
    {"CommentedOnLines", false,
     [](const Flavour& f) { return onLines(commented(rootOf(f, everything(f))), "\n"); }, nullptr},
    {"NothingButComments", false,
     [](const Flavour& f) {
       return rootOf(f, "<operations><?o o?><!-- o --></operations><!-- s -->");
     },
     nullptr},
    {"CommentsInElementsThatHoldNothing", true,
     [](const Flavour& f) {
       return rootOf(f,
                     "<properties><property name='a'><!-- p --></property></properties>"
                     "<operations><operation><hiddenParameters><hiddenParameter><?h?>"
                     "</hiddenParameter></hiddenParameters><parameters><parameter><mappings>"
                     "<mapping><!-- m --><?m?></mapping></mappings></parameter></parameters>"
                     "</operation></operations>");
     },
     nullptr},
    {"ForeignLetters", true, [](const Flavour& f) { return texts(f, foreign); }, nullptr},
    {"ManyForeignLetters", false,
     [](const Flavour& f) {
       // However the text is cut into blocks, some pair lies across.
       return texts(f, "-" + repeated("\xF0\x9F\x98\x80", 20001) + "-" +
                           repeated("\xF0\x9F\x98\x80", 20001));
     },
     nullptr},
    {"Utf8WithMark", false, [](const Flavour& f) { return texts(f, foreign); },
     [](const std::string& source) { return "\xEF\xBB\xBF" + source; }},
    {"Utf8WithMarkDeclared", false,
     [](const Flavour& f) { return declared("UTF-8", texts(f, foreign)); },
     [](const std::string& source) { return "\xEF\xBB\xBF" + source; }},
    {"Utf16LittleEndian", false,
     [](const Flavour& f) { return declared("UTF-16", texts(f, foreign)); },
     [](const std::string& source) { return utf16(source, false); }},
    {"Utf16BigEndian", false,
     [](const Flavour& f) { return declared("UTF-16", commented(texts(f, foreign))); },
     [](const std::string& source) { return utf16(source, true); }},
    {"Utf16Prefixed", false,
     [](const Flavour& f) {
       return declared("UTF-16", replaced(prefixed(rootOf(f, everything(f)), "\xE4\xB8\xAD:"),
                                          "xmlns=", "xmlns:\xE4\xB8\xAD="));
     },
     [](const std::string& source) { return utf16(source, true); }, "\xE4\xB8\xAD:"},
    {"Latin1", false, [](const Flavour& f) { return declared("ISO-8859-1", texts(f, umlauts)); },
     latin1},
    {"Ascii", false,
     [](const Flavour& f) {
       return declared("US-ASCII", texts(f, "&#xE4;&#228;&#x4E2D;&#x1F600;e&#x301;&#x10FFFD;"));
     },
     nullptr},
    {"Entities", false,
     [](const Flavour& f) {
       return "<!DOCTYPE service [<!ENTITY who 'M&#xFC;ller &amp; &#38;#60;S\"&#38;#246;hne&gt;'>"
              "<!ENTITY all '&who;, &who;'><!ENTITY none ''><!ENTITY blank '\n '>"
              "<!ENTITY op '<operation name=\"&all;\"/>'>]>" +
              rootOf(f,
                     "<operations>&blank;&op;&none;<operation name=\"&all;&none;\"/>&op;&op;"
                     "<!-- &op; --></operations>",
                     "name=\"&who;\" programName=\"&none;\" exitProgramName=\"a&blank;b\"");
     },
     nullptr},
    {"DoctypeAmongComments", false,
     [](const Flavour& f) {
       return declared("UTF-8", "<!-- one -->\n<!DOCTYPE service [<!ENTITY e 'x'>]><?two 2?>" +
                                    rootOf(f, everything(f), "name=\"&e;\""));
     },
     nullptr},
    {"StandaloneYes", false,
     [](const Flavour& f) {
       return "<?xml version='1.0' encoding='utf-8' standalone='yes'?>" + rootOf(f, everything(f));
     },
     nullptr},
    {"StandaloneNo", false,
     [](const Flavour& f) {
       return "<?xml version=\"1.0\" standalone=\"no\"?>\n" + rootOf(f, everything(f));
     },
     nullptr},
    {"Version11", false,
     [](const Flavour& f) {
       return "<?xml version='1.1'?>\n" + texts(f, umlauts + " &#x85;&#x2028;&#10;");
     },
     nullptr},
    {"WindowsLineEnds", false,
     [](const Flavour& f) {
       return onLines(commented(rootOf(f, everything(f))) + "<!-- two\nlines -->", "\r\n") + "\r\n";
     },
     nullptr},
    {"OldMacLineEnds", false,
     [](const Flavour& f) { return onLines(rootOf(f, everything(f)), "\r"); }, nullptr},
    {"LinesInTags", false,
     [](const Flavour& f) {
       return replaced(replaced(onLines(rootOf(f, everything(f)), "\n"), " name=", "\r\n\tname= "),
                       "/>", "\n/>");
     },
     nullptr},
    {"OddBlanks", false,
     [](const Flavour& f) {
       return rootOf(
           f,
           " <properties>\t\t<property name=\"a\"/>\n\n\n<property name=\"b\"/></properties>"
           "\n<operations>&#32;<operation/>&#10;&#9;<operation><parameters>\n"
           "<parameter> <field/><field> </field>\t<field>\n</field></parameter></parameters>"
           " </operation>  <operation> <parameters/></operation><operation><parameters/> "
           "</operation></operations>\n\n \t");
     },
     nullptr},
    {"BlanksBeforeTheEndOnly", false,
     [](const Flavour& f) {
       return rootOf(f,
                     "<operations><operation/><operation><parameters><parameter/>"
                     "<parameter/></parameters>\n</operation></operations>");
     },
     nullptr},
    {"BlanksBehindTheStartOnly", false,
     [](const Flavour& f) {
       return rootOf(f,
                     "\n<operations>\n<operation>\n<parameters>\n<parameter/></parameters>"
                     "</operation></operations>");
     },
     nullptr},
    {"ControlCharacters", false,
     [](const Flavour& f) {
       return texts(f, "&#9;a&#10;b&#13;c&#13;&#10;d&#x7F;&#x80;&#x85;&#x9F;&#xA0;&#x2028;&#13;");
     },
     nullptr},
    {"RawLineEndsInValues", false, [](const Flavour& f) { return texts(f, "a\tb\nc\r\nd\re  f "); },
     nullptr},
    {"BlanksAroundValues", false, [](const Flavour& f) { return texts(f, "  a  b   "); }, nullptr},
    {"Markup", false,
     [](const Flavour& f) {
       return texts(f,
                    "&lt;a&gt; & b='c' d=&quot;e&quot; &apos; ]]> --> ?> /> &amp;lt; &amp;amp; "
                    "&amp;#13; &lt;!-- &lt;![CDATA[ %pe; {$x} \\n");
     },
     nullptr},
    {"QuotesOfBothKinds", false,
     [](const Flavour& f) { return replaced(texts(f, "it&apos;s"), "=\"", " = \""); }, nullptr},
};

// A kind of document in a flavour: what the tests run over. Made up when its test runs.
struct Document {
  const Kind* kind;
  const Flavour* flavour;

  std::string label() const { return std::string(kind->label) + flavour->label; }
  std::string prefix() const { return kind->prefix; }
  // In UTF-8.
  std::string source() const {
    // An ampersand by itself, as the rows have it for the reader's sake, is none in XML.
    return replaced(kind->source(*flavour), "& b", "&amp; b");
  }
  // In the document's own encoding.
  std::string bytes() const { return kind->encode == nullptr ? source() : kind->encode(source()); }
};

void PrintTo(const Document& document, std::ostream* out) { *out << document.label(); }

std::string labelOf(const testing::TestParamInfo<Document>& row) { return row.param.label(); }

std::vector<Document> documentsThat(bool (*holds)(const Kind& kind)) {
  std::vector<Document> result;
  for (const Kind& kind : kinds) {
    for (const Flavour& flavour : flavours) {
      const bool isWanted = kind.inEveryFlavour || &flavour == &flavours[0];
      if (isWanted && holds(kind)) result.push_back({&kind, &flavour});
    }
  }
  return result;
}

std::vector<Document> documents() {
  return documentsThat([](const Kind& /*kind*/) { return true; });
}

std::vector<Document> prefixedDocuments() {
  return documentsThat([](const Kind& kind) { return *kind.prefix != 0; });
}

// What a text in XML holds.

// The comments and processing instructions, in document order.
std::vector<std::string> commentsOf(const std::string& xml) {
  const std::string text = replaced(replaced(xml, "\r\n", "\n"), "\r", "\n");
  std::vector<std::string> result;
  for (std::size_t at = text.find('<'); at != std::string::npos; at = text.find('<', at + 1)) {
    std::size_t end = std::string::npos;
    if (text.compare(at, 4, "<!--") == 0) end = text.find("-->", at + 4);
    if (text.compare(at, 2, "<?") == 0) end = text.find("?>", at) - 1;
    if (end >= text.size()) continue;
    if (text.compare(at, 6, "<?xml ") != 0) result.push_back(text.substr(at, end + 3 - at));
    at = end;
  }
  return result;
}

// The namespace declarations as name=value, sorted.
std::vector<std::string> declarationsOf(const std::string& xml) {
  std::vector<std::string> result;
  for (std::size_t at = xml.find("xmlns"); at != std::string::npos; at = xml.find("xmlns", at)) {
    const std::size_t quote = xml.find_first_of("\"'", at);
    const std::size_t end = xml.find(xml[quote], quote + 1);
    result.push_back(xml.substr(at, xml.find_first_of(" =", at) - at) + "=" +
                     xml.substr(quote + 1, end - quote - 1));
    at = end;
  }
  std::sort(result.begin(), result.end());
  return result;
}

// The names of the elements that do not begin with `prefix`.
std::vector<std::string> elementsWithout(const std::string& prefix, const std::string& xml) {
  std::vector<std::string> result;
  for (std::size_t at = xml.find('<'); at != std::string::npos; at = xml.find('<', at + 1)) {
    for (const char* const other : {"!--", "?"}) {
      if (xml.compare(at + 1, std::string(other).size(), other) != 0) continue;
      at = xml.find(*other == '!' ? "-->" : "?>", at);
    }
    if (xml[at] != '<') continue;
    const std::size_t start = at + (xml[at + 1] == '/' ? 2 : 1);
    if (xml.compare(start, prefix.size(), prefix) != 0) {
      result.push_back(xml.substr(start, xml.find_first_of(" />\n", start) - start));
    }
  }
  return result;
}

// Editing.

// A program to bind to and map to; nothing but names of it gets into a document.
as::IProgram& program() {
  static const std::unique_ptr<as::IProgram> parsed = test::parse(test::payProgram());
  return *parsed;
}

as::IDataItem* amount() {
  auto* const record = test::topItem<as::IGroup>(program(), 1);
  auto* const line = itemOf<as::IGroup>(record->getChildren(), 2);
  return itemOf<as::IDataItem>(line->getChildren(), 0);
}

void setTypes(as::IField& field) {
  if (auto* const java = as::interface_cast<as::IJavaField>(&field)) {
    java->setType(as::IJavaField::JAVA_BIG_INTEGER);
  }
  if (auto* const com = as::interface_cast<as::ICOMParameter>(&field)) {
    com->setType(as::ICOMField::COM_DATE);
    com->setReturnParameter(true);
  }
  if (auto* const dotNet = as::interface_cast<as::IDotNETField>(&field)) {
    dotNet->setType(as::IDotNETField::NET_DECIMAL);
  }
  if (auto* const web = as::interface_cast<as::IWSParameter>(&field)) {
    web->setType(as::IWSField::WS_XML);
    web->setNamespace("urn:set <&>");
    web->setElementForm(as::IWSField::FORM_QUALIFIED);
    web->setAttributeForm(as::IWSField::FORM_UNQUALIFIED);
  }
}

// Changes the field and adds to it; not its name, by which others may refer to it.
void edit(as::IField& field) {
  field.setOccurs(7);
  setTypes(field);
  // What is added beside a reference is not read back.
  if (!field.getAttributeValue("ref").empty()) return;
  field.addMapping(amount());
  as::IField* const added = field.addField("added \"field\" \xE4\xB8\xAD", 2);
  setTypes(*added);
  added->addField("inner", 0)->addMapping(test::topItem<as::IDataItem>(program(), 2));
  if (auto* const web = as::interface_cast<as::IWSField>(&field)) {
    as::IWSParameter* const attribute = web->addFieldAttribute("added attribute");
    setTypes(*attribute);
    attribute->addMapping(amount());
  }
}

void editAll(as::IList& parameters) {
  for (int i = 0; i < parameters.getLength(); i++) edit(*itemOf<as::IField>(&parameters, i));
}

template <class Part>
void edit(Part& part, typename Part::USE use) {
  part.setNamespace("urn:part");
  part.setUse(use);
  part.addParameter(as::IParameter::BY_IN, "added", 1);
  editAll(*part.getParameters());
}

void edit(as::IOperation& operation) {
  operation.setName("renamed <\xC3\xB6>");
  operation.setExitPoints(3);
  operation.setEntryPoint(itemOf<as::IEntryPoint>(program().getEntryPoints(), 0));
  as::IHiddenParameter* const hidden = operation.addHiddenParameter(nullptr, nullptr);
  hidden->setDataItem(amount());
  hidden->setValue("a\r\n\tb & \"c\"");
  operation.addParameter(as::IParameter::BY_OUT, "added parameter", -2);
  for (int i = 0; i < operation.getParameters()->getLength(); i++) {
    itemOf<as::IField>(operation.getParameters(), i)->setName("renamed");
  }
  editAll(*operation.getParameters());
  if (auto* const java = as::interface_cast<as::IJavaOperation>(&operation)) {
    java->setTransactionType(as::IJavaOperation::TRANS_MANDATORY);
  }
  if (auto* const web = as::interface_cast<as::IWSOperation>(&operation)) {
    web->setStyle(as::IWSOperation::STYLE_DOCUMENT);
    web->setInputUse(as::IWSOperation::USE_ENCODED);
    web->setOutputUse(as::IWSOperation::USE_LITERAL);
    web->setInputNamespace("urn:set in");
    web->setOutputNamespace("");
    web->addHeader(as::IWSHeader::BY_OUT);
    web->addFault();
    for (int i = 0; i < web->getHeaders()->getLength(); i++) {
      edit(*itemOf<as::IWSHeader>(web->getHeaders(), i), as::IWSHeader::USE_LITERAL);
    }
    for (int i = 0; i < web->getFaults()->getLength(); i++) {
      edit(*itemOf<as::IWSFault>(web->getFaults(), i), as::IWSFault::USE_ENCODED);
    }
  }
}

// Changes something of everything and adds one of everything.
void edit(as::IService& service) {
  service.setName("edited");
  service.setExitProgramName("EXIT \xF0\x9F\x98\x80");
  service.setDDFilename("other/dictionary.xml");
  editAll(*service.getParameterTypeDefs());
  service.addOperation("added", nullptr);
  for (int i = 0; i < service.getOperations()->getLength(); i++) {
    edit(*itemOf<as::IOperation>(service.getOperations(), i));
  }
  service.addOperation("added last", itemOf<as::IEntryPoint>(program().getEntryPoints(), 0));
}

// Unedited.

class RoundTrip : public testing::TestWithParam<Document> {
 protected:
  // What the tree declares and tells beside the model must be in `text` as in the source.
  static void expectDeclarationsAndComments(const std::string& text) {
    const std::string source = GetParam().source();
    const std::vector<std::string> declarations = declarationsOf(text);
    EXPECT_EQ(declarations, declarationsOf(source));
    EXPECT_THAT(declarations, testing::Not(testing::Contains("xmlns=")));
    EXPECT_EQ(commentsOf(text), commentsOf(source));
  }

  const std::unique_ptr<as::IService> service_ = parse(GetParam().bytes());
};

TEST_P(RoundTrip, GivesTheSameModel) {
  const std::string before = modelText(*service_);
  const std::string text = written(*service_);
  EXPECT_EQ(modelText(*service_), before) << "writing leaves the model as it was";
  EXPECT_EQ(modelText(*parse(text)), before);
}

TEST_P(RoundTrip, WritesTheSameEveryTimeAndOnceReadBack) {
  const std::string once = written(*service_);
  EXPECT_EQ(written(*service_), once);
  EXPECT_EQ(written(*service_), once);
  const auto again = parse(once);
  EXPECT_EQ(written(*again), once);
}

TEST_P(RoundTrip, KeepsNamespacesCommentsAndInstructions) {
  expectDeclarationsAndComments(written(*service_));
}

TEST_P(RoundTrip, ThroughAFileIsTheSame) {
  const TempDirectory directory;
  const std::string file = directory.path() + "/service.xml";
  as::CAgentServicesFactory::Serialize(service_.get(), file.c_str());
  EXPECT_EQ(contentOf(file), written(*service_));
  const auto outcome =
      test::outcomeOf([&] { return test::newServices()->parseService(file.c_str(), false); });
  ASSERT_EQ(outcome.result, test::Result::root) << outcome.text;
  EXPECT_EQ(modelText(*outcome.root), modelText(*service_));
}

INSTANTIATE_TEST_SUITE_P(Documents, RoundTrip, testing::ValuesIn(documents()), labelOf);

// Edited.

class EditedRoundTrip : public RoundTrip {
 protected:
  EditedRoundTrip() { edit(*service_); }

  // The text of a model for comparing one that was edited with one that was read.
  static std::string comparable(as::IService& service) {
    return modelText(service,
                     GetParam().prefix().empty() ? QualifiedNames::shown : QualifiedNames::leftOut);
  }
};

TEST_P(EditedRoundTrip, GivesTheSameModel) {
  const auto again = parse(written(*service_));
  EXPECT_EQ(comparable(*again), comparable(*service_));
}

TEST_P(EditedRoundTrip, WritesTheSameEveryTimeAndOnceReadBack) {
  const std::string once = written(*service_);
  EXPECT_EQ(written(*service_), once);
  const auto again = parse(once);
  EXPECT_EQ(written(*again), once);
}

TEST_P(EditedRoundTrip, KeepsNamespacesCommentsAndInstructions) {
  expectDeclarationsAndComments(written(*service_));
}

// What was laid out already is taken apart by what is added, and laid out anew.
TEST_P(EditedRoundTrip, GivesTheSameModelWhenWrittenBeforeToo) {
  const auto other = parse(GetParam().bytes());
  written(*other);
  edit(*other);
  EXPECT_EQ(modelText(*other), modelText(*service_));
  const std::string once = written(*other);
  const auto again = parse(once);
  EXPECT_EQ(comparable(*again), comparable(*service_));
  EXPECT_EQ(written(*again), once);
}

// What was read back can be gone on with like what was edited first.
TEST_P(EditedRoundTrip, GivesTheSameModelWhenEditedAgain) {
  const auto again = parse(written(*service_));
  edit(*service_);
  edit(*again);
  const std::string expected = comparable(*service_);
  EXPECT_EQ(comparable(*again), expected);
  EXPECT_EQ(comparable(*parse(written(*again))), expected);
}

INSTANTIATE_TEST_SUITE_P(Documents, EditedRoundTrip, testing::ValuesIn(documents()), labelOf);

class PrefixedRoundTrip : public EditedRoundTrip {};

TEST_P(PrefixedRoundTrip, WritesEveryElementUnderThePrefix) {
  EXPECT_THAT(elementsWithout(GetParam().prefix(), written(*service_)), IsEmpty());
}

TEST_P(PrefixedRoundTrip, DoesNotPrefixAttributes) {
  EXPECT_EQ(written(*service_).find(" " + GetParam().prefix()), std::string::npos);
}

INSTANTIATE_TEST_SUITE_P(Documents, PrefixedRoundTrip, testing::ValuesIn(prefixedDocuments()),
                         labelOf);

// Within a part of a document the root's own declaration may be hidden by another: what is added
// there must be read back all the same.
TEST(NewElements, AreReadBackWhereTheRootsDeclarationIsHidden) {
  const std::string& ns = flavours[0].xmlns;
  const struct {
    const char* label;
    std::string prefix;
    std::string hiding;
  } rows[] = {
      {"default", "", "xmlns='urn:other' xmlns:q='" + ns + "'"},
      {"prefix", "p:", "xmlns:p='urn:other' xmlns:q='" + ns + "'"},
      {"prefix beside a default",
       "p:", "xmlns:p='urn:other' xmlns='" + ns + "' xmlns:q='" + ns + "'"},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.label);
    std::string document = prefixed(rootOf(flavours[0], ""), row.prefix);
    if (!row.prefix.empty()) document = replaced(document, "xmlns=", "xmlns:p=");
    document.insert(document.find("</"),
                    "<q:operations " + row.hiding + "><q:operation name='op'/></q:operations>");
    const auto service = parse(document);
    edit(*service);
    const std::string before = modelText(*service, QualifiedNames::leftOut);
    const std::string text = written(*service);
    const auto outcome = outcomeOf(text, false);
    EXPECT_EQ(outcome.result, test::Result::root) << outcome.text << '\n' << text;
    if (!outcome.root) continue;
    EXPECT_EQ(modelText(*outcome.root, QualifiedNames::leftOut), before);
  }
}

// The texts that models are compared by.

TEST(ModelText, TellsDocumentsApart) {
  const auto textOf = [](const std::string& document) { return modelText(*parse(document)); };
  for (const Flavour& flavour : flavours) {
    SCOPED_TRACE(flavour.label);
    const std::string document = rootOf(flavour, everything(flavour));
    const std::string text = textOf(document);
    // Every attribute, one by one, by itself.
    int tried = 0;
    for (std::size_t at = document.find(" name=\"Pay\""); at != std::string::npos;
         at = document.find(" ", at + 1)) {
      const std::size_t quote = document.find('"', at);
      const std::size_t end = document.find('"', quote + 1) + 1;
      if (document.compare(at, 7, " value=") == 0 && end == quote + 2) continue;  // Reads the same.
      const std::string without = document.substr(0, at) + document.substr(end);
      // Not shown beside a reference that leads nowhere.
      if (document.compare(at, 12, " name=\"lost\"") == 0) continue;
      // A property must have its name.
      if (document.rfind("<property", at) + 9 == at && document[at + 1] == 'n') continue;
      SCOPED_TRACE(document.substr(at, end - at));
      EXPECT_NE(textOf(without), text);
      tried++;
    }
    EXPECT_GT(tried, 40);
  }
}

TEST(ModelText, TellsTheFlavoursApart) {
  std::vector<std::string> all;
  for (const Flavour& flavour : flavours) {
    const std::string empty =
        rootOf(flavour,
               "<operations><operation><parameters><parameter/></parameters></operation>"
               "</operations>");
    const std::string text = modelText(
        *parse(replaced(empty, std::string(" implementation=\"") + flavour.word + "\"", "")));
    EXPECT_THAT(all, testing::Not(testing::Contains(text))) << flavour.label;
    all.push_back(text);
  }
}

// With a program, and new.

class RoundTripWithProgram : public testing::TestWithParam<Flavour> {
 protected:
  std::unique_ptr<as::IService> load(const std::string& document) const {
    return parse(document, true);
  }
  // The service, written with the way to its dictionary instead of the bare name.
  std::string writtenToLoad(as::IService& service) const {
    const std::string name = service.getDDFilename();
    service.setDDFilename(dictionary_.c_str());
    std::string text = written(service);
    service.setDDFilename(name.c_str());
    return text;
  }

  const TempDirectory directory_;
  const std::string dictionary_ = directory_.write("PAY.xml", test::payProgram());
  const std::unique_ptr<as::IService> service_ =
      load(rootOf(GetParam(), everything(GetParam()), "dataDictFilename=\"" + dictionary_ + "\""));
};

TEST_P(RoundTripWithProgram, FindsTheSameEntryPointsAndItems) {
  const std::string text = modelText(*service_);
  for (const char* const line : {"entry point \"PAY\"\n", "bound to \"PAY\"\n",
                                 "data item \"REQ/LINE/CELL\"\n", "data item \"REQ/TITLE\"\n"}) {
    EXPECT_THAT(text, testing::HasSubstr(line));
  }
  EXPECT_EQ(modelText(*load(writtenToLoad(*service_))), text);
}

TEST_P(RoundTripWithProgram, FindsTheSameOnceEdited) {
  edit(*service_);
  service_->setDDFilename("PAY.xml");
  const std::string text = modelText(*service_);
  EXPECT_THAT(text, testing::HasSubstr("data item \"REQ/LINE/AMOUNT\"\n"));
  EXPECT_EQ(modelText(*load(writtenToLoad(*service_))), text);
}

INSTANTIATE_TEST_SUITE_P(Flavours, RoundTripWithProgram, testing::ValuesIn(flavours),
                         [](const auto& row) { return row.param.label; });

// .NET is left out: such a service is read back as a Web service.
TEST(NewServiceRoundTrip, GivesTheSameModel) {
  using Factory = as::CAgentServicesFactory;
  const TempDirectory directory;
  const std::string dictionary = directory.write("PAY.xml", test::payProgram());
  const struct {
    const char* label;
    as::IService* (*make)(as::IProgram*);
  } rows[] = {
      {"Web", [](as::IProgram* made) -> as::IService* { return Factory::NewWebService(made); }},
      {"COM", Factory::NewCOMService},
      {"Java", Factory::NewJavaService},
  };
  for (const auto& row : rows) {
    for (const bool isEdited : {false, true}) {
      SCOPED_TRACE(std::string(row.label) + (isEdited ? " edited" : " empty"));
      const std::unique_ptr<as::IService> service(
          row.make(test::parse(test::payProgram(), "PAY.xml").release()));
      if (isEdited) edit(*service);
      service->setDDFilename(dictionary.c_str());
      const std::string once = written(*service);
      EXPECT_EQ(written(*service), once);
      const auto again = parse(once, true);
      service->setDDFilename("PAY.xml");
      EXPECT_EQ(modelText(*again), modelText(*service));
      again->setDDFilename(dictionary.c_str());
      EXPECT_EQ(written(*again), once);
    }
  }
}

// The form that writes a file.

TEST(SerializeToFile, ReplacesWhatTheFileHeld) {
  const TempDirectory directory;
  const std::string file = directory.write("service.xml", std::string(1000000, '?'));
  const auto service = parse(rootOf(flavours[0], everything(flavours[0])));
  as::CAgentServicesFactory::Serialize(service.get(), file.c_str());
  EXPECT_EQ(contentOf(file), written(*service));
}

TEST(SerializeToFile, TakesFilesOfAnyName) {
  const TempDirectory directory;
  const auto service = parse(rootOf(flavours[0], ""));
  for (const char* const name : {"plain", "with blank.xml", "Pr\xC3\xA4mie.xml", "a%20b&c.xml"}) {
    const std::string file = directory.path() + "/" + name;
    as::CAgentServicesFactory::Serialize(service.get(), file.c_str());
    EXPECT_EQ(contentOf(file), written(*service)) << name;
  }
}

TEST(SerializeToFile, ThatCannotBeOpenedIsPassedOver) {
  const TempDirectory directory;
  const auto service = parse(rootOf(flavours[0], everything(flavours[0])));
  const std::string before = modelText(*service);
  for (const std::string& file :
       {directory.path(), directory.path() + "/no/such/file.xml", std::string()}) {
    EXPECT_NO_THROW(as::CAgentServicesFactory::Serialize(service.get(), file.c_str())) << file;
  }
  EXPECT_NO_THROW(as::CAgentServicesFactory::Serialize(service.get(), nullptr));
  EXPECT_TRUE(std::filesystem::is_empty(directory.path()));
  EXPECT_EQ(modelText(*service), before);
}

// What cannot be written.

struct Setter {
  const char* label;
  void (*set)(as::IService& service, const char* text);
  std::string (*get)(as::IService& service);
};

void PrintTo(const Setter& setter, std::ostream* out) { *out << setter.label; }

as::IWSOperation* operationOf(as::IService& service) {
  return itemOf<as::IWSOperation>(service.getOperations(), 0);
}

as::IWSParameter* parameterOf(as::IService& service) {
  return itemOf<as::IWSParameter>(operationOf(service)->getParameters(), 0);
}

as::IHiddenParameter* hiddenOf(as::IService& service) {
  return itemOf<as::IHiddenParameter>(operationOf(service)->getHiddenParameters(), 0);
}

as::IWSFault* faultOf(as::IService& service) {
  return itemOf<as::IWSFault>(operationOf(service)->getFaults(), 0);
}

const Setter setters[] = {
    {"ServiceName", [](as::IService& s, const char* text) { s.setName(text); },
     [](as::IService& s) { return s.getName(); }},
    {"Dictionary", [](as::IService& s, const char* text) { s.setDDFilename(text); },
     [](as::IService& s) { return s.getDDFilename(); }},
    {"ExitProgram", [](as::IService& s, const char* text) { s.setExitProgramName(text); },
     [](as::IService& s) { return s.getExitProgramName(); }},
    {"OperationName", [](as::IService& s, const char* text) { operationOf(s)->setName(text); },
     [](as::IService& s) { return operationOf(s)->getName(); }},
    {"InputNamespace",
     [](as::IService& s, const char* text) { operationOf(s)->setInputNamespace(text); },
     [](as::IService& s) { return operationOf(s)->getInputNamespace(); }},
    {"ParameterName", [](as::IService& s, const char* text) { parameterOf(s)->setName(text); },
     [](as::IService& s) { return parameterOf(s)->getName(); }},
    {"ParameterNamespace",
     [](as::IService& s, const char* text) { parameterOf(s)->setNamespace(text); },
     [](as::IService& s) { return parameterOf(s)->getNamespace(); }},
    {"HiddenValue", [](as::IService& s, const char* text) { hiddenOf(s)->setValue(text); },
     [](as::IService& s) { return hiddenOf(s)->getValue(); }},
    {"FaultNamespace", [](as::IService& s, const char* text) { faultOf(s)->setNamespace(text); },
     [](as::IService& s) { return faultOf(s)->getNamespace(); }},
};

class CharactersOfNoDocument : public testing::TestWithParam<Setter> {
 protected:
  // The text of the exception that writing ends in; empty when it ends in none.
  static std::string failureOf(as::IService& service) {
    try {
      written(service);
    } catch (const as::CASException& exception) {
      return exception.getErrorText();
    }
    return "";
  }

  std::vector<std::string> texts() const {
    std::vector<std::string> result = {"\xEF\xBF\xBE", "\xEF\xBF\xBF", "a\x0B", "<\x1F>"};
    for (char c = 1; c < ' '; c++) {
      if (c != '\t' && c != '\n' && c != '\r') result.push_back(std::string("x") + c + "y");
    }
    return result;
  }

  const std::unique_ptr<as::IService> service_ =
      parse(rootOf(flavours[1], everything(flavours[1])));
};

TEST_P(CharactersOfNoDocument, AreNotWritten) {
  for (const std::string& text : texts()) {
    GetParam().set(*service_, text.c_str());
    EXPECT_EQ(failureOf(*service_), failure) << testing::PrintToString(text);
  }
}

TEST_P(CharactersOfNoDocument, LeaveTheModelReadable) {
  for (const std::string& text : texts()) {
    GetParam().set(*service_, text.c_str());
    const std::string before = modelText(*service_);
    failureOf(*service_);
    EXPECT_EQ(GetParam().get(*service_), text);
    EXPECT_EQ(modelText(*service_), before);
  }
}

TEST_P(CharactersOfNoDocument, CanBeReplaced) {
  const auto untouched = parse(rootOf(flavours[1], everything(flavours[1])));
  GetParam().set(*service_, "good");
  GetParam().set(*untouched, "good");
  GetParam().set(*service_, "\x01");
  EXPECT_EQ(failureOf(*service_), failure);
  GetParam().set(*service_, "good");
  EXPECT_EQ(failureOf(*service_), "");
  EXPECT_EQ(modelText(*parse(written(*service_))), modelText(*untouched));
  EXPECT_EQ(written(*service_), written(*untouched));
}

TEST_P(CharactersOfNoDocument, LeaveTheFileAlone) {
  const TempDirectory directory;
  const std::string file = directory.write("there.xml", "as before");
  const std::string none = directory.path() + "/none.xml";
  GetParam().set(*service_, "\x01");
  for (const std::string& name : {file, none}) {
    try {
      as::CAgentServicesFactory::Serialize(service_.get(), name.c_str());
      ADD_FAILURE() << name;
    } catch (const as::CASException& exception) {
      EXPECT_EQ(exception.getErrorText(), failure + name);
    }
  }
  EXPECT_EQ(contentOf(file), "as before");
  EXPECT_FALSE(std::filesystem::exists(none));
}

INSTANTIATE_TEST_SUITE_P(Setters, CharactersOfNoDocument, testing::ValuesIn(setters),
                         [](const auto& row) { return row.param.label; });

// XML 1.1 has references to characters that XML 1.0, which is written, has no way to hold.
TEST(Version11, ControlCharactersAreReadButNotWritten) {
  const auto service = parse("<?xml version='1.1'?>" + rootOf(flavours[0], "", "name=\"a&#1;b\""));
  EXPECT_EQ(service->getName(),
            "a\x01"
            "b");
  EXPECT_THROW(written(*service), as::CASException);
  service->setName("ab");
  EXPECT_EQ(parse(written(*service))->getName(), "ab");
}

TEST(SerializeNothing, IsAFailure) {
  const TempDirectory directory;
  const std::string file = directory.path() + "/service.xml";
  try {
    as::CAgentServicesFactory::Serialize(nullptr, file.c_str());
    ADD_FAILURE();
  } catch (const as::CASException& exception) {
    EXPECT_EQ(exception.getErrorText(), failure + file);
  }
  EXPECT_FALSE(std::filesystem::exists(file));
  EXPECT_THROW(as::CAgentServicesFactory::SerializeToString(nullptr), as::CASException);
}

// A carriage return in a blank text has the elements around it laid out anew, each time that the
// document has been read: the layout grows, the model stays.
TEST(CarriageReturns, BetweenElementsGrowTheLayoutOnly) {
  const auto service =
      parse(rootOf(flavours[0],
                   "<operations>&#13;<operation name=\"a\"/><operation name=\"b\"/>&#13;"
                   "</operations>"));
  const std::string before = modelText(*service);
  const std::string once = written(*service);
  EXPECT_EQ(written(*service), once);
  const auto again = parse(once);
  EXPECT_EQ(modelText(*again), before);
  const std::string twice = written(*again);
  EXPECT_GT(twice.size(), once.size());
  EXPECT_EQ(modelText(*parse(twice)), before);
}

// Layout.

TEST(Layout, PutsEachElementOnALineOfItsOwn) {
  const auto service = parse(rootOf(flavours[0],
                                    "<operations><operation name=\"a\"><parameters><parameter/>"
                                    "</parameters></operation><!-- c --></operations>"));
  const std::string text = written(*service);
  EXPECT_THAT(text, testing::EndsWith("\">\n"
                                      "  <operations>\n"
                                      "    <operation name=\"a\">\n"
                                      "      <parameters>\n"
                                      "        <parameter/>\n"
                                      "      </parameters>\n"
                                      "    </operation>\n"
                                      "    <!-- c -->\n"
                                      "  </operations>\n"
                                      "</service>\n"));
  EXPECT_THAT(text, testing::StartsWith("<?xml version=\"1.0\" encoding=\"UTF-8\""));
}

TEST(Layout, ThatIsThereIsKept) {
  const std::string content =
      "\n <operations>\n\n     <operation name=\"a\">\t<parameters/> </operation>\n "
      "</operations>\n";
  const auto service = parse(rootOf(flavours[0], content));
  EXPECT_THAT(written(*service), testing::HasSubstr(content));
}

}  // namespace
