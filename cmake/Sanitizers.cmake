if(ORVANE_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    # Among the checks that are put in, this compiler's release loses sight of what is set and how long it is, the more so
    # the more it optimises. What it would warn of rightly, the sanitizers find while the tests run.
    add_compile_options(-Wno-array-bounds -Wno-maybe-uninitialized -Wno-restrict -Wno-stringop-overflow)
  endif()
endif()
