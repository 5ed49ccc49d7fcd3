// csharp: an interface of a service, with a class for each structure.
#include <algorithm>
#include <string>
#include <vector>

#include "toolkit/generate/CSharpLanguage.h"
#include "toolkit/generate/CodeText.h"
#include "toolkit/generate/Generator.h"
#include "toolkit/generate/InterfacePlan.h"
#include "toolkit/generate/TextWriter.h"
#include "toolkit/text/Phrases.h"

namespace as::toolkit::gen {

namespace {

constexpr std::size_t indentation = 4;

std::string typeOf(const Member& member) {
  const bool isList = member.field != nullptr && member.field->isTable();
  return isList ? "IList<" + member.type + ">" : member.type;
}

class CSharpText {
 public:
  explicit CSharpText(const Job& job)
      : job_(job), model_(job.model), plan_(planOf(job, csharpLanguage())) {}

  std::string text() {
    const std::string chosen = dottedOption(job_, "namespace", csharpLanguage().members);
    out_.line("// " + job_.banner());
    out_.line();
    // Nothing in the namespace can be meant by IList<...>: types that are made take no others.
    if (hasLists()) {
      out_.line("using System.Collections.Generic;");
      out_.line();
    }
    out_.line("namespace " + (chosen.empty() ? plan_.name : chosen));
    out_.open("{");
    if (model_.flavour != nullptr) writeInterface();
    for (const Structure& structure : plan_.structures) writeStructure(structure);
    out_.close("}");
    return out_.take();
  }

 private:
  bool hasLists() const {
    const auto isList = [](const Member& member) {
      return member.field != nullptr && member.field->isTable();
    };
    const auto hasList = [&isList](const std::vector<Member>& members) {
      return std::any_of(members.begin(), members.end(), isList);
    };
    return std::any_of(
               plan_.structures.begin(), plan_.structures.end(),
               [&hasList](const Structure& structure) { return hasList(structure.members); }) ||
           std::any_of(plan_.methods.begin(), plan_.methods.end(),
                       [&hasList](const Method& method) { return hasList(method.parameters); });
  }

  void writeInterface() {
    writeSummary(
        docText(model_.name + ": what program " + model_.program + " does for its callers."));
    out_.line("public interface " + plan_.interface);
    out_.open("{");
    for (std::size_t i = 0; i < plan_.methods.size(); ++i) {
      if (i > 0) out_.line();
      writeMethod(plan_.methods[i]);
    }
    out_.close("}");
  }

  // What comes out alone is the answer, if nothing else does.
  static const Member* answerOf(const Method& method) {
    const Member* answer = nullptr;
    for (const Member& member : method.parameters) {
      if (!comesOut(member.field->direction)) continue;
      if (answer != nullptr || goesIn(member.field->direction)) return nullptr;
      answer = &member;
    }
    return answer;
  }

  void writeMethod(const Method& method) {
    const Member* const answer = answerOf(method);
    writeSummary(docText("Operation " + quote(method.operation->name) + " calls entry point " +
                         quote(method.operation->entryPoint) + "."));
    std::string parameters;
    for (const Member& member : method.parameters) {
      const std::string about = docOf(member);
      if (&member == answer) {
        out_.line("/// <returns>" + about + "</returns>");
        continue;
      }
      out_.line("/// <param name=\"" + member.name + "\">" + about + "</param>");
      if (!parameters.empty()) parameters += ", ";
      if (!goesIn(member.field->direction)) parameters += "out ";
      if (member.field->direction == Direction::both) parameters += "ref ";
      parameters += typeOf(member) + " " + member.name;
    }
    out_.line((answer == nullptr ? "void" : typeOf(*answer)) + " " + method.name + "(" +
              parameters + ");");
  }

  void writeStructure(const Structure& structure) {
    out_.line();
    writeSummary(docText("The structure of " + structure.place.text() + "."));
    out_.line("public class " + structure.name);
    out_.open("{");
    for (std::size_t i = 0; i < structure.members.size(); ++i) {
      const Member& member = structure.members[i];
      if (i > 0) out_.line();
      writeSummary(docOf(member));
      out_.line("public " + typeOf(member) + " " + member.name + " { get; set; }");
    }
    out_.close("}");
  }

  void writeSummary(const std::string& doc) { out_.line("/// <summary>" + doc + "</summary>"); }

  std::string docOf(const Member& member) const {
    const std::string told = textAbout(model_, member);
    if (!told.empty()) return docText(told);
    return member.structure == none ? "no item of the program"
                                    : "see <see cref=\"" + member.type + "\"/>";
  }

  const Job& job_;
  const ServiceModel& model_;
  InterfacePlan plan_;
  TextWriter out_{indentation};
};

class CSharpGenerator : public Generator {
 public:
  CSharpGenerator()
      : Generator({"csharp",
                   "a C# interface of the service, with classes for its structures",
                   {"dotnet"},
                   true,
                   {{"namespace", "", "the namespace; the service's name unless told"}}}) {}

  void generate(const Job& job) const override {
    job.add(job.fileStem() + ".cs", CSharpText(job).text());
  }
};

}  // namespace

const Generator& csharpGenerator() {
  static const CSharpGenerator generator;
  return generator;
}

}  // namespace as::toolkit::gen
