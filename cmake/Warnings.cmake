# Every target of ours links this. The presets of our own work make errors of warnings; a build for others does not, so
# that what another compiler newly warns of stops nobody.
add_library(orvane_warnings INTERFACE)
target_compile_options(orvane_warnings INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion)
if(CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
  # Of a conversion GCC warns only where a value may be lost. A number of a row or a state, which is never below zero,
  # is an index as it is.
  target_compile_options(orvane_warnings INTERFACE -Wno-sign-conversion)
endif()
if(MINGW)
  # This compiler's release takes what std::string does with a literal for an overlap.
  target_compile_options(orvane_warnings INTERFACE -Wno-restrict)
endif()

# Among the sanitizers' checks, and with precompiled headers, this compiler's release loses sight of what is set and how
# long it is. Every other build has these warnings.
set(orvane_blind_warnings $<$<AND:$<CXX_COMPILER_ID:GNU>,$<VERSION_LESS:$<CXX_COMPILER_VERSION>,13>>:-Wno-array-bounds;-Wno-maybe-uninitialized;-Wno-restrict;-Wno-stringop-overflow;-Wno-stringop-overread>)
if(ORVANE_SANITIZE STREQUAL "ALL")
  target_compile_options(orvane_warnings INTERFACE "${orvane_blind_warnings}")
endif()
