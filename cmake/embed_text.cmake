# korvantes_embed_text(OUTPUT SOURCE FILE HEADER header NAMESPACE namespace NAME constant)
# Compiles a text file in, as the std::string_view that the header declares. Sets OUTPUT to the path
# of the C++ file to add to a target's sources.
function(korvantes_embed_text output)
  cmake_parse_arguments(PARSE_ARGV 1 embed "" "FILE;HEADER;NAMESPACE;NAME" "")
  get_filename_component(stem ${embed_FILE} NAME_WE)
  set(source ${CMAKE_CURRENT_BINARY_DIR}/${stem}_text.cpp)
  add_custom_command(
    OUTPUT ${source}
    COMMAND
      ${CMAKE_COMMAND} -DINPUT=${CMAKE_CURRENT_SOURCE_DIR}/${embed_FILE} -DOUTPUT=${source}
      -DHEADER=${embed_HEADER} -DNAMESPACE=${embed_NAMESPACE} -DNAME=${embed_NAME} -P
      ${PROJECT_SOURCE_DIR}/cmake/write_embedded_text.cmake
    DEPENDS ${embed_FILE} ${PROJECT_SOURCE_DIR}/cmake/write_embedded_text.cmake
    VERBATIM)
  set(${output}
      ${source}
      PARENT_SCOPE)
endfunction()
