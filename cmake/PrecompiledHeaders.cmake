# Reads headers once for all files of a target: orvane_precompile_headers(TARGET HEADER...)
# For what includes the toolkit or a test library, which takes two to three times as long to read as the file to compile.
function(orvane_precompile_headers target)
  target_precompile_headers(${target} PRIVATE ${ARGN})
  # A compiler cache does not know again what was compiled with such headers: two of the same text differ in their bytes.
  set_target_properties(${target} PROPERTIES CXX_COMPILER_LAUNCHER "")
  target_compile_options(${target} PRIVATE "${orvane_blind_warnings}")
endfunction()

# The headers of the standard library that nearly every file includes, where there is no compiler cache, which does better.
function(orvane_precompile_standard_headers target)
  if(NOT CMAKE_CXX_COMPILER_LAUNCHER)
    orvane_precompile_headers(${target} <algorithm> <array> <map> <optional> <string> <string_view> <vector>)
  endif()
endfunction()
