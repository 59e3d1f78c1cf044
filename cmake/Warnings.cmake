# Every target of ours links this: warnings are errors, in our code only.
add_library(orvane_warnings INTERFACE)
target_compile_options(orvane_warnings INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Werror)
