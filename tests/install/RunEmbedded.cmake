# Configures the project in embedded/, which has ours for a part, and compiles its code, which our
# options would refuse.
#
# ROOT: the root of our project. WORK: where to build. SOURCE, GENERATOR, COMPILER: as in Run.cmake.
include(${CMAKE_CURRENT_LIST_DIR}/RunCommand.cmake)

file(REMOVE_RECURSE ${WORK})
run(${CMAKE_COMMAND} -G ${GENERATOR} -S ${SOURCE}/install/embedded -B ${WORK} -DROOT=${ROOT}
    -DCMAKE_CXX_COMPILER=${COMPILER})
file(READ ${WORK}/options options)
if(NOT options STREQUAL "")
  message(FATAL_ERROR "our options reach the embedding project: ${options}")
endif()
run(${CMAKE_COMMAND} --build ${WORK} --target embedding)
