// java: an interface of a service, with a record for each structure.
#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "toolkit/generate/CodeText.h"
#include "toolkit/generate/Generator.h"
#include "toolkit/generate/InterfacePlan.h"
#include "toolkit/generate/JavaLanguage.h"
#include "toolkit/generate/TextWriter.h"
#include "toolkit/text/Phrases.h"

namespace as::toolkit::gen {

namespace {

// What a method takes: so many words of 32 bits, its object's included.
constexpr std::size_t mostWords = 254;
// What a class holds, with a margin.
constexpr std::size_t mostMembers = 8000;

// What stands in lists.
std::string boxed(const std::string& type) {
  static const std::unordered_map<std::string_view, const char*> boxes = {
      {"byte", "Byte"}, {"short", "Short"}, {"int", "Integer"},
      {"long", "Long"}, {"float", "Float"}, {"double", "Double"},
  };
  const auto found = boxes.find(type);
  return found == boxes.end() ? type : found->second;
}

std::string typeOf(const Member& member) {
  const bool isList = member.field != nullptr && member.field->isTable();
  return isList ? "List<" + boxed(member.type) + ">" : member.type;
}

bool isWide(const Member& member) {
  const std::string type = typeOf(member);
  return type == "long" || type == "double";
}

std::size_t wordsOf(const std::vector<Member>& members) {
  return members.size() +
         static_cast<std::size_t>(std::count_if(members.begin(), members.end(), isWide));
}

std::vector<Member> membersThat(const std::vector<Member>& members,
                                bool (*matches)(Direction direction)) {
  std::vector<Member> chosen;
  std::copy_if(members.begin(), members.end(), std::back_inserter(chosen),
               [matches](const Member& member) { return matches(member.field->direction); });
  return chosen;
}

// NOT_SUPPORTED for notSupported.
std::string constantOf(std::string_view word) {
  std::string constant;
  for (const char letter : word) {
    const bool isCapital = letter >= 'A' && letter <= 'Z';
    if (isCapital) constant += '_';
    constant += isCapital ? letter : static_cast<char>(letter - 'a' + 'A');
  }
  return constant;
}

class JavaText {
 public:
  explicit JavaText(const Job& job)
      : job_(job), model_(job.model), plan_(planOf(job, javaLanguage())) {}

  const std::string& name() const { return plan_.name; }

  std::string text() {
    checkSizes();
    const std::string package = dottedOption(job_, "package", javaLanguage().members);
    out_.line("// " + job_.banner());
    if (!package.empty()) out_.line("package " + package + ";");
    writeImports();
    out_.line();
    writeDoc(model_.flavour == nullptr
                 ? "The records of program " + model_.program + "."
                 : model_.name + ": what program " + model_.program + " does for its callers.");
    out_.open("public interface " + plan_.interface + " {");
    if (!plan_.methods.empty()) writeTransactions();
    for (const Method& method : plan_.methods) writeMethod(method);
    for (const Structure& structure : plan_.structures) writeStructure(structure);
    out_.close("}");
    return out_.take();
  }

 private:
  void checkSizes() const {
    for (const Structure& structure : plan_.structures) {
      if (structure.members.size() > mostMembers) {
        tellSize(structure.place.text(), structure.members.size(), "fields");
      }
    }
    for (const Method& method : plan_.methods) {
      if (wordsOf(membersThat(method.parameters, goesIn)) > mostWords) {
        tellSize(model_.placeOf(*method.operation), method.parameters.size(), "parameters");
      }
    }
  }

  void tellSize(const std::string& place, std::size_t number, const char* what) const {
    job_.refuse("too-large", place,
                "Java takes no " + std::to_string(number) + " " + what + " in one place",
                "make groups of them");
  }

  void writeImports() {
    static constexpr const char* imports[][2] = {{"BigDecimal", "java.math.BigDecimal"},
                                                 {"BigInteger", "java.math.BigInteger"},
                                                 {"List", "java.util.List"}};
    bool isFirst = true;
    for (const auto& [word, imported] : imports) {
      if (!uses(word)) continue;
      if (isFirst) out_.line();
      isFirst = false;
      out_.line(std::string("import ") + imported + ";");
    }
  }

  bool uses(std::string_view word) const {
    const auto isOfIt = [word](const Member& member) {
      return member.type == word ||
             (word == "List" && member.field != nullptr && member.field->isTable());
    };
    const auto hasIt = [&isOfIt](const std::vector<Member>& members) {
      return std::any_of(members.begin(), members.end(), isOfIt);
    };
    return std::any_of(plan_.structures.begin(), plan_.structures.end(),
                       [&hasIt](const Structure& structure) { return hasIt(structure.members); }) ||
           std::any_of(plan_.methods.begin(), plan_.methods.end(),
                       [&hasIt](const Method& method) { return hasIt(method.parameters); });
  }

  void writeTransactions() {
    out_.line();
    writeDoc("How an operation stands to the transaction of its caller.");
    out_.open("enum TransactionType {");
    out_.line("/** It runs outside of any. */");
    out_.line("NOT_SUPPORTED,");
    out_.line("/** It runs in that of the caller, who has to have one. */");
    out_.line("MANDATORY,");
    out_.line("/** Its caller must not have one. */");
    out_.line("NEVER,");
    out_.line("/** It runs in that of the caller, or else in one of its own. */");
    out_.line("REQUIRES,");
    out_.line("/** It always runs in one of its own. */");
    out_.line("REQUIRES_NEW,");
    out_.line("/** It runs in that of the caller, if there is one. */");
    out_.line("SUPPORTS");
    out_.close("}");
    out_.line();
    writeDoc("Tells the transaction type of an operation.");
    out_.line("@java.lang.annotation.Documented");
    out_.line("@java.lang.annotation.Retention(java.lang.annotation.RetentionPolicy.RUNTIME)");
    out_.line("@java.lang.annotation.Target(java.lang.annotation.ElementType.METHOD)");
    out_.open("@interface Transaction {");
    out_.line("/** {@return the type} */");
    out_.line("TransactionType value();");
    out_.close("}");
  }

  void writeMethod(const Method& method) {
    const Operation& operation = *method.operation;
    const std::vector<Member> in = membersThat(method.parameters, goesIn);
    const std::vector<Member> out = membersThat(method.parameters, comesOut);
    out_.line();
    out_.line("/**");
    out_.line(" * Operation " + docText(quote(operation.name)) + " calls entry point " +
              docText(quote(operation.entryPoint)) + ".");
    if (!in.empty() || !out.empty()) out_.line(" *");
    for (const Member& member : in) writeParam(member);
    if (!method.answer.empty()) {
      out_.line(" * @return all that comes out");
    } else if (!out.empty()) {
      out_.line(" * @return " + docOf(out.front()));
    }
    out_.line(" */");
    if (!operation.transactionType.empty()) {
      out_.line("@Transaction(TransactionType." + constantOf(operation.transactionType) + ")");
    }
    const std::string result = out.empty()              ? "void"
                               : !method.answer.empty() ? method.answer
                                                        : typeOf(out.front());
    writeList(result + " " + method.name, in, ";");
  }

  // HEAD(MEMBERS)TAIL, a line for each of them when there are several.
  void writeList(const std::string& head, const std::vector<Member>& members, const char* tail) {
    if (members.size() < 2) {
      const std::string only = members.empty() ? "" : typeOf(members[0]) + " " + members[0].name;
      out_.line(head + "(" + only + ")" + tail);
      return;
    }
    out_.line(head + "(");
    out_.indent();
    out_.indent();
    for (std::size_t i = 0; i < members.size(); ++i) {
      out_.line(typeOf(members[i]) + " " + members[i].name +
                (i + 1 < members.size() ? "," : std::string(")") + tail));
    }
    out_.outdent();
    out_.outdent();
  }

  void writeStructure(const Structure& structure) {
    out_.line();
    const std::string about = structure.type == none
                                  ? "What comes out of operation " + structure.place.text() + "."
                                  : "The structure of " + structure.place.text() + ".";
    if (wordsOf(structure.members) > mostWords) {
      writeBean(structure, about);
      return;
    }
    out_.line("/**");
    out_.line(" * " + docText(about));
    if (!structure.members.empty()) out_.line(" *");
    for (const Member& member : structure.members) writeParam(member);
    out_.line(" */");
    writeList("record " + structure.name, structure.members, " {}");
  }

  // In place of a record, which has all of its fields in one list.
  void writeBean(const Structure& structure, const std::string& about) {
    writeDoc(about);
    out_.open("final class " + structure.name + " {");
    for (const Member& member : structure.members) {
      out_.line("private " + typeOf(member) + " " + member.name + ";");
    }
    out_.line();
    writeDoc("Makes one without values.");
    out_.line("public " + structure.name + "() {}");
    for (const Member& member : structure.members) {
      out_.line();
      out_.line("/** {@return " + docOf(member) + "} */");
      out_.line("public " + typeOf(member) + " " + member.name + "() {");
      out_.line("  return this." + member.name + ";");
      out_.line("}");
      out_.line();
      out_.line("/**");
      out_.line(" * Sets it.");
      out_.line(" *");
      writeParam(member);
      out_.line(" */");
      out_.line("public void " + member.name + "(" + typeOf(member) + " " + member.name + ") {");
      out_.line("  this." + member.name + " = " + member.name + ";");
      out_.line("}");
    }
    out_.close("}");
  }

  void writeDoc(const std::string& text) { out_.line("/** " + docText(text) + " */"); }

  void writeParam(const Member& member) {
    out_.line(" * @param " + member.name + " " + docOf(member));
  }

  std::string docOf(const Member& member) const {
    const std::string told = textAbout(model_, member);
    if (!told.empty()) return docText(told);
    return member.structure == none ? "no item of the program" : "see {@link " + member.type + "}";
  }

  const Job& job_;
  const ServiceModel& model_;
  InterfacePlan plan_;
  TextWriter out_;
};

class JavaGenerator : public Generator {
 public:
  JavaGenerator()
      : Generator({"java",
                   "a Java interface of the service, with records for its structures",
                   {"java"},
                   true,
                   {{"package", "", "the package; none unless told"}}}) {}

  void generate(const Job& job) const override {
    JavaText java(job);
    std::string text = java.text();
    job.add(java.name() + ".java", std::move(text));
  }
};

}  // namespace

const Generator& javaGenerator() {
  static const JavaGenerator generator;
  return generator;
}

}  // namespace as::toolkit::gen
