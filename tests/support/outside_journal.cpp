#include "tests/support/outside_journal.h"

#include "outside/office/objects.h"
#include "outside/plindor/base_datos.h"
#include "runtime/screen/conversions.h"

namespace korvantes::support {

namespace {

std::string print(const office::Argument& argument) {
  if (std::holds_alternative<office::Omitted>(argument)) return "-";
  if (const auto* value = std::get_if<ado::Variant>(&argument)) return screen::CStr(*value);
  if (const auto* control = std::get_if<screen::Control*>(&argument)) return (*control)->identity();
  if (const auto* rows = std::get_if<ado::Recordset>(&argument))
    return std::to_string(rows->Fields().Count()) + " fields";
  const auto& service = std::get<std::shared_ptr<plindor::BaseDatos>>(argument);
  return service ? "service" : "nothing";
}

struct Recorder : office::Object {
  OutsideJournal& journal;
  scripts::HeadlessDesktop& desktop;
  Recorder(OutsideJournal& kept, scripts::HeadlessDesktop& shown) : journal(kept), desktop(shown) {}
  ~Recorder() override { journal.lines.push_back("released"); }
  void set(std::string_view property, const office::Argument& value) override {
    journal.lines.push_back(std::string(property) + " = " + print(value));
  }
  ado::Variant call(std::string_view method,
                    const std::vector<office::Argument>& arguments) override {
    std::string line(method);
    for (const office::Argument& argument : arguments) line += " | " + print(argument);
    line += desktop.forms().back()->Enabled() ? " (enabled" : " (disabled";
    journal.lines.push_back(line + ", pointer " + std::to_string(desktop.mousePointer()) + ")");
    if (!journal.failure.empty()) throw ado::Error(1, journal.failure);
    return {};
  }
};

}  // namespace

void OutsideJournal::offer(scripts::HeadlessDesktop& desktop) {
  for (const char* name : {"marzenes.MZPrint", "BELTRIS.bSheets"})
    office::objectsOf(desktop).add(name,
                                   [&] { return std::make_unique<Recorder>(*this, desktop); });
}

}  // namespace korvantes::support
