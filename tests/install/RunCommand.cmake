# Runs a command, whose output is then in `output`, and ends with it when it fails.
function(run)
  execute_process(COMMAND ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
  if(NOT result EQUAL 0)
    message(FATAL_ERROR "${ARGN}: ${result}\n${output}")
  endif()
  set(output "${output}" PARENT_SCOPE)
endfunction()
