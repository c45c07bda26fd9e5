# The archives and packages that cpack makes: on Linux a .tar.gz and three .deb packages, for Windows a .zip.
set(CPACK_PACKAGE_NAME kovra_asn1)
set(CPACK_PACKAGE_VENDOR "kovra")
set(CPACK_PACKAGE_CONTACT "kovra maintainers <maintainers@kovra.invalid>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "ASN.1 in BER and DER, with the structures of public-key infrastructure")
set(CPACK_PACKAGE_CHECKSUM SHA256)
set(CPACK_INCLUDE_TOPLEVEL_DIRECTORY ON)
set(CPACK_STRIP_FILES ON)
set(CPACK_COMPONENTS_ALL runtime development tool)
if(WIN32)
  set(CPACK_GENERATOR ZIP)
  set(CPACK_SYSTEM_NAME win32)
  if(CMAKE_SIZEOF_VOID_P EQUAL 8)
    set(CPACK_SYSTEM_NAME win64)
  endif()
else()
  set(CPACK_GENERATOR TGZ)
  set(CPACK_SYSTEM_NAME linux-${CMAKE_SYSTEM_PROCESSOR})
endif()

# Packages for Debian belong below /usr: `cmake --preset deb` sees to that.
if(CMAKE_INSTALL_PREFIX STREQUAL /usr)
  set(CPACK_GENERATOR DEB)
  set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
  set(CPACK_DEB_COMPONENT_INSTALL ON)
  set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
  set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
  set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${PROJECT_BINARY_DIR}/lib)
  set(CPACK_DEBIAN_ENABLE_COMPONENT_DEPENDS OFF)

  set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME libkovra-asn1-1)
  set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION libs)
  set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
  file(WRITE ${PROJECT_BINARY_DIR}/debian/triggers "activate-noawait ldconfig\n")
  set(CPACK_DEBIAN_RUNTIME_PACKAGE_CONTROL_EXTRA ${PROJECT_BINARY_DIR}/debian/triggers)
  set(CPACK_COMPONENT_RUNTIME_DESCRIPTION "ASN.1 in BER and DER, with the structures of PKI
Encodes and decodes ASN.1 values and gives typed access to certificates,
revocation lists, requests, messages, time stamps and keys. It keeps the
exact octets of what is signed, and computes no cryptography.

This package holds the shared libraries.")
  set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME libkovra-asn1-dev)
  set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
  set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS "libkovra-asn1-1 (= ${PROJECT_VERSION})")
  set(CPACK_COMPONENT_DEVELOPMENT_DESCRIPTION "ASN.1 in BER and DER: development files
Encodes and decodes ASN.1 values and gives typed access to certificates,
revocation lists, requests, messages, time stamps and keys.

This package holds headers, static libraries, documents, examples, and what
CMake and pkg-config need.")
  set(CPACK_DEBIAN_TOOL_PACKAGE_NAME kovra-asn1)
  set(CPACK_DEBIAN_TOOL_PACKAGE_SECTION utils)
  set(CPACK_DEBIAN_TOOL_PACKAGE_DEPENDS "libkovra-asn1-1 (= ${PROJECT_VERSION})")
  set(CPACK_COMPONENT_TOOL_DESCRIPTION "look into files of ASN.1 values in BER and DER
Shows certificates, revocation lists, requests, messages, time stamps and
keys in words, as a tree or as JSON, and checks whole directories of them.")

  # What Debian wants of every package: who may use it, what changed, and manual pages compressed.
  file(STRINGS ${PROJECT_SOURCE_DIR}/CHANGELOG.md released REGEX "^## ${PROJECT_VERSION} ")
  string(REGEX REPLACE ".*\\((.*)\\).*" "\\1" released "${released}")
  execute_process(COMMAND date -u -R -d ${released} OUTPUT_VARIABLE released OUTPUT_STRIP_TRAILING_WHITESPACE
                  COMMAND_ERROR_IS_FATAL ANY)
  foreach(component RUNTIME DEVELOPMENT TOOL)
    set(package ${CPACK_DEBIAN_${component}_PACKAGE_NAME})
    string(TOLOWER ${component} name)
    set(directory ${PROJECT_BINARY_DIR}/debian/${package})
    configure_file(${PROJECT_SOURCE_DIR}/cmake/debian-changelog.in ${directory}/changelog @ONLY)
    execute_process(COMMAND gzip -9nf ${directory}/changelog COMMAND_ERROR_IS_FATAL ANY)
    install(FILES ${directory}/changelog.gz ${PROJECT_SOURCE_DIR}/cmake/copyright
            DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/${package} COMPONENT ${name})
  endforeach()
endif()
include(CPack)
