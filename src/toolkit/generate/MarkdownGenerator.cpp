// markdown: a page of reference for people.
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "toolkit/generate/Facets.h"
#include "toolkit/generate/Generator.h"
#include "toolkit/generate/ShortPath.h"
#include "toolkit/generate/TextWriter.h"
#include "toolkit/text/Phrases.h"

namespace as::toolkit::gen {

namespace {

// `text` on one line, meaning nothing but itself, in tables, too.
std::string plain(std::string_view text) {
  constexpr std::string_view meaningful = "\\`*_{}[]<>()#+!|~&$";
  std::string result;
  for (const char byte : text) {
    const auto code = static_cast<unsigned char>(byte);
    if (code < 0x20 || code == 0x7F) {
      result += ' ';
      continue;
    }
    if (meaningful.find(byte) != std::string_view::npos) result += '\\';
    result += byte;
  }
  return result;
}

const char* wordOf(Direction direction) {
  if (direction == Direction::both) return "in and out";
  return direction == Direction::in ? "in" : "out";
}

const char* wordOf(Form form) { return form == Form::qualified ? "qualified" : "unqualified"; }

const char* wordOf(Mapping::Source source) {
  switch (source) {
    case Mapping::Source::commandLine:
      return "the command line";
    case Mapping::Source::returnCode:
      return "the return code";
    case Mapping::Source::standardInput:
      return "the standard input";
    case Mapping::Source::standardOutput:
      return "the standard output";
    default:
      return "";
  }
}

// Cells are joined with line breaks.
void join(std::string& cell, const std::string& text) {
  if (text.empty()) return;
  if (!cell.empty()) cell += "<br>";
  cell += text;
}

class Page {
 public:
  explicit Page(const Job& job) : job_(job), model_(job.model) {}

  std::string text() {
    out_.line("<!-- " + job_.banner() + " -->");
    out_.line("# " + plain(model_.name));
    writeFacts();
    if (!model_.operations.empty()) heading("## Operations");
    for (const Operation& operation : model_.operations) writeOperation(operation);
    writeTypes();
    writeFindings();
    return out_.take();
  }

 private:
  void heading(const std::string& text) {
    out_.line();
    out_.line(text);
  }

  void fact(const std::string& what, const std::string& value) {
    if (value.empty()) return;
    out_.line("- " + what + ": " + plain(value));
  }

  void writeFacts() {
    out_.line();
    fact("Made of", model_.source);
    fact("Flavour", model_.flavour == nullptr ? "" : model_.flavour->name);
    fact("Program", model_.program);
    for (const Property& property : model_.properties)
      fact("**" + plain(property.name) + "**", property.value);
  }

  void writeOperation(const Operation& operation) {
    heading("### " + plain(model_.placeOf(operation)));
    out_.line();
    fact("Entry point", operation.entryPoint);
    if (operation.exitPoints != 0) fact("Exit points", std::to_string(operation.exitPoints));
    fact("Transaction", operation.transactionType);
    if (operation.style != Operation::Style::unsaid) {
      fact("Style", operation.style == Operation::Style::rpc ? "rpc" : "document");
      fact("Input", use(operation.isInputEncoded) + " " + operation.inputNamespace);
      fact("Output", use(operation.isOutputEncoded) + " " + operation.outputNamespace);
    }
    writeFields(operation.parameters, {}, true);
    for (const Message& message : operation.messages) {
      heading("#### " + plain(message.kind) + " " + std::to_string(message.number));
      out_.line();
      fact("Direction", message.kind == "fault" ? "" : wordOf(message.direction));
      fact("Use", use(message.isEncoded) + " " + message.namespaceUri);
      writeFields(message.parameters, {}, false);
    }
  }

  static std::string use(bool isEncoded) { return isEncoded ? "encoded" : "literal"; }

  void writeTypes() {
    if (model_.types.empty()) return;
    heading(model_.flavour == nullptr ? "## Records" : "## Types");
    for (std::size_t i = 0; i < model_.types.size(); ++i) {
      const Type& type = model_.types[i];
      heading("### <a id=\"" + anchorOf(i) + "\"></a>" + plain(model_.placeOf(type)));
      if (type.isRecursive) {
        out_.line();
        out_.line("It stands in itself.");
      }
      const Field& self = type.self;
      const bool saysMore = self.structure != i || self.isTable() || !self.mappings.empty();
      if (type.isDeclared && saysMore) writeFields({self}, {}, false);
      writeFields(type.fields, type.attributes, false);
    }
  }

  static std::string anchorOf(std::size_t type) { return "type-" + std::to_string(type + 1); }

  void writeFields(const std::vector<Field>& fields, const std::vector<Field>& attributes,
                   bool withDirections) {
    if (fields.empty() && attributes.empty()) return;
    out_.line();
    const std::string direction = withDirections ? "Direction | " : "";
    out_.line("| Name | " + direction + "Type | Occurs | COBOL item | Picture | Conditions |");
    out_.line(std::string("|---|") + (withDirections ? "---|" : "") + "---|---|---|---|---|");
    for (const Field& field : fields) writeField(field, withDirections, "");
    for (const Field& attribute : attributes) writeField(attribute, withDirections, " (attribute)");
  }

  void writeField(const Field& field, bool withDirections, const std::string& addition) {
    std::string name = plain(field.name) + addition;
    if (field.isReturned) name += " (returned)";
    out_.line("| " + name + " | " +
              (withDirections ? wordOf(field.direction) + std::string(" | ") : "") + typeOf(field) +
              " | " + occursOf(field) + " | " + itemsOf(field) + " | " + picturesOf(field) + " | " +
              conditionsOf(field) + " |");
  }

  std::string typeOf(const Field& field) const {
    std::string cell;
    const std::size_t type = field.reference != none ? field.reference : field.structure;
    if (type != none) {
      join(cell, "[" + plain(model_.types[type].name) + "](#" + anchorOf(type) + ")");
    }
    join(cell, plain(field.dataType));
    if (!field.namespaceUri.empty()) join(cell, plain(field.namespaceUri));
    if (field.elementForm != Form::unsaid) {
      join(cell, std::string("elements ") + wordOf(field.elementForm));
    }
    if (field.attributeForm != Form::unsaid) {
      join(cell, std::string("attributes ") + wordOf(field.attributeForm));
    }
    return cell;
  }

  static std::string occursOf(const Field& field) {
    if (!field.isTable()) return field.least == 0 ? "0 to 1" : "";
    std::string cell = std::to_string(field.occurs);
    if (field.least != field.occurs) cell = std::to_string(field.least) + " to " + cell;
    if (!field.dependingOn.empty()) join(cell, "as " + plain(field.dependingOn) + " says");
    return cell;
  }

  // Those of a reference stand where it leads.
  static std::string itemsOf(const Field& field) {
    std::string cell;
    if (field.reference != none) return cell;
    for (const Mapping& mapping : field.mappings) {
      const std::string source = wordOf(mapping.source);
      join(cell, source.empty() ? plain(mapping.text) : source);
    }
    return cell;
  }

  std::string picturesOf(const Field& field) const {
    std::string cell;
    if (field.reference != none) return cell;
    for (const Mapping& mapping : field.mappings) {
      if (mapping.item == none) continue;
      const Item& item = model_.items[mapping.item];
      std::string words = plain(shortName(item.picture));
      if (!item.usage.empty()) words += (words.empty() ? "" : " ") + plain(item.usage);
      join(cell, words);
    }
    return cell;
  }

  std::string conditionsOf(const Field& field) const {
    std::string cell;
    if (field.reference != none) return cell;
    for (const std::string& line : linesAboutConditions(model_, field)) join(cell, plain(line));
    return cell;
  }

  void writeFindings() {
    if (model_.findings.empty()) return;
    heading("## Findings");
    out_.line();
    for (const Finding& finding : model_.findings) {
      out_.line(std::string("- ") + wordOf(finding.severity) + ": " + plain(finding.place) + ": " +
                plain(finding.problem) +
                (finding.advice.empty() ? "" : "; " + plain(finding.advice)));
    }
  }

  const Job& job_;
  const ServiceModel& model_;
  TextWriter out_;
};

class MarkdownGenerator : public Generator {
 public:
  MarkdownGenerator()
      : Generator({"markdown",
                   "a page of reference for people",
                   {"ws", "com", "dotnet", "java"},
                   true,
                   {}}) {}

  void generate(const Job& job) const override {
    job.add(job.fileStem() + ".md", Page(job).text());
  }
};

}  // namespace

const Generator& markdownGenerator() {
  static const MarkdownGenerator generator;
  return generator;
}

}  // namespace as::toolkit::gen
