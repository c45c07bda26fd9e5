# The warnings that the code is written to; in a developer build they are errors.
function(kovra_warnings target)
  if(NOT PROJECT_IS_TOP_LEVEL)
    return()
  endif()
  target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Wconversion -Wshadow)
  if(CMAKE_CXX_COMPILER_ID STREQUAL GNU)
    # GCC 12 sees overlaps in std::string that are none (its bug 105651).
    target_compile_options(${target} PRIVATE -Wno-restrict)
  endif()
  if(KOVRA_DEVELOPER)
    target_compile_options(${target} PRIVATE -Werror)
  endif()
endfunction()
