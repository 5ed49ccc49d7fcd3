# Writes a C++ source that holds files as they are.
#   cmake -DFOLDER=... -DFILES=a;b -DOUTPUT=... -P EmbedFiles.cmake
# It defines embeddedSite(), which src/toolkit/report/SiteFiles.h declares.
set(rows "")
foreach(name IN LISTS FILES)
  file(READ ${FOLDER}/${name} text)
  string(LENGTH "${text}" length)
  if(length GREATER 60000)
    # Compilers need not take longer literals.
    message(FATAL_ERROR "${name} has ${length} characters: more than a literal holds")
  endif()
  string(REPLACE "\\" "\\\\" text "${text}")
  string(REPLACE "\"" "\\\"" text "${text}")
  string(REPLACE "\n" "\\n\"\n     \"" text "${text}")
  string(APPEND rows "    {\"${name}\",\n     \"${text}\"},\n")
endforeach()
file(WRITE ${OUTPUT} "#include \"toolkit/report/SiteFiles.h\"

namespace as::toolkit {

const std::vector<SiteFile>& embeddedSite() {
  static const std::vector<SiteFile> files = {
${rows}  };
  return files;
}

}  // namespace as::toolkit
")
