# Compares what the shared library LIBRARY shows to its clients with the list in the file LIST, name
# by name and version by version. UPDATE: writes the list anew.
cmake_minimum_required(VERSION 3.25)
include(${CMAKE_CURRENT_LIST_DIR}/../install/RunCommand.cmake)

run(nm --dynamic --demangle --defined-only --with-symbol-versions ${LIBRARY})
# An address, a kind, a name. Names hold no ";", but may hold brackets, which lists do not stand.
string(REGEX REPLACE "[0-9a-f]+ [A-Za-z] ([^\n]*)" "\\1" names "${output}")
string(REPLACE "\n" ";" names "${names}")
# The same on machines of 32 and of 64 bits.
list(TRANSFORM names REPLACE "unsigned (long|int)" "size_t")
list(FILTER names EXCLUDE REGEX "^AgentServices[A-Za-z]*_[0-9.]+(@@.*)?$")
list(REMOVE_DUPLICATES names)
list(SORT names)
string(REPLACE ";" "\n" found "${names}")
string(STRIP "${found}\n" found)
if(UPDATE)
  file(WRITE ${LIST} "${found}\n")
  return()
endif()
file(STRINGS ${LIST} expected)
set(gone ${expected})
list(REMOVE_ITEM gone ${names})
set(new ${names})
list(REMOVE_ITEM new ${expected} "")
if(gone OR new)
  list(JOIN gone "\n  " gone)
  list(JOIN new "\n  " new)
  message(FATAL_ERROR "${LIBRARY} does not show what ${LIST} lists.\nGone:\n  ${gone}\nNew:\n  ${new}\n"
                      "Is that meant, `./run abi --update` writes the list anew.")
endif()
