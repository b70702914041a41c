# describe_program(TARGET DESCRIPTION) - gives a program for Windows its icon, its version and its manifest.
enable_language(RC)
function(describe_program name description)
  configure_file(${CMAKE_CURRENT_FUNCTION_LIST_DIR}/program.rc.in ${CMAKE_CURRENT_BINARY_DIR}/${name}.rc @ONLY)
  target_sources(${name} PRIVATE ${CMAKE_CURRENT_BINARY_DIR}/${name}.rc)
  set_source_files_properties(${CMAKE_CURRENT_BINARY_DIR}/${name}.rc PROPERTIES OBJECT_DEPENDS
    "${TROVALIS_ICONS}/trovalis.ico;${CMAKE_CURRENT_FUNCTION_LIST_DIR}/program.manifest")
endfunction()
