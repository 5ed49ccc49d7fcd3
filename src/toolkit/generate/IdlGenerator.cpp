// idl: a dual interface of a service for COM, with structures of Automation.
#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "toolkit/generate/CodeText.h"
#include "toolkit/generate/Generator.h"
#include "toolkit/generate/IdlLanguage.h"
#include "toolkit/generate/InterfacePlan.h"
#include "toolkit/generate/NameCharacters.h"
#include "toolkit/generate/NameUuid.h"
#include "toolkit/generate/TextWriter.h"
#include "toolkit/text/Phrases.h"

namespace as::toolkit::gen {

namespace {

// What stands for a structure inside itself, where it would have no end.
constexpr const char* anything = "VARIANT";

bool isTable(const Member& member) { return member.field != nullptr && member.field->isTable(); }

// `text` as a literal of ASCII, as much of it as help strings hold.
std::string literalOf(const std::string& text) {
  constexpr std::size_t longest = 200;
  std::string literal = "\"";
  for (const char32_t character : charactersOf(text)) {
    if (literal.size() > longest) break;
    if (character == U'"' || character == U'\\') literal += '\\';
    const char next = character >= 0x20 && character < 0x7F ? static_cast<char>(character) : '?';
    // Two start a character that some compilers read in their place.
    if (next == '?' && literal.back() == '?') literal += ' ';
    literal += next;
  }
  return literal + "\"";
}

class IdlText {
 public:
  explicit IdlText(const Job& job)
      : job_(job), model_(job.model), plan_(planOf(job, idlLanguage())) {}

  std::string text() {
    out_.line("// " + job_.banner());
    out_.line("import \"oaidl.idl\";");
    out_.line();
    const std::string about =
        model_.name + ": what program " + model_.program + " does for its callers";
    writeAttributes("library", "libid", "version(1.0), ", about);
    out_.line("library " + plan_.name + "Lib");
    out_.open("{");
    out_.line("importlib(\"stdole2.tlb\");");
    writeStructures();
    writeInterface(about);
    out_.line();
    writeAttributes("coclass", "clsid", "", about);
    out_.line("coclass " + plan_.name);
    out_.open("{");
    out_.line("[default] interface " + plan_.interface + ";");
    out_.close("};");
    out_.close("};");
    return out_.take();
  }

 private:
  // Of what the document has an identifier for, or else its names.
  std::string uuidOf(const std::string& part, std::string_view property) const {
    std::string made = uuidOfName(part + "/" + model_.program + "/" + model_.name);
    const auto named =
        std::find_if(model_.properties.begin(), model_.properties.end(),
                     [property](const Property& other) { return other.name == property; });
    if (named == model_.properties.end()) return made;
    std::string uuid = readUuid(named->value);
    if (!uuid.empty()) return uuid;
    job_.warn("no-uuid", "property " + named->name, quote(named->value) + " is no UUID",
              "write one, as " + made);
    return made;
  }

  void writeAttributes(const std::string& part, std::string_view property,
                       const std::string& others, const std::string& about) {
    out_.line("[" + others + "uuid(" + uuidOf(part, property) + "), helpstring(" +
              literalOf(about) + ")]");
  }

  // Each behind those that it holds.
  void writeStructures() {
    enum class State { unseen, open, written };
    struct Step {
      std::size_t structure;
      std::size_t member = 0;
    };
    std::vector<std::size_t> numbers(model_.types.size(), none);
    for (std::size_t i = 0; i < plan_.structures.size(); ++i) numbers[plan_.structures[i].type] = i;
    std::vector<State> states(plan_.structures.size(), State::unseen);
    for (std::size_t first = 0; first < plan_.structures.size(); ++first) {
      if (states[first] != State::unseen) continue;
      std::vector<Step> way = {{first}};
      states[first] = State::open;
      while (!way.empty()) {
        Step& step = way.back();
        Structure& structure = plan_.structures[step.structure];
        if (step.member == structure.members.size()) {
          writeStructure(structure);
          states[step.structure] = State::written;
          way.pop_back();
          continue;
        }
        Member& member = structure.members[step.member++];
        const std::size_t next = member.structure == none ? none : numbers[member.structure];
        if (next == none || states[next] == State::written) continue;
        if (states[next] == State::open) {
          endHere(structure, member);
          continue;
        }
        states[next] = State::open;
        way.push_back({next});
      }
    }
  }

  void endHere(const Structure& structure, Member& member) const {
    job_.warn(
        "recursive-type", structure.place.of(member.field->name).text(),
        "a structure of COM cannot stand in itself: a " + std::string(anything) + " stands for it",
        "");
    member.type = anything;
    member.structure = none;
  }

  void writeStructure(const Structure& structure) {
    out_.line();
    out_.line("// The structure of " + commentText(structure.place.text()) + ".");
    out_.line("[uuid(" +
              uuidOfName("struct/" + model_.program + "/" + model_.name + "/" + structure.name) +
              ")]");
    out_.line("typedef struct " + structure.name);
    out_.open("{");
    for (const Member& member : structure.members) {
      writeAbout(member);
      out_.line(typeOf(member) + " " + member.name + ";");
    }
    out_.close("} " + structure.name + ";");
  }

  void writeInterface(const std::string& about) {
    out_.line();
    writeAttributes("interface", "iid", "object, dual, oleautomation, pointer_default(unique), ",
                    about);
    out_.line("interface " + plan_.interface + " : IDispatch");
    out_.open("{");
    for (std::size_t i = 0; i < plan_.methods.size(); ++i) {
      if (i > 0) out_.line();
      writeMethod(plan_.methods[i], i + 1);
    }
    out_.close("};");
  }

  void writeMethod(const Method& method, std::size_t number) {
    const Member* const answer = answerOf(method);
    std::vector<const Member*> members;
    for (const Member& member : method.parameters) {
      if (&member != answer) members.push_back(&member);
    }
    // The one that is returned stands behind all others.
    if (answer != nullptr) members.push_back(answer);
    out_.line("[id(" + std::to_string(number) + "), helpstring(" +
              literalOf("Operation " + quote(method.operation->name) + " calls entry point " +
                        quote(method.operation->entryPoint)) +
              ")]");
    const std::string head = "HRESULT " + method.name + "(";
    if (members.empty()) {
      out_.line(head + ");");
      return;
    }
    out_.open(head);
    for (const Member* const member : members) {
      writeAbout(*member);
      out_.line(parameterOf(*member, member == answer) + (member == members.back() ? ");" : ","));
    }
    out_.outdent();
  }

  // The parameter that the method returns, as the document says.
  const Member* answerOf(const Method& method) const {
    const Member* answer = nullptr;
    for (const Member& member : method.parameters) {
      if (!member.field->isReturned) continue;
      const std::string place =
          Spot(model_.placeOf(*method.operation)).of(member.field->name).text();
      if (goesIn(member.field->direction)) {
        tellNotReturned(place, "it goes in, too");
      } else if (answer != nullptr) {
        tellNotReturned(place, "another one is returned");
      } else {
        answer = &member;
      }
    }
    return answer;
  }

  void tellNotReturned(const std::string& place, const std::string& why) const {
    job_.warn("not-returned", place, why + ": it is a parameter, and not what is returned",
              "mark one parameter that only comes out");
  }

  static std::string typeOf(const Member& member) {
    return isTable(member) ? "SAFEARRAY(" + member.type + ")" : member.type;
  }

  static std::string parameterOf(const Member& member, bool isAnswer) {
    const Direction direction = member.field->direction;
    const bool isPointer = comesOut(direction) || (member.structure != none && !isTable(member));
    const char* const way = isAnswer                       ? "[out, retval] "
                            : direction == Direction::in   ? "[in] "
                            : direction == Direction::both ? "[in, out] "
                                                           : "[out] ";
    return way + typeOf(member) + (isPointer ? " *" : " ") + member.name;
  }

  void writeAbout(const Member& member) {
    const std::string told = textAbout(model_, member);
    if (!told.empty()) out_.line("// " + commentText(told));
  }

  const Job& job_;
  const ServiceModel& model_;
  InterfacePlan plan_;
  TextWriter out_;
};

class IdlGenerator : public Generator {
 public:
  IdlGenerator()
      : Generator({"idl",
                   "a type library of COM in its definition language: an interface, structures",
                   {"com"},
                   false,
                   {}}) {}

  void generate(const Job& job) const override {
    job.add(job.fileStem() + ".idl", IdlText(job).text());
  }
};

}  // namespace

const Generator& idlGenerator() {
  static const IdlGenerator generator;
  return generator;
}

}  // namespace as::toolkit::gen
