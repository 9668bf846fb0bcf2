#include "scripts/failure.h"

namespace korvantes {
namespace {

constexpr unsigned char kFirstPrintable = 0x20;
constexpr unsigned char kDelete = 0x7F;

}  // namespace

std::string onOneLine(std::string_view words) {
  std::string line;
  for (const char character : words) {
    const auto byte = static_cast<unsigned char>(character);
    if (byte >= kFirstPrintable && byte != kDelete)
      line += character;
    else if (!line.empty() && line.back() != ' ')
      line += ' ';
  }
  while (!line.empty() && line.back() == ' ') line.pop_back();
  return line;
}

std::string inQuotes(std::string_view value) {
  return "«" + std::string(value) + "»";
}

}  // namespace korvantes
