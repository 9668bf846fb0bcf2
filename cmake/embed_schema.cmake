# Writes INPUT into the C++ file OUTPUT as the text that data/schema.h declares.
file(READ ${INPUT} text)
file(
  WRITE ${OUTPUT}
  "#include \"data/schema.h\"\n\nnamespace korvantes::data {\n"
  "const std::string_view kSchema = R\"~schema~(${text})~schema~\";\n}  // namespace korvantes::data\n")
