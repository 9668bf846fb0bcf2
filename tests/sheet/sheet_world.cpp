#include "tests/sheet/sheet_world.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <stdexcept>

#include "outside/ado/error.h"

namespace korvantes::office {

SheetWorld::SheetWorld()
    // Not owned: the object lives no longer than the world.
    : sheets(std::shared_ptr<SheetOutlet>(std::shared_ptr<void>(), this)),
      target(folder.file("hoja.xlsx")) {
  screen::Desktop::makeCurrent(&desktop_);
  desktop_.regional(screen::Regional::named("es-ES"));
  using screen::Alignment;
  list.ColumnHeaders = {
      {"Factura", 1440, Alignment::Left},      {"Fecha", 1440, Alignment::Left},
      {"Cliente", 4000, Alignment::Right},     {"Oculta", 0, Alignment::Left},
      {"Importe", 1701, Alignment::Right},     {"% Comision", 580, Alignment::Right},
      {"Imp.Comision", 1701, Alignment::Right}};
}

SheetWorld::~SheetWorld() {
  screen::Desktop::makeCurrent(nullptr);
}

void SheetWorld::addRow(std::vector<std::string> cells, bool ticked) {
  screen::ListView::ListItem& item = list.Add(cells.front());
  item.SubItems.assign(cells.begin() + 1, cells.end());
  item.Checked = ticked;
}

std::string SheetWorld::failureOfList() {
  try {
    exportList();
  } catch (const ado::Error& error) {
    return error.what();
  }
  return {};
}

std::string SheetWorld::read(const std::string& option) const {
  const std::string command =
      std::string(READ_SHEET) + " '" + target.value().string() + "' " + option;
  FILE* const output = ::popen(command.c_str(), "r");
  if (output == nullptr) throw std::runtime_error(command);
  std::string text;
  std::array<char, 4096> piece{};
  for (std::size_t size = 0; (size = std::fread(piece.data(), 1, piece.size(), output)) > 0;)
    text.append(piece.data(), size);
  if (::pclose(output) != 0) throw std::runtime_error(command + " failed");
  return text;
}

std::vector<std::string> SheetWorld::filesInFolder() const {
  std::vector<std::string> names;
  for (const auto& entry : std::filesystem::directory_iterator(folder.file("")))
    names.push_back(entry.path().filename());
  std::sort(names.begin(), names.end());
  return names;
}

std::optional<std::filesystem::path> SheetWorld::fileFor(const std::string& suggestedName) {
  suggested = suggestedName;
  return target;
}

void SheetWorld::written(const std::filesystem::path& file, std::size_t rows) {
  if (file == target) rowsWritten = rows;
}

}  // namespace korvantes::office
