// Reports over a small real database, read back as the text of their PDF.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "office/outlets.h"
#include "office/output_folder.h"
#include "outside/office/objects.h"
#include "tests/support/screen_world.h"

namespace korvantes::office {

/// Agent 7, "Núñez e Hijos". Keys of notes, invoices and lines are what the tests say.
class PrintWorld : public support::ScreenWorld {
 public:
  PrintWorld();

  /// Delivery note A/`note` on invoice F/`invoice` of 01/10/2026, with one line.
  void note(int note, int invoice, const std::string& amount, const std::string& percent);
  void invoice(int invoice);
  /// A settlement over notes; gives its number.
  /// @param values from Lca_Fecha to Lca_Obs, with commas in between
  int settle(const std::vector<int>& notes, const std::string& values, int agent = 7);

  /// The report component as a form uses it, without and with the database.
  std::unique_ptr<Object> component();
  std::unique_ptr<Object> print();
  /// Report 11 of a settlement, as the text of its PDF; a form feed after each page.
  std::string settlementText(int number);

  std::string file(const std::string& name) const { return out_.file(name); }
  /// The text of the newest PDF.
  std::string text() const;

  struct Delivered {
    int number;
    std::size_t rows;
    std::filesystem::path file;
  };
  std::vector<Delivered> delivered;
  std::shared_ptr<ReportOutlet> outlet;

 private:
  support::TemporaryFolder out_;
};

/// The line of a text that holds `part`, its blanks squeezed into one each; empty without.
std::string lineWith(const std::string& text, const std::string& part);
/// How often it occurs.
std::size_t count(const std::string& text, const std::string& part);
/// "1.234,56" of cents that are not negative.
std::string amountText(long cents);

}  // namespace korvantes::office
