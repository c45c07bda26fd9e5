# kovra_add_exports(TARGET): gives a program the table of all exported functions, harness/exports.hpp. Its rows are the
# names in data/exported.txt.
set(KOVRA_EXPORTS_LIST ${CMAKE_CURRENT_LIST_DIR}/../data/exported.txt)
set(KOVRA_EXPORTS_SOURCE ${CMAKE_CURRENT_LIST_DIR}/exports.cpp)
set(KOVRA_EXPORTS_ROWS ${PROJECT_BINARY_DIR}/exports)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${KOVRA_EXPORTS_LIST})
file(STRINGS ${KOVRA_EXPORTS_LIST} names REGEX "^kovra_")
list(TRANSFORM names REPLACE "^.* (kovra_[A-Za-z0-9_]+)$" "    Row<\\1>::named(\"\\1\"),\n")
string(CONCAT rows ${names})
file(CONFIGURE OUTPUT ${KOVRA_EXPORTS_ROWS}/exports.inc CONTENT "${rows}" @ONLY)

function(kovra_add_exports target)
  target_sources(${target} PRIVATE ${KOVRA_EXPORTS_SOURCE})
  set_property(SOURCE ${KOVRA_EXPORTS_SOURCE} TARGET_DIRECTORY ${target} APPEND
               PROPERTY INCLUDE_DIRECTORIES ${KOVRA_EXPORTS_ROWS})
endfunction()
