// Every place in which a document, or a schema that it leads to, can name something on a network,
// and what else a service can name as its dictionary.
#include <string>
#include <vector>

#include "hostile/Row.h"
#include "hostile/Texts.h"
#include "support/Labels.h"

namespace hostile {

namespace {

const std::string xsd = "http://www.w3.org/2001/XMLSchema";
const std::string url = "@NET@s.xsd";

// A schema of the namespace `target`, with these attributes and this content, and with roots for
// documents of every kind.
std::string schemaOf(const std::string& target, const std::string& content,
                     const std::string& attributes = "") {
  return "<xs:schema xmlns:xs='" + xsd + "' targetNamespace='" + target + "' " + attributes + ">" +
         content + "<xs:element name='program'/><xs:element name='service'/></xs:schema>";
}

std::string without(const std::string& name) {
  return " xsi:noNamespaceSchemaLocation='" + name + "'";
}

// A dictionary of which a schema of another namespace lies beside it.
std::string withOther(const std::string& schema = "other.xsd") {
  const std::string uri = dictionary.own.uri;
  return programWith("xsi:schemaLocation='" + uri + " " + uri + " urn:o " + schema + "'");
}

// Rows of what the schema of another namespace names, with and without a schema directory. Without
// one our own schema lies beside the document.
std::vector<Row> namedByASchema() {
  const struct {
    const char* label;
    std::string content;
  } namings[] = {
      {"Import", "<xs:import namespace='urn:p' schemaLocation='" + url + "'/>"},
      {"ImportOfNoNamespace", "<xs:import schemaLocation='" + url + "'/>"},
      {"ImportOfOurs",
       "<xs:import namespace='" + std::string(web.own.uri) + "' schemaLocation='" + url + "'/>"},
      {"Include", "<xs:include schemaLocation='" + url + "'/>"},
      {"Redefine", "<xs:redefine schemaLocation='" + url + "'/>"},
      {"IncludeByAnotherProtocol", "<xs:include schemaLocation='ftp://127.0.0.1/s.xsd'/>"},
  };
  std::vector<Row> rows;
  for (const auto& naming : namings) {
    const std::string label = naming.label;
    const std::string names = schemaOf("urn:o", naming.content);
    rows.push_back({label + "OfASchema", refused(network, 1), withOther(), {{"other.xsd", names}}});
    rows.push_back({label + "OfAnIncludedSchema",
                    refused(network, 1),
                    withOther(),
                    {{"other.xsd", schemaOf("urn:o", "<xs:include schemaLocation='next.xsd'/>")},
                     {"next.xsd", names}}});
    rows.push_back({label + "OfAnImportedSchema",
                    refused(network, 1),
                    withOther(),
                    {{"other.xsd", schemaOf("urn:o",
                                            "<xs:import namespace='urn:next' "
                                            "schemaLocation='next.xsd'/>")},
                     {"next.xsd", schemaOf("urn:next", naming.content)}}});
    rows.push_back({label + "OfTheOnlySchema",
                    refused(network, 1),
                    programWithHint("own.xsd"),
                    {{"own.xsd", schemaOf(ns, naming.content)}},
                    dictionary,
                    Schemas::none});
    rows.push_back({label + "OfASchemaOfTheClients",
                    refused(network, 1),
                    documentOf(dictionary),
                    {{dictionary.own.schemaFile, schemaOf(ns, naming.content)}},
                    dictionary,
                    Schemas::own});
  }
  // To the parser a file, in a directory of the host's name.
  const std::string nextHost = "//127.0.0.1/s.xsd";
  rows.push_back(
      {"IncludeOfAHost",
       refused("unable to open primary document entity '" + nextHost + "'"),
       withOther(),
       {{"other.xsd", schemaOf("urn:o", "<xs:include schemaLocation='" + nextHost + "'/>")}}});
  return rows;
}

// What names but is not to be followed leaves the schema as good as it is.
std::vector<Row> namedByASchemaInVain() {
  const struct {
    const char* label;
    std::string content;
    std::string attributes;
  } namings[] = {
      {"SourceOfDocumentation",
       "<xs:annotation><xs:documentation source='" + url + "'/></xs:annotation>", ""},
      {"SourceOfAppinfo", "<xs:annotation><xs:appinfo source='" + url + "'/></xs:annotation>", ""},
      {"IncludeInAppinfo",
       "<xs:annotation><xs:appinfo><xs:include schemaLocation='" + url +
           "'/></xs:appinfo></xs:annotation>",
       ""},
      {"SystemOfANotation", "<xs:notation name='n' public='p' system='" + url + "'/>", ""},
      {"SchemaLocation", "",
       "xmlns:xsi='http://www.w3.org/2001/XMLSchema-instance' xsi:schemaLocation='" + xsd + " " +
           url + "'"},
      {"SchemaLocationOfNoNamespace", "",
       "xmlns:xsi='http://www.w3.org/2001/XMLSchema-instance'" + without(url)},
      {"Namespaces", "", "xmlns:n='" + url + "'"},
  };
  std::vector<Row> rows;
  for (const auto& naming : namings) {
    rows.push_back({std::string(naming.label) + "OfASchema",
                    model(),
                    withOther(),
                    {{"other.xsd", schemaOf("urn:o", naming.content, naming.attributes)}}});
  }
  return rows;
}

// Of documents, whatever they are of.
std::vector<Row> namedByADocument(const Kind& kind) {
  const std::string uri = kind.own.uri;
  const auto root = [&](const std::string& attributes) {
    return std::string("<") + kind.root + " xmlns='" + uri +
           "' xmlns:xsi='http://www.w3.org/2001/XMLSchema-instance' name='P'\n" + attributes + "/>";
  };
  const auto locations = [](const std::string& pairs) {
    return "xsi:schemaLocation='" + pairs + "'";
  };
  const std::string good = locations(uri + " " + uri);
  return {
      {"Schema", refused(network, 2), root(locations(uri + " " + url))},
      {"SchemaOfTheName", refused(network, 2),
       root(locations(uri + " @NET@" + kind.own.schemaFile))},
      {"SchemaBesideTheGoodOne", refused(network, 2),
       root(locations(uri + " " + uri + " urn:o " + url))},
      {"SchemaInFrontOfTheGoodOne", refused(network, 2),
       root(locations("urn:o " + url + " " + uri + " " + uri))},
      {"SchemaOfNoNamespace", refused(network, 2), root(good + without(url))},
      {"SchemaWithoutADirectory",
       refused(network, 2),
       root(locations(uri + " " + url)),
       {},
       kind,
       Schemas::none},
      {"NamespaceWithoutADirectory", refused(network, 2), root(good), {}, kind, Schemas::none},
      {"BaseOfTheSchema", refused("s.xsd"),
       root(locations(uri + " " + uri + " urn:o s.xsd") + " xml:base='@NET@'")},
      {"Base", refused("namespace}base' is not declared", 2), root(good + " xml:base='@NET@'")},
      {"Link", refused("xlink}href' is not declared", 2),
       root(good + " xmlns:l='http://www.w3.org/1999/xlink' l:href='" + url + "'")},
      {"Namespace", model(), root(good + " xmlns:n='" + url + "'")},
      {"StylesheetInstruction", model(),
       "<?xml-stylesheet href='" + url + "' type='text/xsl'?>" + root(good)},
      {"ModelInstruction", model(),
       "<?xml-model href='" + url + "' schematypens='" + xsd + "'?>" + root(good)},
      {"CatalogInstruction", model(), "<?oasis-xml-catalog catalog='" + url + "'?>" + root(good)},
      {"ExternalSubset", refused(complete, 1),
       std::string("<!DOCTYPE ") + kind.root + " SYSTEM '" + url + "'>" + root(good)},
      {"PublicSubset", refused(complete, 1),
       std::string("<!DOCTYPE ") + kind.root + " PUBLIC '-//X//Y' '" + url + "'>" + root(good)},
      {"ParameterEntity", refused("parameter entity 'p' is refused", 1),
       std::string("<!DOCTYPE ") + kind.root + " [<!ENTITY % p SYSTEM '" + url + "'> %p;]>" +
           root(good)},
      {"Entity", refused(complete, 1),
       std::string("<!DOCTYPE ") + kind.root + " [<!ENTITY e SYSTEM '" + url + "'>]>" +
           documentOf(kind, "&e;")},
      {"NotationAndEntityThatAreNotUsed", model(),
       std::string("<!DOCTYPE ") + kind.root + " [<!NOTATION n SYSTEM '" + url +
           "'><!ENTITY e SYSTEM '" + url + "' NDATA n>]>" + root(good)},
      {"Inclusion", refused("'x:include'", 1),
       documentOf(kind,
                  "<x:include xmlns:x='http://www.w3.org/2001/XInclude' href='" + url + "'/>")},
  };
}

// The program of a service, when it is asked for.
std::vector<Row> namedAsProgram(const Kind& kind) {
  const auto service = [&](const std::string& name) {
    return documentOf(kind, "", "dataDictFilename='" + name + "'");
  };
  const auto asked = [&](const std::string& label, const Answer& answer, const std::string& name) {
    return Row{label, answer, service(name), {}, kind, Schemas::shipped, true};
  };
  return {
      asked("Program", refused("documents are not read over a network", 0), "@NET@d.xml"),
      asked("ProgramByAnotherProtocol", refused("documents are not read over a network", 0),
            "ftp://127.0.0.1/d.xml"),
      asked("ProgramOfAHost", refused("documents are not read over a network", 0),
            "file://remotehost/d.xml"),
      asked("ProgramThatIsNone", foreign(), "@DIR@/document.xml"),
      asked("ProgramThatIsADirectory", refused("it is a directory", 0), "@DIR@"),
      asked("ProgramThatIsADevice", refused("it is no regular file", 0), "/dev/zero"),
      asked("ProgramThatIsATerminal", refused("it is no regular file", 0), "/dev/tty"),
      asked("ProgramThatIsMissing", refused("unable to open primary document entity", 0),
            "@DIR@/missing.xml"),
      {"ProgramNotAskedFor", model(), service("@NET@d.xml")},
  };
}

std::vector<Row> servicesOnly(const Kind& kind) {
  return isDictionary(kind) ? std::vector<Row>() : namedAsProgram(kind);
}

INSTANTIATE_TEST_SUITE_P(Network, HostileDocument, testing::ValuesIn(ofEveryKind(namedByADocument)),
                         test::labelOf<Row>);
INSTANTIATE_TEST_SUITE_P(Program, HostileDocument, testing::ValuesIn(ofEveryKind(servicesOnly)),
                         test::labelOf<Row>);
INSTANTIATE_TEST_SUITE_P(NetworkSchema, HostileDocument, testing::ValuesIn(namedByASchema()),
                         test::labelOf<Row>);
INSTANTIATE_TEST_SUITE_P(NetworkInVain, HostileDocument, testing::ValuesIn(namedByASchemaInVain()),
                         test::labelOf<Row>);

}  // namespace

}  // namespace hostile
