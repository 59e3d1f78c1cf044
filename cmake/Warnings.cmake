# Every target of ours links this. The presets of our own work make errors of warnings; a build for others does not, so
# that what another compiler newly warns of stops nobody.
add_library(orvane_warnings INTERFACE)
target_compile_options(orvane_warnings INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion)
if(MINGW)
  # This compiler's release takes what std::string does with a literal for an overlap.
  target_compile_options(orvane_warnings INTERFACE -Wno-restrict)
endif()
