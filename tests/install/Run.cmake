# Installs the build in BUILD below WORK, then configures, builds and runs the clients beside this
# file with what was installed, and the installed tool.
include(${CMAKE_CURRENT_LIST_DIR}/RunCommand.cmake)

file(REMOVE_RECURSE ${WORK})
run(${CMAKE_COMMAND} --install ${BUILD} --prefix ${WORK}/prefix)
# With the generator that is there: the default one of CMake may not be.
run(${CMAKE_COMMAND} -G ${GENERATOR} -S ${SOURCE}/install -B ${WORK}/build -DCMAKE_PREFIX_PATH=${WORK}/prefix
    -DCMAKE_CXX_COMPILER=${COMPILER} -DFLAGS=${FLAGS})
run(${CMAKE_COMMAND} --build ${WORK}/build)
file(READ ${WORK}/build/schema-dir schemas)
run(${WORK}/build/client ${schemas} ${EXAMPLES}/MOTPREM.xml)
if(NOT output MATCHES "a group of")
  message(FATAL_ERROR "the client printed: ${output}")
endif()
run(${WORK}/build/walk ${schemas} ${EXAMPLES} ${WORK}/walk)
if(NOT output MATCHES "[1-9][0-9]* operations walked, 0 failures")
  message(FATAL_ERROR "the walk printed: ${output}")
endif()
file(MAKE_DIRECTORY ${WORK}/toolkit)
run(${WORK}/build/toolkit ${schemas} ${EXAMPLES} ${WORK}/toolkit)
if(NOT output MATCHES "made [1-9][0-9]* operations, [1-9][0-9]* mappings\nconverted from Web to Java\n0 errors, of [1-9][0-9]* rules\nSERVICE MOTPREM, program MOTPREM, JSON of more\nrefused: not a data dictionary\n$")
  message(FATAL_ERROR "the toolkit's client printed: ${output}")
endif()
# What the toolkit writes JSON with is its own affair.
file(GLOB_RECURSE package ${WORK}/prefix/*.cmake ${WORK}/prefix/*.h)
foreach(file IN LISTS package)
  file(STRINGS ${file} found REGEX nlohmann)
  if(found)
    message(FATAL_ERROR "${file}: ${found}")
  endif()
endforeach()
# Without --schemas: the tool finds the schemas that were installed with it.
file(READ ${WORK}/build/tool tool)
run(${tool} validate ${EXAMPLES}/MOTPREM.xml)
foreach(file man/man1/agentservices.1 man/man1/agentservices-lint.1
        bash-completion/completions/agentservices zsh/site-functions/_agentservices)
  if(NOT EXISTS ${WORK}/prefix/share/${file})
    message(FATAL_ERROR "share/${file} was not installed")
  endif()
endforeach()

# The same client by pkg-config.
set(ENV{PKG_CONFIG_PATH} ${WORK}/prefix/${LIBDIR}/pkgconfig)
run(pkg-config --cflags --libs agentservices agentservices-toolkit)
separate_arguments(flags UNIX_COMMAND "${output}")
if(FLAGS)
  list(APPEND flags -fsanitize=${FLAGS})
endif()
run(${COMPILER} -std=c++17 ${SOURCE}/install/toolkit.cpp -o ${WORK}/by-pkg-config ${flags}
    -Wl,-rpath,${WORK}/prefix/${LIBDIR})
run(pkg-config --variable=schemadir agentservices)
string(STRIP "${output}" schemas)
run(${WORK}/by-pkg-config ${schemas} ${EXAMPLES} ${WORK}/toolkit)

# Without the tool: what is there is found, and what is not is not.
run(${CMAKE_COMMAND} --install ${BUILD} --prefix ${WORK}/some --component Runtime)
foreach(component Toolkit Development Schemas)
  run(${CMAKE_COMMAND} --install ${BUILD} --prefix ${WORK}/some --component ${component})
endforeach()
if(EXISTS ${WORK}/some/bin)
  message(FATAL_ERROR "the tool came with something else")
endif()
foreach(components "" "COMPONENTS Toolkit" "COMPONENTS Tool" "COMPONENTS Spoon")
  file(WRITE ${WORK}/asks/CMakeLists.txt "cmake_minimum_required(VERSION 3.25)\nproject(Asks NONE)\n"
       "set(CMAKE_SIZEOF_VOID_P ${POINTER})\nset(CMAKE_LIBRARY_ARCHITECTURE ${ARCHITECTURE})\n"
       "find_package(AgentServices 1.0 ${components})\n"
       "message(STATUS \"found: \${AgentServices_FOUND}\")\n")
  run(${CMAKE_COMMAND} -G ${GENERATOR} -S ${WORK}/asks -B ${WORK}/asks/build
      -DCMAKE_PREFIX_PATH=${WORK}/some)
  if(components MATCHES "Tool$|Spoon")
    set(expected 0)
  else()
    set(expected 1)
  endif()
  if(NOT output MATCHES "found: ${expected}")
    message(FATAL_ERROR "find_package(AgentServices ${components}): ${output}")
  endif()
endforeach()
