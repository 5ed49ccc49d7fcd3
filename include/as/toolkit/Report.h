// Makes a site of dictionaries and services for looking at: one folder that opens in a browser from
// the disk.
#ifndef AS_TOOLKIT_REPORT_H_
#define AS_TOOLKIT_REPORT_H_

#include <string>
#include <vector>

#include "as/Export.h"
#include "as/toolkit/DocumentReader.h"

namespace as::toolkit {

// What a site is to show.
struct ReportOptions {
  // Where the sources of programs are looked for, by the names that dictionaries give them, beside
  // the folder of each dictionary. Only their own names count, no folders in these.
  std::vector<std::string> sourceFolders;
  // The kinds (see Generate.h) to make of each service whose flavour they take: their words. What
  // is made goes to "made/", and the service's page links it. Words that name no kind count for
  // nothing.
  std::vector<std::string> kinds;
};

// A file of the site: its name, with "/" between, counted from the site's folder, and its bytes.
struct ReportFile {
  std::string name;     // "data/p1.js"
  std::string content;  // UTF-8, as all files of the site.
};

// A site, and what there is to tell of it.
struct Report {
  std::vector<ReportFile> files;  // "index.html" first.
  std::vector<Refusal> refusals;  // Documents that are left out.
  std::size_t programs = 0;       // That have pages.
  std::size_t services = 0;       // That have pages.
  std::size_t findings = 0;       // Of lint, errors and warnings.
  std::size_t made = 0;           // Files for callers.
};

// The site of the dictionaries and services in `files`, with the dictionaries that services name
// and that can be read, and what lint finds. The same input gives the same bytes. Nothing of a
// document gets into a page but as text. Throws as::CASException when the library does not run.
AS_EXPORT Report makeReport(const DocumentReader& reader, const std::vector<std::string>& files,
                            const ReportOptions& options = {});

// The same of documents that need not be files.
AS_EXPORT Report makeReportFrom(const DocumentReader& reader,
                                const std::vector<DocumentSource>& sources,
                                const ReportOptions& options = {});

// Writes the files below `folder`, which is made when it is not there; what else it holds stays.
// Throws FileError (see Files.h).
AS_EXPORT void writeReport(const Report& report, const std::string& folder);

}  // namespace as::toolkit

#endif  // AS_TOOLKIT_REPORT_H_
