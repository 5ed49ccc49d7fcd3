// Documents that blow up, that are large, that lead back to themselves, and those of others: for
// every kind of request.
#include <string>
#include <vector>

#include "hostile/Row.h"
#include "hostile/Texts.h"
#include "support/Labels.h"

namespace hostile {

namespace {

// Entities, as text of an attribute and as content.
std::vector<Row> entities(const Kind& kind) {
  const auto doctypeOf = [&](const std::string& declarations) {
    return std::string("<!DOCTYPE ") + kind.root + " [" + declarations + "]>\n";
  };
  const std::string property = "<properties><property name=\"p\" value=\"v\"/></properties>";
  const std::string inside = isDictionary(kind) ? "dataItems" : "operations";
  const auto asContent = [&](const std::string& text) {
    return "<" + inside + ">" + text + "</" + inside + ">";
  };
  const Answer tooMany = refused("entity expansions", 2);
  std::string chain = "<!ENTITY e0 ''>";
  for (int i = 1; i < 2000; i++) {
    chain += "<!ENTITY e" + std::to_string(i) + " '&e" + std::to_string(i - 1) + ";'>";
  }
  return {
      {"NestedInAnAttribute", tooMany,
       documentOf(kind, "", "implementation='&e9;'", doctypeOf(laughs("&", "", 9, "ha")))},
      {"NestedAsContent", tooMany,
       documentOf(kind, asContent("&e9;"), "", doctypeOf(laughs("&", "", 9, "<!-- ha -->")))},
      {"NestedAsNothing", tooMany,
       documentOf(kind, asContent("&e9;"), "", doctypeOf(laughs("&", "", 9, "")))},
      {"Repeated", tooMany,
       documentOf(kind, asContent(repeated("&e;", 1001)), "", doctypeOf("<!ENTITY e ' '>"))},
      {"OfTheGreatestNumber", model(),
       documentOf(kind, asContent(repeated("&e;", 1000)), "", doctypeOf("<!ENTITY e ' '>"))},
      {"OfTheGreatestLength", model(),
       documentOf(kind, asContent("&e;"), "",
                  doctypeOf("<!ENTITY e '" + std::string(65536, ' ') + "'>"))},
      {"Long", refused("the entity 'e' is longer than 65536 characters", 1),
       documentOf(kind, "", "", doctypeOf("<!ENTITY e '" + std::string(65537, ' ') + "'>"))},
      {"Chain", tooMany, documentOf(kind, asContent("&e1999;"), "", doctypeOf(chain))},
      {"OfItself", refused("recursive", 2),
       documentOf(kind, asContent("&e;"), "", doctypeOf("<!ENTITY e '&e;'>"))},
      {"OfParameters", refused("the parameter entity 'e0' is refused", 1),
       documentOf(kind, "", "", doctypeOf(laughs("&#37;", "% ", 9, "ha") + "%e9;"))},
      {"NotUsed", model(), documentOf(kind, "", "", doctypeOf(laughs("&", "", 9, "ha")))},
      {"NotDeclared", refused("entity 'e' not found", 1), documentOf(kind, asContent("&e;"))},
  };
}

// Levels, attributes and texts.
std::vector<Row> sizes(const Kind& kind) {
  const std::string inside = isDictionary(kind) ? "dataItems" : "operations";
  const std::string nested = isDictionary(kind) ? "group" : "parameter";
  const std::string open = isDictionary(kind) ? "<dataItems>" : "<parameterTypeDefs>";
  const std::string close = isDictionary(kind) ? "</dataItems>" : "</parameterTypeDefs>";
  const std::string field = isDictionary(kind) ? "group" : "field";
  const auto levels = [=](int count) {
    return [=] {
      return documentOf(
          kind, open + "<" + nested + " name='x'>" + repeated("<" + field + " name='x'>", count) +
                    repeated("</" + field + ">", count) + "</" + nested + ">" + close);
    };
  };
  const auto attributes = [=](const std::string& prefix, int count) {
    return [=] {
      std::string text;
      for (int i = 0; i < count; i++) text += " " + prefix + std::to_string(i) + "='urn:x'";
      return documentOf(kind, open + "<" + nested + " name='x'" + text + "/>" + close);
    };
  };
  const Answer tooDeep = refused("nested deeper than 2048 levels", 1);
  const Answer tooMany = refused("more than 1000 attributes", 1);
  return {
      {"Levels2000", model(), levels(2000)},
      {"Levels3000", tooDeep, levels(3000)},
      {"Levels100000", tooDeep, levels(100000)},
      {"Attributes50000", refused("'a0' is not declared", 1), attributes("a", 50000)},
      {"Namespaces5000", tooMany, attributes("xmlns:a", 5000)},
      {"Namespaces900", model(), attributes("xmlns:a", 900)},
  };
}

// Texts of 20 MB. They are all the same to the parser, whoever is asked.
std::vector<Row> largeTexts() {
  constexpr int large = 20 * 1024 * 1024;
  const std::string open = "<dataItems>";
  const std::string close = "</dataItems>";
  const auto withLarge = [=](const std::string& before, const std::string& behind) {
    return [=] { return documentOf(dictionary, before + std::string(large, 'x') + behind); };
  };
  return {
      {"LargeAttribute", model(), withLarge(open + "<group name='", "'/>" + close)},
      {"LargeComment", model(), withLarge("<!--", "-->")},
      {"LargeInstruction", model(), withLarge("<?p ", "?>")},
      {"LargeText", refused("", 1), withLarge(open, close)},
      {"LargeCData", refused("", 1), withLarge(open + "<![CDATA[", "]]>" + close)},
      {"LargeName", refused("no declaration found", 1), withLarge(open + "<", "/>" + close)},
      {"LargeBlanks", model(),
       [=] { return documentOf(dictionary, open + std::string(large, ' ') + close); }},
      {"LargeInFront", model(),
       [=] { return documentOf(dictionary, "", "", "<!--" + std::string(large, 'x') + "-->"); }},
      {"LargeBehind", model(),
       [=] { return documentOf(dictionary) + "<!--" + std::string(large, 'x') + "-->"; }},
  };
}

// Documents of others, and roots of ours where they do not belong.
std::vector<Row> foreigners(const Kind& kind) {
  const std::string instance = "xmlns:xsi='http://www.w3.org/2001/XMLSchema-instance'";
  const Kind& other = isDictionary(kind) ? web : dictionary;
  return {
      {"Html", foreign(), "<html><body/></html>"},
      {"Xhtml", foreign(), "<html xmlns='http://www.w3.org/1999/xhtml'/>"},
      {"Svg", foreign(), "<svg xmlns='http://www.w3.org/2000/svg'/>"},
      {"Schema", foreign(), "<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema'/>"},
      {"Envelope", foreign(), "<e:Envelope xmlns:e='http://www.w3.org/2003/05/soap-envelope'/>"},
      {"NoNamespace", foreign(), std::string("<") + kind.root + "/>"},
      {"UndeclaredPrefix", refused("'p'", 1), std::string("<p:") + kind.root + "/>"},
      {"OtherCase", foreign(),
       std::string("<") + kind.root + " xmlns='" + std::string(kind.own.uri).replace(0, 4, "HTTP") +
           "'/>"},
      {"BlankBehindTheNamespace", foreign(),
       std::string("<") + kind.root + " xmlns='" + kind.own.uri + " '/>"},
      {"PartOfTheNamespace", foreign(),
       std::string("<") + kind.root + " xmlns='" + std::string(kind.own.uri).substr(0, 40) + "'/>"},
      {"CommonNamespace", foreign(),
       std::string("<service xmlns='") + as::namespaces::service.uri + "'/>"},
      {"OtherKind", foreign(), documentOf(other)},
      {"NoSchema", refused("no declaration found", 1),
       std::string("<") + kind.root + " xmlns='" + kind.own.uri + "'/>"},
      {"OtherRoot", refused("no declaration found", 1),
       std::string("<other xmlns='") + kind.own.uri + "' " + instance + " xsi:schemaLocation='" +
           kind.own.uri + " " + kind.own.uri + "'/>"},
      {"RootTwice", refused("", 1), documentOf(kind) + documentOf(kind)},
      {"RootInItself", refused("not allowed for content model", 1),
       documentOf(kind, documentOf(kind))},
      {"Text", refused("", 1), documentOf(kind, "text")},
      {"TextBehind", refused("", 1), documentOf(kind) + "text"},
      {"TypeOfItsOwn", refused("", 1), documentOf(kind, "", "xsi:type='xs:string'")},
      {"Nil", refused("", 1), documentOf(kind, "", "xsi:nil='true'")},
      {"Bogus", refused("'bogus'", 1), documentOf(kind, "<bogus/>")},
      {"BogusAttribute", refused("'bogus' is not declared", 1), documentOf(kind, "", "bogus='1'")},
  };
}

// What leads back to where it came from is no end of the request.
std::vector<Row> references(const Kind& kind) {
  if (isDictionary(kind)) {
    const auto items = [&](const std::string& text) {
      return documentOf(kind, "<dataItems>" + text + "</dataItems>");
    };
    return {
        {"CountedByItself", model(), items("<numeric name='N' odo='N'/>")},
        {"CountedByEachOther", model(),
         items("<numeric name='N' odo='M'/><numeric name='M' odo='N'/>")},
        {"CountedByWhatItHolds", model(),
         items("<group name='G' odo='G.N'><numeric name='N' odo='G'/></group>")},
    };
  }
  const auto definitions = [&](const std::string& text) {
    return documentOf(kind, "<parameterTypeDefs>" + text +
                                "</parameterTypeDefs><operations><operation name='op'><parameters>"
                                "<parameter name='p' ref='D'/></parameters></operation>"
                                "</operations>");
  };
  std::string chain = "<parameter name='D0'/>";
  std::string doubling = "<parameter name='D0'/>";
  for (int i = 1; i <= 1000; i++) {
    const std::string name = "<parameter name='D" + (i < 1000 ? std::to_string(i) : "") + "'";
    const std::string below = " ref='D" + std::to_string(i - 1) + "'";
    chain += name + below + "/>";
    doubling += name + "><field name='a'" + below + "/><field name='b'" + below + "/></parameter>";
  }
  return {
      {"DefinitionOfItself", model(), definitions("<parameter name='D' ref='D'/>")},
      {"DefinitionInItself", model(),
       definitions("<parameter name='D'><field name='f' ref='D'/></parameter>")},
      {"DefinitionsOfEachOther", model(),
       definitions("<parameter name='D' ref='E'/><parameter name='E' ref='D'/>")},
      {"DefinitionsInEachOther", model(),
       definitions("<parameter name='D'><field name='f' ref='E'/></parameter>"
                   "<parameter name='E'><field name='f' ref='D'/></parameter>")},
      {"DefinitionOfNothing", model(), definitions("<parameter name='D' ref=''/>")},
      {"ChainOfDefinitions", model(), definitions(chain)},
      // As a tree it would have more fields than there are atoms.
      {"DoublingDefinitions", model(), definitions(doubling)},
  };
}

INSTANTIATE_TEST_SUITE_P(Entities, HostileDocument, testing::ValuesIn(ofEveryKind(entities)),
                         test::labelOf<Row>);
INSTANTIATE_TEST_SUITE_P(Sizes, HostileDocument, testing::ValuesIn(ofEveryKind(sizes)),
                         test::labelOf<Row>);
INSTANTIATE_TEST_SUITE_P(Texts, HostileDocument, testing::ValuesIn(largeTexts()),
                         test::labelOf<Row>);
INSTANTIATE_TEST_SUITE_P(Foreign, HostileDocument, testing::ValuesIn(ofEveryKind(foreigners)),
                         test::labelOf<Row>);
INSTANTIATE_TEST_SUITE_P(References, HostileDocument, testing::ValuesIn(ofEveryKind(references)),
                         test::labelOf<Row>);

}  // namespace

}  // namespace hostile
