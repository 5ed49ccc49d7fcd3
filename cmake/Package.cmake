# Debian packages of what is installed (AS_PACKAGE; ./run package): one for each part, see
# Install.cmake. Made for the system's own folders, so that nothing needs a path to anything.
set(version ${PROJECT_VERSION}-1)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_PACKAGE_CONTACT "AgentServices maintainers <agentservices@agentservices.example>")
set(CPACK_PACKAGE_VENDOR AgentServices)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_GROUPING IGNORE)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_SOURCE agentservices)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY ">=")
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${PROJECT_BINARY_DIR})
set(CPACK_COMPONENTS_ALL "")

# What every package brings of its own: its copyright and changelogs.
file(MAKE_DIRECTORY ${PROJECT_BINARY_DIR}/packaging)
foreach(log "packaging/changelog changelog.Debian" "CHANGELOG.md changelog")
  separate_arguments(log)
  list(GET log 0 source)
  list(GET log 1 name)
  configure_file(${source} packaging/${name} COPYONLY)
  # Without the name and the time of the file.
  execute_process(COMMAND gzip --best --no-name --force ${PROJECT_BINARY_DIR}/packaging/${name}
                  COMMAND_ERROR_IS_FATAL ANY)
endforeach()

# The package `name` of the part `component`: its section, one line on what it is, and more.
function(as_package component name architecture section summary text)
  string(TOUPPER ${component} part)
  set(CPACK_COMPONENTS_ALL ${CPACK_COMPONENTS_ALL} ${component} PARENT_SCOPE)
  set(CPACK_DEBIAN_${part}_PACKAGE_NAME ${name} PARENT_SCOPE)
  set(CPACK_DEBIAN_${part}_PACKAGE_SECTION ${section} PARENT_SCOPE)
  set(CPACK_COMPONENT_${part}_DESCRIPTION "${summary}\n${text}" PARENT_SCOPE)
  if(architecture STREQUAL all)
    set(CPACK_DEBIAN_${part}_PACKAGE_ARCHITECTURE all PARENT_SCOPE)
    set(CPACK_DEBIAN_${part}_PACKAGE_SHLIBDEPS OFF PARENT_SCOPE)
  else()
    set(CPACK_DEBIAN_${part}_PACKAGE_SHLIBDEPS ON PARENT_SCOPE)
  endif()
  set(documents ${CMAKE_INSTALL_DATADIR}/doc/${name})
  install(FILES packaging/copyright DESTINATION ${documents} COMPONENT ${component})
  install(FILES ${PROJECT_BINARY_DIR}/packaging/changelog.Debian.gz
                ${PROJECT_BINARY_DIR}/packaging/changelog.gz
          DESTINATION ${documents} COMPONENT ${component})
  # What lintian may find, in general and of such parts.
  set(exceptions ${PROJECT_BINARY_DIR}/packaging/${name})
  configure_file(packaging/lintian.in ${exceptions} @ONLY)
  if(component MATCHES "^(Runtime|Toolkit)$")
    file(READ packaging/lintian-library.in more)
    file(APPEND ${exceptions} "${more}")
  endif()
  if(EXISTS ${PROJECT_SOURCE_DIR}/packaging/lintian-${component}.in)
    file(READ packaging/lintian-${component}.in more)
    file(APPEND ${exceptions} "${more}")
  endif()
  install(FILES ${exceptions} DESTINATION ${CMAKE_INSTALL_DATADIR}/lintian/overrides
          COMPONENT ${component})
endfunction()

set(about "AgentServices is an object model over XML documents about COBOL programs:
data dictionaries, and service definitions that expose such a program.")
set(libagentservices libagentservices${PROJECT_VERSION_MAJOR})
set(libagentservicestoolkit libagentservicestoolkit${PROJECT_VERSION_MAJOR})

as_package(Runtime ${libagentservices} any libs
    "object model over XML documents about COBOL programs" "${about}
.
This package holds the library.")
set(CPACK_DEBIAN_RUNTIME_PACKAGE_CONTROL_EXTRA ${PROJECT_SOURCE_DIR}/packaging/triggers)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_RECOMMENDS "agentservices-schemas (= ${version})")

as_package(Toolkit ${libagentservicestoolkit} any libs
    "checks, makes and converts descriptions of COBOL programs" "${about}
.
This package holds the library that does what the command agentservices does.")
set(CPACK_DEBIAN_TOOLKIT_PACKAGE_CONTROL_EXTRA ${PROJECT_SOURCE_DIR}/packaging/triggers)
set(CPACK_DEBIAN_TOOLKIT_PACKAGE_DEPENDS "${libagentservices} (= ${version})")
set(CPACK_DEBIAN_TOOLKIT_PACKAGE_RECOMMENDS "agentservices-schemas (= ${version})")

as_package(Schemas agentservices-schemas all text
    "XML schemas of AgentServices' documents" "${about}
.
This package holds the schemas of the documents, which the libraries read.")

as_package(Tool agentservices any devel
    "shows, checks and makes descriptions of COBOL programs" "${about}
.
This package holds the command agentservices: it makes dictionaries of COBOL
sources and services for them, and finds what is broken in either.")
set(CPACK_DEBIAN_TOOL_PACKAGE_DEPENDS "${libagentservicestoolkit} (= ${version}), \
${libagentservices} (= ${version}), agentservices-schemas (= ${version})")

as_package(Development libagentservices-dev any libdevel
    "object model over documents about COBOL programs (development)" "${about}
.
This package holds what is needed to write programs that use the libraries.")
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS "${libagentservicestoolkit} (= ${version}), \
${libagentservices} (= ${version}), agentservices-schemas (= ${version})")

as_package(Documentation libagentservices-doc all doc
    "object model over documents about COBOL programs (documentation)" "${about}
.
This package holds the guide, the reference of the libraries, and examples.")
install(FILES packaging/libagentservices-doc DESTINATION ${CMAKE_INSTALL_DATADIR}/doc-base
        COMPONENT Documentation)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SUGGESTS "libagentservices-doc (= ${version})")
set(CPACK_DEBIAN_TOOL_PACKAGE_SUGGESTS "libagentservices-doc (= ${version})")

# The first lines of the descriptions above are their summaries.
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "")
include(CPack)
