# Run by korvantes_embed_text: writes the text of the file INPUT into the C++ file OUTPUT.
file(READ ${INPUT} text)
file(
  WRITE ${OUTPUT}
  "#include \"${HEADER}\"\n\nnamespace ${NAMESPACE} {\n"
  "const std::string_view ${NAME} = R\"~text~(${text})~text~\";\n}  // namespace ${NAMESPACE}\n")
