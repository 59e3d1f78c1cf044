# AddressSanitizer and UndefinedBehaviorSanitizer; what they find ends the program.
set(orvane_sanitizers -fsanitize=address,undefined -fno-sanitize-recover=all)
set(orvane_sanitized ${orvane_sanitizers} -fno-omit-frame-pointer)

if(ORVANE_SANITIZE STREQUAL "ALL")
  add_compile_options(${orvane_sanitized})
  add_link_options(${orvane_sanitizers})
endif()

# orvane_sanitize(TARGET): with ENGINE, the target's own files are looked at, and what links it is linked for that.
function(orvane_sanitize target)
  if(ORVANE_SANITIZE STREQUAL "ENGINE")
    # Optimised as for a debugger such code compiles in half the time that -O1 takes. Each check points at its description:
    # a program that stands at a fixed place has not to be told where, which was a third of its start.
    target_compile_options(${target} PRIVATE ${orvane_sanitized} $<$<CONFIG:Debug>:-Og> ${orvane_blind_warnings})
    target_link_options(${target} PUBLIC ${orvane_sanitizers} -no-pie)
  endif()
endfunction()
