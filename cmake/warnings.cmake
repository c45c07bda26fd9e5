# The warnings that the code is written to; in a developer build they are errors.
function(kovra_warnings target)
  target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Wconversion -Wshadow)
  if(KOVRA_DEVELOPER)
    target_compile_options(${target} PRIVATE -Werror)
  endif()
endfunction()
