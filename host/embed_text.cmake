# Writes the file INPUT into the C++ file OUTPUT as the text NAME that host/orders.h declares.
file(READ ${INPUT} text)
file(
  WRITE ${OUTPUT}
  "#include \"host/orders.h\"\n\nnamespace korvantes::host {\n"
  "const std::string_view ${NAME} = R\"~text~(${text})~text~\";\n}  // namespace korvantes::host\n")
