# What is installed, in parts (`cmake --install DIR --component NAME`):
#
#   Runtime        libAgentServices.so.N, for programs that use the model
#   Toolkit        libAgentServicesToolkit.so.N
#   Schemas        the schemas of the documents, which all others read at run time
#   Tool           the command agentservices
#   Development    headers, the names that linkers look for, CMake's and pkg-config's descriptions
#   Documentation  the guide, the reference and the examples, where ./run docs has built the site and
#                  AS_DOCS tells its folder
include(CMakePackageConfigHelpers)

set(AS_CMAKE_INSTALL_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/AgentServices)

# What is not installed where the system looks for libraries finds them by itself.
if(NOT AS_PACKAGE)
  set_target_properties(AgentServicesToolkit PROPERTIES INSTALL_RPATH "$ORIGIN")
  file(RELATIVE_PATH libraries /prefix/${CMAKE_INSTALL_BINDIR} /prefix/${CMAKE_INSTALL_LIBDIR})
  set_target_properties(agentservices-tool PROPERTIES INSTALL_RPATH "$ORIGIN/${libraries}")
endif()

install(TARGETS AgentServices EXPORT AgentServicesTargets
        LIBRARY COMPONENT Runtime NAMELINK_COMPONENT Development)
install(TARGETS AgentServicesToolkit EXPORT AgentServicesToolkitTargets
        LIBRARY COMPONENT Toolkit NAMELINK_COMPONENT Development)
install(TARGETS agentservices-tool EXPORT AgentServicesToolTargets RUNTIME COMPONENT Tool)
install(DIRECTORY schema/ DESTINATION ${AS_SCHEMA_INSTALL_DIR} COMPONENT Schemas
        FILES_MATCHING PATTERN "*.xsd")
install(DIRECTORY include/as DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} COMPONENT Development)

set(AS_DOCS "" CACHE PATH "The folder of the site of documents, to install it")
if(AS_DOCS)
  set(documents ${CMAKE_INSTALL_DATADIR}/doc/libagentservices-doc)
  install(DIRECTORY ${AS_DOCS}/ DESTINATION ${documents}/html COMPONENT Documentation)
  install(DIRECTORY examples DESTINATION ${documents} COMPONENT Documentation)
endif()

# The tool's manual pages and completions: it makes them itself. (What is counted is what tests run.)
if(NOT AS_COVERAGE)
  set(made ${CMAKE_CURRENT_BINARY_DIR}/tool)
  if(AS_PACKAGE)
    set(compress gzip --best --no-name ${made}/man1/*.1)
    set(zsh_completions ${CMAKE_INSTALL_DATADIR}/zsh/vendor-completions)
  else()
    set(compress true)
    set(zsh_completions ${CMAKE_INSTALL_DATADIR}/zsh/site-functions)
  endif()
  add_custom_command(OUTPUT ${made}/made
      COMMAND ${CMAKE_COMMAND} -E rm -rf ${made}
      COMMAND ${CMAKE_COMMAND} -E make_directory ${made}
      COMMAND agentservices-tool manual -o ${made}/man1
      COMMAND ${compress}
      COMMAND agentservices-tool completion bash > ${made}/agentservices
      COMMAND agentservices-tool completion zsh > ${made}/_agentservices
      COMMAND ${CMAKE_COMMAND} -E touch ${made}/made
      DEPENDS agentservices-tool COMMENT "Making the tool's manual pages and completions")
  add_custom_target(tool_texts ALL DEPENDS ${made}/made)
  install(DIRECTORY ${made}/man1 DESTINATION ${CMAKE_INSTALL_MANDIR} COMPONENT Tool)
  install(FILES ${made}/agentservices
          DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions COMPONENT Tool)
  install(FILES ${made}/_agentservices DESTINATION ${zsh_completions} COMPONENT Tool)
endif()

# For find_package(AgentServices [COMPONENTS Toolkit Tool]). The tool's part comes with the tool:
# whoever develops need not have it.
foreach(part "" Toolkit)
  install(EXPORT AgentServices${part}Targets NAMESPACE AgentServices::
          DESTINATION ${AS_CMAKE_INSTALL_DIR} COMPONENT Development)
endforeach()
install(EXPORT AgentServicesToolTargets NAMESPACE AgentServices::
        DESTINATION ${AS_CMAKE_INSTALL_DIR} COMPONENT Tool)
configure_package_config_file(cmake/AgentServicesConfig.cmake.in AgentServicesConfig.cmake
    INSTALL_DESTINATION ${AS_CMAKE_INSTALL_DIR} PATH_VARS AS_SCHEMA_INSTALL_DIR)
write_basic_package_version_file(AgentServicesConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/AgentServicesConfig.cmake
              ${CMAKE_CURRENT_BINARY_DIR}/AgentServicesConfigVersion.cmake
        DESTINATION ${AS_CMAKE_INSTALL_DIR} COMPONENT Development)

# For pkg-config. Like CMake's files they go by where they are, so that a prefix can be moved.
file(RELATIVE_PATH prefix_from_pkgconfig /prefix/${CMAKE_INSTALL_LIBDIR}/pkgconfig /prefix)
cmake_path(SET prefix_from_pkgconfig NORMALIZE ${prefix_from_pkgconfig}.)
foreach(name agentservices agentservices-toolkit)
  configure_file(cmake/${name}.pc.in ${name}.pc @ONLY)
  install(FILES ${CMAKE_CURRENT_BINARY_DIR}/${name}.pc
          DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT Development)
endforeach()
