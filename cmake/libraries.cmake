# The companion library kovra_util and the codec kovra_asn1, shared and static: the targets kovra::util, kovra::asn1,
# kovra::util_static and kovra::asn1_static.

file(GLOB KOVRA_UTIL_SOURCES CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/util/*.cpp)
set(KOVRA_ASN1_SOURCES "")
foreach(room core types push json pkix cms services keys)
  file(GLOB sources CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/${room}/*.cpp)
  list(APPEND KOVRA_ASN1_SOURCES ${sources})
endforeach()

# kovra_library(name sources define): one library in both forms, with nothing exported that does not say so.
function(kovra_library name sources define)
  set(targets ${name})
  add_library(${name} SHARED ${sources})
  set_target_properties(${name} PROPERTIES VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION_MAJOR})
  if(KOVRA_STATIC_LIBRARIES)
    add_library(${name}_static STATIC ${sources})
    target_compile_definitions(${name}_static PUBLIC KOVRA_STATIC)
    # The C++ library for programs that a C compiler links.
    target_link_libraries(${name}_static INTERFACE $<LINK_ONLY:stdc++>)
    if(NOT WIN32)
      set_target_properties(${name}_static PROPERTIES OUTPUT_NAME ${name})
    endif()
    list(APPEND targets ${name}_static)
  endif()
  foreach(target ${targets})
    string(REPLACE kovra_ "" short ${target})
    add_library(kovra::${short} ALIAS ${target})
    kovra_warnings(${target})
    target_compile_definitions(${target} PRIVATE ${define})
    target_compile_options(${target} PRIVATE -fno-exceptions -fno-rtti)
    target_include_directories(${target} PUBLIC $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/include>
                                         PRIVATE ${PROJECT_SOURCE_DIR})
    set_target_properties(${target} PROPERTIES EXPORT_NAME ${short} CXX_VISIBILITY_PRESET hidden
                                               VISIBILITY_INLINES_HIDDEN ON POSITION_INDEPENDENT_CODE ON)
  endforeach()
  if(CMAKE_EXECUTABLE_FORMAT STREQUAL ELF)
    # Also keeps in what instances of the C++ library's templates would export.
    set(script ${PROJECT_SOURCE_DIR}/cmake/versions.map)
    target_link_options(${name} PRIVATE -Wl,--version-script=${script})
    set_property(TARGET ${name} APPEND PROPERTY LINK_DEPENDS ${script})
  endif()
endfunction()

kovra_library(kovra_util "${KOVRA_UTIL_SOURCES}" KOVRA_BUILDING_UTIL)
kovra_library(kovra_asn1 "${KOVRA_ASN1_SOURCES}" KOVRA_BUILDING_ASN1)
target_link_libraries(kovra_asn1 PUBLIC kovra_util)
if(KOVRA_STATIC_LIBRARIES)
  target_link_libraries(kovra_asn1_static PUBLIC kovra_util_static)
endif()
kovra_version_resource(kovra_util dll "Companion library of KOVRA ASN.1")
kovra_version_resource(kovra_asn1 dll "ASN.1 in BER and DER")
if(WIN32)
  # Nothing but the system's own libraries beside the two.
  foreach(target kovra_util kovra_asn1)
    set_target_properties(${target} PROPERTIES PREFIX "")
    # The file of the exported names, undecorated, is for linkers that make an import library of their own.
    target_link_options(${target} PRIVATE -static -Wl,--output-def,${PROJECT_BINARY_DIR}/lib/${target}.def)
  endforeach()
endif()
