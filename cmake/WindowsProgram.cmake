# What Windows shows of a program: icon, version, description; and what it has to know to start it.
# orvane_windows_program(TARGET DESCRIPTION): nothing for other systems.
function(orvane_windows_program target description)
  if(NOT WIN32)
    return()
  endif()
  set(RESOURCE_DESCRIPTION "${description}")
  set(RESOURCE_FILE "${target}.exe")
  set(RESOURCE_FOLDER ${PROJECT_SOURCE_DIR}/packaging/windows)
  set(script ${CMAKE_CURRENT_BINARY_DIR}/${target}.rc)
  configure_file(${RESOURCE_FOLDER}/program.rc.in ${script} @ONLY)
  set_source_files_properties(${script} PROPERTIES
    OBJECT_DEPENDS "${RESOURCE_FOLDER}/orvane.ico;${RESOURCE_FOLDER}/program.manifest")
  target_sources(${target} PRIVATE ${script})
  # Without symbols, and the same sources give the same bytes at any time.
  target_link_options(${target} PRIVATE -s LINKER:--no-insert-timestamp)
endfunction()

if(WIN32)
  enable_language(RC)
endif()
