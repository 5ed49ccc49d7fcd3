# Compares the public types, which LIBRARY is made of, with what BASELINE keeps of them: sizes,
# members, and the slots of virtual functions. UPDATE: keeps them anew.
cmake_minimum_required(VERSION 3.25)
include(${CMAKE_CURRENT_LIST_DIR}/../install/RunCommand.cmake)

get_filename_component(name ${BASELINE} NAME_WLE)
if(UPDATE)
  run(abidw --no-show-locs --no-corpus-path --no-comp-dir-path --no-elf-needed
      --out-file ${WORK}/${name} ${LIBRARY})
  run(gzip --best --no-name --force ${WORK}/${name})
  file(COPY_FILE ${WORK}/${name}.gz ${BASELINE})
  return()
endif()
file(COPY_FILE ${BASELINE} ${WORK}/${name}.gz)
run(gzip --decompress --force ${WORK}/${name}.gz)
execute_process(COMMAND abidiff ${WORK}/${name} ${LIBRARY} RESULT_VARIABLE result
                OUTPUT_VARIABLE output ERROR_VARIABLE output)
if(NOT result EQUAL 0)
  message(FATAL_ERROR "The public types are not what they were; clients that were built with them "
                      "have to be built anew:\n${output}\n"
                      "Is that meant, `./run abi --update` keeps them as they are.")
endif()
