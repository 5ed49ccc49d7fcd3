// Makes a report, in memory, of the input, a dictionary or a service, and of the dictionaries that
// it names. Of a document nothing gets into the pages but JSON in plain ASCII without a character
// that means something to a browser, and the same input gives the same bytes.
#include <algorithm>
#include <nlohmann/json.hpp>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "Report.h"
#include "Shape.h"
#include "ToolkitRequests.h"
#include "as/AgentServices.h"
#include "as/toolkit/Report.h"

namespace toolkit = as::toolkit;
using fuzz::require;

const fuzz::Shape fuzz::shape = fuzz::documentsWith(fuzz::Shape::Files::dictionaries);

namespace {

bool startsWith(const std::string& text, std::string_view start) {
  return text.compare(0, start.size(), start) == 0;
}

// data/ID.js, which is the call asReport.add("ID", JSON).
void checkData(const toolkit::ReportFile& file) {
  constexpr std::string_view folder = "data/";
  constexpr std::string_view ending = ".js";
  constexpr std::string_view close = ");\n";
  require(file.name.size() > folder.size() + ending.size());
  const std::string id =
      file.name.substr(folder.size(), file.name.size() - folder.size() - ending.size());
  require(id == "index" || id == "names" ||
          id.find_first_not_of("0123456789", 1) == std::string::npos);
  const std::string open = "asReport.add(\"" + id + "\", ";
  require(startsWith(file.content, open) && file.content.size() > open.size() + close.size());
  const std::size_t end = file.content.size() - close.size();
  require(file.content.compare(end, close.size(), close) == 0);
  const std::string json = file.content.substr(open.size(), end - open.size());
  require(json.find_first_of("<>&") == std::string::npos);
  for (const char c : json) require(c >= ' ' && c < 0x7F);
  require(nlohmann::json::accept(json));
}

// What stands in every report.
const std::vector<toolkit::ReportFile>& emptySite() {
  static const std::vector<toolkit::ReportFile> files =
      toolkit::makeReport(fuzz::reader(), {}).files;
  return files;
}

bool isSame(const toolkit::ReportFile& left, const toolkit::ReportFile& right) {
  return left.name == right.name && left.content == right.content;
}

void check(const toolkit::Report& report) {
  std::set<std::string> names;
  require(report.files.size() >= emptySite().size());
  for (std::size_t i = 0; i < report.files.size(); i++) {
    const toolkit::ReportFile& file = report.files[i];
    require(names.insert(file.name).second);
    if (startsWith(file.name, "data/")) {
      checkData(file);
    } else {
      require(isSame(file, emptySite().at(i)));
    }
  }
  for (const toolkit::Refusal& refusal : report.refusals) require(!refusal.text.empty());
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view input(reinterpret_cast<const char*>(data), size);
  const fuzz::InputFiles files(input);
  const std::string file = fuzz::workDirectory().file("document.xml");
  fuzz::workDirectory().write("document.xml", input);
  const toolkit::Report report = toolkit::makeReport(fuzz::reader(), {file});
  check(report);
  if (report.programs + report.services == 0) return 0;
  fuzz::countModel();
  const toolkit::Report again = toolkit::makeReport(fuzz::reader(), {file});
  require(std::equal(report.files.begin(), report.files.end(), again.files.begin(),
                     again.files.end(), isSame));
  return 0;
}
