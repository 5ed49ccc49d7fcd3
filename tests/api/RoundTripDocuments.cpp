#include "api/RoundTripDocuments.h"

#include <string>
#include <vector>

#include "support/Encodings.h"
#include "support/ServiceSamples.h"
#include "support/XmlText.h"

namespace {

using test::attributesOf;
using test::commented;
using test::encodingDeclaration;
using test::everything;
using test::latin1;
using test::onLines;
using test::prefixed;
using test::repeated;
using test::replaced;
using test::rootOf;
using test::ServiceSample;
using test::utf16;

std::string large(const ServiceSample& sample) {
  std::string definitions;
  std::string operations;
  for (int i = 0; i < 50; i++) {
    const std::string number = std::to_string(i);
    definitions += "<parameter name=\"T" + number + "\" occurs=\"" + number + "\" " +
                   sample.parameter + "><mappings><mapping item=\"REQ.LINE.CELL(" + number +
                   ",*)\" subscript=\"*," + number + "\"/></mappings>" +
                   repeated("<field name=\"n" + number + "\" " + sample.field + ">", 5) +
                   repeated("</field>", 5) + sample.inParameter + "</parameter>";
    operations += "<operation name=\"op" + number + "\" exitPoints=\"" + number + "\" " +
                  sample.operation + "><hiddenParameters><hiddenParameter item=\"RC\" value=\"" +
                  number + "\"/></hiddenParameters><parameters><parameter name=\"p\" ref=\"T" +
                  number + "\"/><parameter name=\"q\"><field name=\"r\" ref=\"T" + number +
                  "\"/></parameter></parameters>" + (i % 10 == 0 ? sample.inOperation : "") +
                  "</operation>";
  }
  // What flavours put into an operation refers to it.
  definitions += "<parameter name=\"BASE\"/>";
  return rootOf(sample, "<parameterTypeDefs>" + definitions + "</parameterTypeDefs><operations>" +
                            operations + "</operations>");
}

// A service with this text, as it stands, in attributes of every kind of element.
std::string texts(const ServiceSample& sample, const std::string& text) {
  const std::string value = "=\"" + text + "\"";
  return rootOf(
      sample,
      "<properties><property name" + value + " value" + value +
          "/></properties><parameterTypeDefs><parameter name" + value + "><field name" + value +
          "/></parameter></parameterTypeDefs><operations><operation name" + value + " entryPoint" +
          value + "><hiddenParameters><hiddenParameter item=\"RC\" value" + value +
          "/></hiddenParameters><parameters><parameter ref" + value + "/><parameter name" + value +
          "><mappings><mapping item" + value + "/></mappings></parameter></parameters>" +
          sample.inOperation + "</operation></operations>",
      "name" + value + " programName" + value + " dataDictFilename" + value + " exitProgramName" +
          value);
}

const std::string plain = as::namespaces::service.uri;
const std::string umlauts = "\xC3\xA4\xC3\xB6\xC3\xBC\xC3\x9F \xC3\x84\xC3\xA9";
const std::string foreign = umlauts +
                            " \xE4\xB8\xAD\xE6\x96\x87 \xF0\x9F\x98\x80\xF0\x9F\x8F\xBD "  // Pairs.
                            "e\xCC\x81 \xD7\xA9\xD7\x9C \xE0\xB8\x97\xE0\xB8\xB5\xE0\xB9\x88 "
                            "\xEE\x80\x80 \xF4\x8F\xBF\xBD \xEF\xBB\xBF|";

struct Kind {
  const char* label;
  bool inEveryFlavour;
  std::string (*source)(const ServiceSample& sample);
  std::string (*encode)(const std::string& source);  // Null for UTF-8.
  const char* prefix = "";
};

std::string declared(const std::string& encoding, const std::string& rest) {
  return encodingDeclaration(encoding) + rest;
}

const Kind kinds[] = {
    {"Small", false,
     [](const ServiceSample& s) {
       return rootOf(s, "<operations><operation name=\"op\"/></operations>");
     },
     nullptr},
    {"Everything", true, [](const ServiceSample& s) { return rootOf(s, everything(s)); }, nullptr},
    {"Empty", false, [](const ServiceSample& s) { return "<service " + attributesOf(s) + "/>"; },
     nullptr},
    {"EmptyWithAnEndTag", false, [](const ServiceSample& s) { return rootOf(s, ""); }, nullptr},
    {"EmptySections", true,
     [](const ServiceSample& s) {
       return rootOf(s,
                     "<properties/><parameterTypeDefs></parameterTypeDefs><operations>"
                     "<operation><hiddenParameters/><parameters></parameters>" +
                         std::string(s.emptyContent) +
                         "</operation><operation name=\"\"><parameters><parameter><mappings/>"
                         "<field/></parameter></parameters></operation></operations>");
     },
     nullptr},
    {"Large", true, large, nullptr},
    {"Deep", false,
     [](const ServiceSample& s) {
       return rootOf(s, "<operations><operation><parameters><parameter>" +
                            repeated("<field name=\"f\">", 200) + repeated("</field>", 200) +
                            "</parameter></parameters></operation></operations>");
     },
     nullptr},
    {"Prefixed", true,
     [](const ServiceSample& s) {
       return replaced(prefixed(rootOf(s, everything(s)), "p:"), "xmlns=", "xmlns:p=");
     },
     nullptr, "p:"},
    {"PrefixedWithForeignLetters", false,
     [](const ServiceSample& s) {
       return replaced(prefixed(rootOf(s, everything(s)), "pr\xC3\xA4-1.\xE4\xB8\xAD:"),
                       "xmlns=", "xmlns:pr\xC3\xA4-1.\xE4\xB8\xAD=");
     },
     nullptr, "pr\xC3\xA4-1.\xE4\xB8\xAD:"},
    {"PrefixedBesideADefault", false,
     [](const ServiceSample& s) {
       return replaced(prefixed(rootOf(s, everything(s)), "p:"),
                       "xmlns=", "xmlns=\"urn:other\" xmlns:p=");
     },
     nullptr, "p:"},
    {"PrefixedEmpty", false,
     [](const ServiceSample& s) {
       return replaced(prefixed("<service " + attributesOf(s) + "/>", "p:"), "xmlns=", "xmlns:p=");
     },
     nullptr, "p:"},
    {"PrefixedCommented", false,
     [](const ServiceSample& s) {
       return commented(replaced(prefixed(rootOf(s, everything(s)), "p:"), "xmlns=", "xmlns:p="));
     },
     nullptr, "p:"},
    {"DeclaredAnewInside", false,
     [](const ServiceSample& s) {
       const std::string own = s.flavour.own.uri;
       return replaced(
           replaced(rootOf(s, "<properties xmlns:u='urn:unused'><property name='a'/></properties>" +
                                  prefixed("<operations><operation/></operations>", "q:")),
                    "<q:operations>", "<q:operations xmlns:q='" + own + "' xmlns='" + own + "'>"),
           "<service ", "<service xmlns:w='urn:unused too' ");
     },
     nullptr},
    {"InstanceNamespaceUnderAnotherName", false,
     [](const ServiceSample& s) { return replaced(rootOf(s, everything(s)), "xsi", "instance"); },
     nullptr},
    {"TwoSchemas", true,
     [](const ServiceSample& s) {
       return replaced(rootOf(s, everything(s)), "xsi:schemaLocation=\"",
                       "xsi:schemaLocation=\"" + plain + " " + plain + " ");
     },
     nullptr},
    {"TwoSchemasByFileNameOnLines", false,
     [](const ServiceSample& s) {
       const std::string own = s.flavour.own.uri;
       return replaced(rootOf(s, everything(s)), own + " " + own,
                       "\n  " + own + "\t" + s.flavour.own.schemaFile + "\n  " + plain +
                           "\r\n\tvorservice.xsd\n");
     },
     nullptr},
    {"Commented", true, [](const ServiceSample& s) { return commented(rootOf(s, everything(s))); },
     nullptr},
    {"CommentedOnLines", false,
     [](const ServiceSample& s) { return onLines(commented(rootOf(s, everything(s))), "\n"); },
     nullptr},
    {"NothingButComments", false,
     [](const ServiceSample& s) {
       return rootOf(s, "<operations><?o o?><!-- o --></operations><!-- s -->");
     },
     nullptr},
    {"CommentsInElementsThatHoldNothing", true,
     [](const ServiceSample& s) {
       return rootOf(s,
                     "<properties><property name='a'><!-- p --></property></properties>"
                     "<operations><operation><hiddenParameters><hiddenParameter><?h?>"
                     "</hiddenParameter></hiddenParameters><parameters><parameter><mappings>"
                     "<mapping><!-- m --><?m?></mapping></mappings></parameter></parameters>"
                     "</operation></operations>");
     },
     nullptr},
    {"ForeignLetters", true, [](const ServiceSample& s) { return texts(s, foreign); }, nullptr},
    {"ManyForeignLetters", false,
     [](const ServiceSample& s) {
       // However the text is cut into blocks, some pair lies across.
       return texts(
           s, "-" + repeated("\xF0\x9F\x98\x80", 5001) + "-" + repeated("\xF0\x9F\x98\x80", 5001));
     },
     nullptr},
    {"Utf8WithMark", false, [](const ServiceSample& s) { return texts(s, foreign); },
     [](const std::string& source) { return "\xEF\xBB\xBF" + source; }},
    {"Utf8WithMarkDeclared", false,
     [](const ServiceSample& s) { return declared("UTF-8", texts(s, foreign)); },
     [](const std::string& source) { return "\xEF\xBB\xBF" + source; }},
    {"Utf16LittleEndian", false,
     [](const ServiceSample& s) { return declared("UTF-16", texts(s, foreign)); },
     [](const std::string& source) { return utf16(source, false); }},
    {"Utf16BigEndian", false,
     [](const ServiceSample& s) { return declared("UTF-16", commented(texts(s, foreign))); },
     [](const std::string& source) { return utf16(source, true); }},
    {"Utf16Prefixed", false,
     [](const ServiceSample& s) {
       return declared("UTF-16", replaced(prefixed(rootOf(s, everything(s)), "\xE4\xB8\xAD:"),
                                          "xmlns=", "xmlns:\xE4\xB8\xAD="));
     },
     [](const std::string& source) { return utf16(source, true); }, "\xE4\xB8\xAD:"},
    {"Latin1", false,
     [](const ServiceSample& s) { return declared("ISO-8859-1", texts(s, umlauts)); }, latin1},
    {"Ascii", false,
     [](const ServiceSample& s) {
       return declared("US-ASCII", texts(s, "&#xE4;&#228;&#x4E2D;&#x1F600;e&#x301;&#x10FFFD;"));
     },
     nullptr},
    {"Entities", false,
     [](const ServiceSample& s) {
       return "<!DOCTYPE service [<!ENTITY who 'M&#xFC;ller &amp; &#38;#60;S\"&#38;#246;hne&gt;'>"
              "<!ENTITY all '&who;, &who;'><!ENTITY none ''><!ENTITY blank '\n '>"
              "<!ENTITY op '<operation name=\"&all;\"/>'>]>" +
              rootOf(s,
                     "<operations>&blank;&op;&none;<operation name=\"&all;&none;\"/>&op;&op;"
                     "<!-- &op; --></operations>",
                     "name=\"&who;\" programName=\"&none;\" exitProgramName=\"a&blank;b\"");
     },
     nullptr},
    {"DoctypeAmongComments", false,
     [](const ServiceSample& s) {
       return declared("UTF-8", "<!-- one -->\n<!DOCTYPE service [<!ENTITY e 'x'>]><?two 2?>" +
                                    rootOf(s, everything(s), "name=\"&e;\""));
     },
     nullptr},
    {"StandaloneYes", false,
     [](const ServiceSample& s) {
       return "<?xml version='1.0' encoding='utf-8' standalone='yes'?>" + rootOf(s, everything(s));
     },
     nullptr},
    {"StandaloneNo", false,
     [](const ServiceSample& s) {
       return "<?xml version=\"1.0\" standalone=\"no\"?>\n" + rootOf(s, everything(s));
     },
     nullptr},
    {"Version11", false,
     [](const ServiceSample& s) {
       return "<?xml version='1.1'?>\n" + texts(s, umlauts + " &#x85;&#x2028;&#10;");
     },
     nullptr},
    {"WindowsLineEnds", false,
     [](const ServiceSample& s) {
       return onLines(commented(rootOf(s, everything(s))) + "<!-- two\nlines -->", "\r\n") + "\r\n";
     },
     nullptr},
    {"OldMacLineEnds", false,
     [](const ServiceSample& s) { return onLines(rootOf(s, everything(s)), "\r"); }, nullptr},
    {"LinesInTags", false,
     [](const ServiceSample& s) {
       return replaced(replaced(onLines(rootOf(s, everything(s)), "\n"), " name=", "\r\n\tname= "),
                       "/>", "\n/>");
     },
     nullptr},
    {"OddBlanks", false,
     [](const ServiceSample& s) {
       return rootOf(
           s,
           " <properties>\t\t<property name=\"a\"/>\n\n\n<property name=\"b\"/></properties>"
           "\n<operations>&#32;<operation/>&#10;&#9;<operation><parameters>\n"
           "<parameter> <field/><field> </field>\t<field>\n</field></parameter></parameters>"
           " </operation>  <operation> <parameters/></operation><operation><parameters/> "
           "</operation></operations>\n\n \t");
     },
     nullptr},
    {"BlanksBeforeTheEndOnly", false,
     [](const ServiceSample& s) {
       return rootOf(s,
                     "<operations><operation/><operation><parameters><parameter/>"
                     "<parameter/></parameters>\n</operation></operations>");
     },
     nullptr},
    {"BlanksBehindTheStartOnly", false,
     [](const ServiceSample& s) {
       return rootOf(s,
                     "\n<operations>\n<operation>\n<parameters>\n<parameter/></parameters>"
                     "</operation></operations>");
     },
     nullptr},
    {"ControlCharacters", false,
     [](const ServiceSample& s) {
       return texts(s, "&#9;a&#10;b&#13;c&#13;&#10;d&#x7F;&#x80;&#x85;&#x9F;&#xA0;&#x2028;&#13;");
     },
     nullptr},
    {"RawLineEndsInValues", false,
     [](const ServiceSample& s) { return texts(s, "a\tb\nc\r\nd\re  f "); }, nullptr},
    {"BlanksAroundValues", false, [](const ServiceSample& s) { return texts(s, "  a  b   "); },
     nullptr},
    {"Markup", false,
     [](const ServiceSample& s) {
       return texts(s,
                    "&lt;a&gt; & b='c' d=&quot;e&quot; &apos; ]]> --> ?> /> &amp;lt; &amp;amp; "
                    "&amp;#13; &lt;!-- &lt;![CDATA[ %pe; {$x} \\n");
     },
     nullptr},
    {"QuotesOfBothKinds", false,
     [](const ServiceSample& s) { return replaced(texts(s, "it&apos;s"), "=\"", " = \""); },
     nullptr},
};

std::vector<RoundTripDocument> documentsThat(bool (*holds)(const Kind& kind)) {
  std::vector<RoundTripDocument> result;
  for (const Kind& kind : kinds) {
    for (const ServiceSample& sample : test::samples::all) {
      const bool isWanted = kind.inEveryFlavour || &sample == &test::samples::all[0];
      if (!isWanted || !holds(kind)) continue;
      const auto source = [&kind, &sample] {
        // An ampersand by itself, as the rows have it for the reader's sake, is none in XML.
        return replaced(kind.source(sample), "& b", "&amp; b");
      };
      result.push_back(
          {std::string(kind.label) + sample.flavour.label, kind.prefix, source, kind.encode});
    }
  }
  return result;
}

}  // namespace

std::vector<RoundTripDocument> roundTripDocuments() {
  return documentsThat([](const Kind& /*kind*/) { return true; });
}

std::vector<RoundTripDocument> prefixedDocuments() {
  return documentsThat([](const Kind& kind) { return *kind.prefix != 0; });
}
