// agentservices report: makes a site of documents for looking at.
#include "as/toolkit/Report.h"

#include <iostream>

#include "as/toolkit/Files.h"
#include "as/toolkit/Generate.h"
#include "as/toolkit/Text.h"
#include "cli/Command.h"
#include "cli/Inputs.h"
#include "cli/Messages.h"

namespace cli {

namespace {

class ReportCommand : public Command {
 public:
  ReportCommand() : Command("report", "Make a site for looking at dictionaries and services") {}

  std::vector<Example> examples() const override {
    return {{"report MOTPREM.xml quotes.xml -o site", "pages of a program and of its service"},
            {"report -r dictionaries --source sources -o site",
             "of a folder, with the lines of the sources"},
            {"report quotes.xml --generate wsdl,markdown -o site", "with what its callers need"}};
  }

  void declare(Arguments& arguments) override {
    inputs_.declareNames(arguments, "FILE");
    arguments.requiredOption("-o,--output", output_,
                             "The folder of the site; open its index.html in a browser");
    arguments.list("--source", options_.sourceFolders, "DIR,...",
                   "Folders of sources to show, before those of the dictionaries");
    arguments.list(
        "--generate", options_.kinds, "KIND,...",
        "What to make of the services, and link from their pages; the kinds are those of "
        "'generate', and what a service's flavour does not fit is left out");
    offerGeneratorKinds(arguments);
  }

  // A refused document is told; the others are shown all the same.
  int run(const std::optional<std::string>& schemas) override {
    for (const std::string& word : options_.kinds) {
      if (toolkit::findGeneratorKind(word) != nullptr) continue;
      printError(noGeneratorKind(word));
      return exitUsage;
    }
    return withReader(schemas, [this](const toolkit::DocumentReader& reader) {
      const bool isFound = inputs_.find();
      std::vector<toolkit::DocumentSource> sources;
      for (const Input& input : inputs_.all()) sources.push_back(input.source);
      const toolkit::Report report = toolkit::makeReportFrom(reader, sources, options_);
      for (const toolkit::Refusal& refusal : report.refusals) {
        printRefusal(withFolderHint(refusal, {toolkit::DocumentSource{refusal.file}}));
      }
      if (report.programs + report.services == 0) return exitRefused;
      toolkit::writeReport(report, output_);
      std::cout << toolkit::printable(output_)
                << "/index.html: " << toolkit::count(report.programs, "program") << ", "
                << toolkit::count(report.services, "service") << ", "
                << toolkit::count(report.findings, "finding");
      if (!options_.kinds.empty()) {
        std::cout << ", " << toolkit::count(report.made, "file") << " for callers";
      }
      std::cout << "\n";
      return report.refusals.empty() && isFound ? exitFine : exitRefused;
    });
  }

 private:
  Inputs inputs_;
  std::string output_;
  toolkit::ReportOptions options_;
};

}  // namespace

std::unique_ptr<Command> reportCommand() { return std::make_unique<ReportCommand>(); }

}  // namespace cli
