# What is installed: headers, libraries, the tool with its man page and completions, documents and examples, and what
# CMake and pkg-config need to find them. Nothing names a place of the machine that built it: the prefix may be moved.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

if(WIN32)
  set(doc_dir .)
  set(cmake_dir lib/cmake/kovra)
else()
  set(doc_dir ${CMAKE_INSTALL_DOCDIR})
  set(cmake_dir ${CMAKE_INSTALL_LIBDIR}/cmake/kovra)
endif()

set(libraries kovra_util kovra_asn1)
set(static_libraries "")
if(KOVRA_STATIC_LIBRARIES)
  set(static_libraries kovra_util_static kovra_asn1_static)
endif()

# Beside each other, wherever that is; in the system's own places no path is wanted.
string(COMPARE NOTEQUAL "${CMAKE_INSTALL_PREFIX}" /usr needs_path)
if(NOT WIN32 AND needs_path)
  set_target_properties(kovra_asn1 PROPERTIES INSTALL_RPATH "$ORIGIN")
  if(TARGET kovra-asn1)
    set_target_properties(kovra-asn1 PROPERTIES INSTALL_RPATH "$ORIGIN/../${CMAKE_INSTALL_LIBDIR}")
  endif()
endif()

install(TARGETS ${libraries} EXPORT kovraTargets
        RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT runtime
        LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT runtime NAMELINK_COMPONENT development
        ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT development
        INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
if(static_libraries)
  install(TARGETS ${static_libraries} EXPORT kovraTargets
          ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT development
          INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
endif()
if(WIN32)
  install(FILES ${PROJECT_BINARY_DIR}/lib/kovra_util.def ${PROJECT_BINARY_DIR}/lib/kovra_asn1.def
          DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT development)
endif()
install(DIRECTORY ${PROJECT_SOURCE_DIR}/include/kovra DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} COMPONENT development
        FILES_MATCHING PATTERN *.h)

# CMake.
configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/kovraConfig.cmake.in ${PROJECT_BINARY_DIR}/kovraConfig.cmake
                              INSTALL_DESTINATION ${cmake_dir} NO_SET_AND_CHECK_MACRO)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/kovraConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/kovraConfig.cmake ${PROJECT_BINARY_DIR}/kovraConfigVersion.cmake
        DESTINATION ${cmake_dir} COMPONENT development)
install(EXPORT kovraTargets NAMESPACE kovra:: DESTINATION ${cmake_dir} COMPONENT development)

# pkg-config, which finds the prefix from its file's own place.
file(RELATIVE_PATH prefix_of_pc /${CMAKE_INSTALL_LIBDIR}/pkgconfig /)
string(REGEX REPLACE "/$" "" prefix_of_pc ${prefix_of_pc})
foreach(library ${libraries})
  configure_file(${PROJECT_SOURCE_DIR}/cmake/${library}.pc.in ${PROJECT_BINARY_DIR}/${library}.pc @ONLY)
  install(FILES ${PROJECT_BINARY_DIR}/${library}.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT development)
endforeach()

# The tool.
if(TARGET kovra-asn1)
  install(TARGETS kovra-asn1 RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT tool)
  if(NOT WIN32)
    set(share ${PROJECT_SOURCE_DIR}/tools/share)
    set(manual ${PROJECT_BINARY_DIR}/kovra-asn1.1)
    configure_file(${share}/kovra-asn1.1 ${manual} COPYONLY)
    execute_process(COMMAND gzip -9nf ${manual} COMMAND_ERROR_IS_FATAL ANY)
    install(FILES ${manual}.gz DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT tool)
    install(FILES ${share}/kovra-asn1.bash DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions
            RENAME kovra-asn1 COMPONENT tool)
    install(FILES ${share}/_kovra-asn1 DESTINATION ${CMAKE_INSTALL_DATADIR}/zsh/vendor-completions COMPONENT tool)
    install(FILES ${share}/kovra-asn1.fish DESTINATION ${CMAKE_INSTALL_DATADIR}/fish/vendor_completions.d
            COMPONENT tool)
  endif()
endif()

# Documents and examples.
install(FILES ${PROJECT_SOURCE_DIR}/README.md ${PROJECT_SOURCE_DIR}/CHANGELOG.md ${PROJECT_SOURCE_DIR}/CONTRIBUTING.md
              ${PROJECT_SOURCE_DIR}/SECURITY.md
        DESTINATION ${doc_dir} COMPONENT development)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/docs/ DESTINATION ${doc_dir}/docs COMPONENT development)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/examples/ DESTINATION ${doc_dir}/examples COMPONENT development)
