// The files of a report that are the same for all: pages, styles, scripts. They stand in site/ and
// are built in.
#ifndef TOOLKIT_REPORT_SITEFILES_H_
#define TOOLKIT_REPORT_SITEFILES_H_

#include <string_view>
#include <vector>

namespace as::toolkit {

struct SiteFile {
  std::string_view name;
  std::string_view content;
};

const std::vector<SiteFile>& embeddedSite();

}  // namespace as::toolkit

#endif  // TOOLKIT_REPORT_SITEFILES_H_
