// Documents that bring schemas and DTDs of their own, in the hope of a way round the client's.
#include <string>
#include <vector>

#include "hostile/Row.h"
#include "hostile/Texts.h"
#include "support/Labels.h"

namespace hostile {

namespace {

// Documents with what the shipped schema of their kind does not let in, which name a schema of
// their own that would.
std::vector<Row> widenings(const Kind& kind) {
  const std::string uri = kind.own.uri;
  const std::string good = uri + " " + uri;
  const std::string shipped = "@SHIPPED@" + std::string(kind.own.schemaFile);
  const std::vector<std::string> names = {kind.root, "bogus"};
  const std::string lax = laxSchema(uri, names);
  const auto naming = [&](const std::string& locations, const std::string& content) {
    return "<" + std::string(kind.root) + " xmlns='" + uri +
           "' xmlns:xsi='http://www.w3.org/2001/XMLSchema-instance' xsi:schemaLocation='" +
           locations + "' name='P'>\n" + content + "</" + kind.root + ">";
  };
  const std::string bad = "<bogus/>";
  const auto other = [&](const std::string& content) { return laxSchema("urn:o", {"e"}, content); };
  const Answer no = refused("'bogus'", 2);
  return {
      {"OwnSchema", no, naming(uri + " lax.xsd", bad), {{"lax.xsd", lax}}},
      {"OwnSchemaOfAGoodDocument", model(), naming(uri + " lax.xsd", ""), {{"lax.xsd", lax}}},
      {"OwnSchemaByPath", no, naming(uri + " @DIR@/lax.xsd", bad), {{"lax.xsd", lax}}},
      {"OwnSchemaByUrl", no, naming(uri + " file://@DIR@/lax.xsd", bad), {{"lax.xsd", lax}}},
      {"OwnSchemaOfTheName",
       no,
       naming(uri + " ./" + kind.own.schemaFile, bad),
       {{kind.own.schemaFile, lax}}},
      {"OwnSchemaInFront", no, naming(uri + " lax.xsd " + good, bad), {{"lax.xsd", lax}}},
      {"OwnSchemaBehind", no, naming(good + " " + uri + " lax.xsd", bad), {{"lax.xsd", lax}}},
      {"OwnSchemaImported",
       no,
       naming("urn:o other.xsd " + good, bad),
       {{"other.xsd", other("<xs:import namespace='" + uri + "' schemaLocation='lax.xsd'/>")},
        {"lax.xsd", lax}}},
      {"OwnSchemaImportedBehind",
       no,
       naming(good + " urn:o other.xsd", bad),
       {{"other.xsd", other("<xs:import namespace='" + uri + "' schemaLocation='lax.xsd'/>")},
        {"lax.xsd", lax}}},
      {"OwnSchemaOfNoNamespace",
       refused("no place in a document of the namespace", 2),
       naming(good + "' xsi:noNamespaceSchemaLocation='lax.xsd", "<bogus xmlns=''/>"),
       {{"lax.xsd", laxSchema("", {"bogus"})}}},
      {"OwnSchemaOfAnotherNamespace",
       refused("no place in a document of the namespace", 2),
       naming(good + " urn:o other.xsd", "<o:e xmlns:o='urn:o'/>"),
       {{"other.xsd", other("")}}},
      {"OwnSchemaNamedWithin",
       no,
       naming(good, "<bogus xsi:schemaLocation='" + uri + " lax.xsd'/>"),
       {{"lax.xsd", lax}}},
      {"OwnSchemaIncludesOurs",
       refused("target namespace"),
       naming(good + " urn:o other.xsd", ""),
       {{"other.xsd", other("<xs:include schemaLocation='" + shipped + "'/>")}}},
      {"OwnSchemaRedefinesOurs",
       refused("target namespace"),
       naming(good + " urn:o other.xsd", ""),
       {{"other.xsd", other("<xs:redefine schemaLocation='" + shipped + "'/>")}}},
      {"OwnSchemaImportsOurs",
       model(),
       naming(good + " urn:o other.xsd", ""),
       {{"other.xsd",
         other("<xs:import namespace='" + uri + "' schemaLocation='" + shipped + "'/>")}}},
      {"OwnSchemaOfOtherTarget", no, naming(uri + " other.xsd", bad), {{"other.xsd", other("")}}},
      {"OwnSchemaThatIsNone", model(), naming(uri + " d.xsd", ""), {{"d.xsd", "no schema"}}},
      {"OtherSchemaThatIsMissing", refused("missing.xsd"), naming(good + " urn:o missing.xsd", "")},
      {"OtherSchemaThatIsEmpty",
       refused(""),
       naming(good + " urn:o empty.xsd", ""),
       {{"empty.xsd", ""}}},
      {"OtherSchemaThatIsNone",
       refused(""),
       naming(good + " urn:o html.xsd", ""),
       {{"html.xsd", "<html/>"}}},
      {"OtherSchemaThatIsCut",
       refused(""),
       naming(good + " urn:o cut.xsd", ""),
       {{"cut.xsd", other("").substr(0, 100)}}},
      {"OtherSchemaThatIncludesItself",
       model(),
       naming(good + " urn:o other.xsd", ""),
       {{"other.xsd", other("<xs:include schemaLocation='other.xsd'/>")}}},
      {"OtherSchemasThatIncludeEachOther",
       model(),
       naming(good + " urn:o other.xsd", ""),
       {{"other.xsd", other("<xs:include schemaLocation='next.xsd'/>")},
        {"next.xsd", laxSchema("urn:o", {}, "<xs:include schemaLocation='other.xsd'/>")}}},
      {"OtherSchemasThatImportEachOther",
       model(),
       naming(good + " urn:o other.xsd", ""),
       {{"other.xsd", other("<xs:import namespace='urn:p' schemaLocation='next.xsd'/>")},
        {"next.xsd",
         laxSchema("urn:p", {}, "<xs:import namespace='urn:o' schemaLocation='other.xsd'/>")}}},
      {"OddLocations", refused(""), naming(good + " urn:o", "")},
      {"NoLocations", refused("no declaration found"), naming("", "")},
      {"ManyLocations",
       model(),
       naming(good + repeated(" urn:o other.xsd", 10000), ""),
       {{"other.xsd", other("")}}},
      {"OwnSchemaWithoutADirectory",
       refused("no place in a document of the namespace", 2),
       naming(uri + " lax.xsd", bad),
       {{"lax.xsd", lax}},
       kind,
       Schemas::none},
      {"LaxSchemaWithoutADirectory",
       model(),
       naming(uri + " lax.xsd", "text"),
       {{"lax.xsd", lax}},
       kind,
       Schemas::none},
      {"LaxSchemaOfTheClients",
       model(),
       naming(good, "text"),
       {{kind.own.schemaFile, lax}},
       kind,
       Schemas::own},
  };
}

// A DTD by which the document is valid.
std::vector<Row> dtds(const Kind& kind) {
  const std::string root = kind.root;
  const std::string uri = kind.own.uri;
  const auto doctypeOf = [&](const std::string& declarations) {
    return "<!DOCTYPE " + root + " [" + declarations + "]>\n";
  };
  const std::string bare = "<" + root + " xmlns='" + uri + "'/>";
  const std::string anyRoot = "<!ELEMENT " + root + " ANY>";
  const Answer attributes = refused("attribute declarations for '" + root + "' are refused", 1);
  return {
      {"Empty", refused("attribute 'xmlns' is not declared", 2),
       doctypeOf("<!ELEMENT " + root + " EMPTY>") + bare},
      {"EmptyBesideTheSchema", model(),
       doctypeOf("<!ELEMENT " + root + " EMPTY>") + documentOf(kind)},
      {"Any", model(), doctypeOf(anyRoot) + documentOf(kind)},
      {"AnyWithBogus", refused("'bogus'", 2),
       doctypeOf(anyRoot + "<!ELEMENT bogus EMPTY>") + documentOf(kind, "<bogus/>")},
      {"Namespace", attributes,
       doctypeOf(anyRoot + "<!ATTLIST " + root + " xmlns CDATA #FIXED '" + uri + "'>") + "<" +
           root + "/>"},
      {"Location", attributes,
       doctypeOf("<!ATTLIST " + root + " xsi:schemaLocation CDATA #FIXED '" + uri + " lax.xsd'>") +
           documentOf(kind)},
      {"Declared", attributes,
       doctypeOf("<!ATTLIST " + root + " name CDATA #IMPLIED>") + documentOf(kind)},
      {"Notation", model(), doctypeOf("<!NOTATION n PUBLIC 'n'>") + documentOf(kind)},
      {"OfAnotherName", refused("root element differs", 1), "<!DOCTYPE other>" + documentOf(kind)},
      {"Two", refused(""), doctypeOf("") + doctypeOf("") + documentOf(kind)},
      {"Behind", refused(""), documentOf(kind) + doctypeOf("")},
      {"Cut", refused(""), "<!DOCTYPE " + root + " [" + documentOf(kind)},
      {"CutEntity", refused(""), "<!DOCTYPE " + root + " [<!ENTITY e 'x>]>" + documentOf(kind)},
      {"ConditionalSection", refused(""),
       doctypeOf("<![INCLUDE[<!ELEMENT " + root + " ANY>]]>") + documentOf(kind)},
  };
}

INSTANTIATE_TEST_SUITE_P(OwnSchema, HostileDocument, testing::ValuesIn(ofEveryKind(widenings)),
                         test::labelOf<Row>);
INSTANTIATE_TEST_SUITE_P(OwnDtd, HostileDocument, testing::ValuesIn(ofEveryKind(dtds)),
                         test::labelOf<Row>);

}  // namespace

}  // namespace hostile
