# Fails, naming them, when public operations are missing from the walk.
#
#   cmake -DHEADERS=include/as -DWALK=tests/install/walk -P operations.cmake
#
# HEADERS: the directory of the public headers. WALK: the directory of the walk's sources.
#
# Every operation that an interface declares, every static operation of CAgentServicesFactory,
# every getter of the exceptions and every global must be named by walked("Class::operation") and
# used behind that name in the same statement; operations that share a name differ by what stands
# behind it in parentheses. Destructors are left out. So are the identity members: instead every
# interface must be the target of an as::interface_cast.
cmake_minimum_required(VERSION 3.25)

set(text "")
file(GLOB sources ${WALK}/*.cpp)
foreach(file IN LISTS sources)
  file(READ "${file}" part)
  string(APPEND text "${part}")
endforeach()
string(REGEX REPLACE "//[^\n]*" "" text "${text}")

set(missing "")
set(operations 0)

# Wants `count` different names "Class::operation" or "Class::operation(...)", or "operation" alone
# when `class` is empty.
function(require class operation count)
  set(name "${operation}")
  set(use "[^A-Za-z_]${operation}[^A-Za-z_0-9]")
  if(class)
    set(name "${class}::${operation}")
    set(use "[.>:]${operation}\\(")
  endif()
  string(REGEX MATCHALL "walked\\(\"${name}(\\([^\"]*\\))?\"\\)[^;]*" statements "${text}")
  set(named "")
  foreach(statement IN LISTS statements)
    string(REGEX REPLACE "^walked\\(\"([^\"]*)\"\\).*$" "\\1" title "${statement}")
    string(REGEX REPLACE "^walked\\(\"[^\"]*\"\\)" "" behind "${statement}")
    if(behind MATCHES "${use}")
      list(APPEND named "${title}")
    endif()
  endforeach()
  list(REMOVE_DUPLICATES named)
  list(LENGTH named found)
  math(EXPR operations "${operations} + ${count}")
  set(operations ${operations} PARENT_SCOPE)
  if(found LESS count)
    set(missing "${missing}  ${name}: ${found} of ${count}\n" PARENT_SCOPE)
  endif()
endfunction()

# The same for all operations of which `declarations` holds the beginnings, up to "name(".
function(require_all class declarations)
  set(names "")
  foreach(declaration IN LISTS declarations)
    string(REGEX REPLACE "^.*[^A-Za-z_0-9]([A-Za-z_0-9]+)\\($" "\\1" name "${declaration}")
    list(APPEND names ${name})
  endforeach()
  set(distinct ${names})
  list(REMOVE_DUPLICATES distinct)
  foreach(name IN LISTS distinct)
    set(same ${names})
    list(FILTER same INCLUDE REGEX "^${name}$")
    list(LENGTH same count)
    require("${class}" ${name} ${count})
  endforeach()
  set(operations ${operations} PARENT_SCOPE)
  set(missing "${missing}" PARENT_SCOPE)
endfunction()

# A header without its comments and preprocessor lines.
function(read_header file result)
  file(READ "${file}" header)
  string(REGEX REPLACE "//[^\n]*" "" header "${header}")
  string(REGEX REPLACE "\n#[^\n]*" "" header "\n${header}")
  set(${result} "${header}" PARENT_SCOPE)
endfunction()

# Interfaces: what is virtual, or overrides.
file(GLOB headers "${HEADERS}/I*.h")
set(interfaces 0)
foreach(file IN LISTS headers)
  read_header("${file}" header)
  if(NOT header MATCHES "class AS_EXPORT (I[A-Za-z]+)")
    message(FATAL_ERROR "${file}: no interface")
  endif()
  set(class ${CMAKE_MATCH_1})
  math(EXPR interfaces "${interfaces} + 1")
  # What overrides without saying "virtual" counts like the rest.
  string(REGEX REPLACE "(\n +)([A-Za-z_][^;{}()~]*[ *&][A-Za-z_0-9]+\\([^;{}]*override)"
         "\\1virtual \\2" header "${header}")
  string(REGEX MATCHALL "virtual [^;{}()~]*[ *&][A-Za-z_0-9]+\\(" declarations "${header}")
  require_all(${class} "${declarations}")
  if(NOT text MATCHES "interface_cast<as::${class}>\\(")
    string(APPEND missing "  as::interface_cast<as::${class}>\n")
  endif()
endforeach()

read_header("${HEADERS}/CAgentServicesFactory.h" header)
string(REGEX MATCHALL "static [^;{}()~]*[ *&][A-Za-z_0-9]+\\(" declarations "${header}")
require_all(CAgentServicesFactory "${declarations}")

foreach(class CASException CASParseException)
  read_header("${HEADERS}/${class}.h" header)
  string(REGEX MATCHALL "\n +[A-Za-z_][^;{}()~]*[ *&][A-Za-z_0-9]+\\(\\) const" declarations
         "${header}")
  list(TRANSFORM declarations REPLACE "\\) const$" "")
  require_all(${class} "${declarations}")
endforeach()

read_header("${HEADERS}/Globals.h" header)
string(REGEX MATCHALL "extern AS_EXPORT [^;]*" declarations "${header}")
foreach(declaration IN LISTS declarations)
  string(REGEX MATCH "([A-Za-z_0-9]+)[^A-Za-z_0-9]*$" matched "${declaration}")
  require("" ${CMAKE_MATCH_1} 1)
endforeach()

if(interfaces EQUAL 0 OR operations EQUAL 0)
  message(FATAL_ERROR "${HEADERS}: no public headers")
endif()
if(missing)
  message(FATAL_ERROR "Not walked:\n${missing}")
endif()
message(STATUS "${operations} operations of ${interfaces} interfaces and beside them, all walked")
