#include "tests/tsql/cases.h"

#include <fstream>
#include <sstream>
#include <stdexcept>

#include "tests/support/failure.h"

namespace korvantes::tsql {

namespace {

std::ifstream opened(const std::string& path) {
  std::ifstream file(path);
  if (!file) throw std::runtime_error("cannot read " + path);
  return file;
}

}  // namespace

std::vector<Case> casesOf(const std::string& file) {
  constexpr std::string_view kMark = "=> ";
  auto in = opened(std::string(KORVANTES_SOURCE) + "/tests/tsql/" + file);
  std::vector<Case> cases;
  for (std::string line; std::getline(in, line);) {
    if (line.starts_with(kMark)) {
      cases.back().expected = line.substr(kMark.size());
    } else if (const auto at = line.find(" => "); at != std::string::npos) {
      cases.push_back({line.substr(0, at), line.substr(at + 1 + kMark.size())});
    } else if (!line.empty() && !line.starts_with("-- ")) {
      cases.push_back({line, {}});
    }
  }
  return cases;
}

std::shared_ptr<Catalogue> schema() {
  std::stringstream text;
  text << opened(std::string(KORVANTES_SOURCE) + "/data/schema.sql").rdbuf();
  auto catalogue = std::make_shared<Catalogue>();
  Compiler compiler(catalogue);
  for (const auto& statement : splitStatements(text.str())) {
    const auto bound = compiler.compile(statement);
    if (bound.statement->created) catalogue->add(*bound.statement->created);
  }
  return catalogue;
}

std::string refusalOf(Compiler& compiler, std::string_view statement) {
  return support::failureOf([&] { compiler.compile(statement); });
}

std::string columnsOf(const CompiledStatement& statement) {
  std::string columns;
  for (std::size_t i = 0; i < statement.types.size(); ++i) {
    const auto& name = (*statement.fields)[i].name;
    columns += (columns.empty() ? "" : ", ") + (name.empty() ? "-" : name) + " " +
               nameOf(statement.types[i]);
  }
  return columns;
}

}  // namespace korvantes::tsql
