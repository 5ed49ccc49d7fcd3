# Installs the build in BUILD below WORK, then configures, builds and runs the clients beside this
# file with what was installed, and the installed tool.
function(run)
  execute_process(COMMAND ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
  if(NOT result EQUAL 0)
    message(FATAL_ERROR "${ARGN}: ${result}\n${output}")
  endif()
  set(output "${output}" PARENT_SCOPE)
endfunction()

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
# Without --schemas: the tool finds the schemas that were installed with it.
run(${WORK}/prefix/bin/agentservices validate ${EXAMPLES}/MOTPREM.xml)
