// What compiler directives in a source have done: lines left out, the format of those behind.
#ifndef TOOLKIT_IMPORT_DIRECTIVES_H_
#define TOOLKIT_IMPORT_DIRECTIVES_H_

#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "toolkit/import/Definitions.h"
#include "toolkit/import/SourceLines.h"
#include "toolkit/import/SourceReader.h"
#include "toolkit/import/SourceReport.h"

namespace as::toolkit {

class Directives {
 public:
  // `report` must outlive it.
  Directives(const std::vector<SourceOptions::Definition>& parameters, SourceReport& report);

  // Does what the directive in `line` says, which comes from `lines` of `file`.
  void take(const SourceLine& line, std::int32_t file, SourceLines& lines);

  // Whether a condition leaves out what stands here.
  bool isSkipping() const { return !branches_.empty() && !branches_.back().isActive; }

  // Null when that name is not defined here.
  const DirectiveValue* find(std::string_view name) const { return definitions_.find(name); }

  // Tells of conditions that do not end, once all is read.
  void finish();

 private:
  // A condition, or an EVALUATE, that has not ended.
  struct Branch {
    SourcePlace place;
    bool isWithinSkipped = false;
    bool isActive = false;
    bool wasActive = false;  // It, or one of those before it.
    bool isEvaluate = false;
    bool comparesWithTrue = false;
    std::optional<DirectiveValue> subject;
  };

  // False when the word is none of a condition's.
  bool takeConditional(std::string_view word, DirectiveText& text);
  void takeDefine(DirectiveText& text);
  void takeSource(DirectiveText& text, SourceLines& lines);
  void takeSet(std::string_view line, DirectiveText& text, SourceLines& lines);
  void setFormat(std::string_view word, SourceLines& lines);
  void open(bool isEvaluate);
  void turn(bool isTrue);
  Branch& current(const char* word, bool isEvaluate);
  bool whenHolds(DirectiveText& text);
  void noteOnce(SourceRule rule, std::string_view key, const std::string& problem);

  SourceReport& report_;
  Definitions definitions_;
  Definitions parameters_;
  std::vector<Branch> branches_;
  std::set<std::string, std::less<>> noted_;
  SourcePlace place_;
  Definitions::Undefined tellUndefined_;
};

}  // namespace as::toolkit

#endif  // TOOLKIT_IMPORT_DIRECTIVES_H_
