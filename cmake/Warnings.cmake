# Every target of ours links this: warnings are errors, in our code only.
add_library(orvane_warnings INTERFACE)
target_compile_options(orvane_warnings INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Werror)
if(MINGW)
  # This compiler's release takes what std::string does with a literal for an overlap.
  target_compile_options(orvane_warnings INTERFACE -Wno-restrict)
endif()
