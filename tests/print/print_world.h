// Reports over a small real database, read back as the text of their PDF.
#pragma once

#include <memory>
#include <optional>
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
  int settle(const std::vector<int>& notes,
             const std::string& values = "Null, Null, 0, 0, 0, 0, 0, 0, 0, 0, ''", int agent = 7);

  /// The report component as a form uses it.
  std::unique_ptr<Object> print();
  /// The text of a report's PDF: a new line before the first line and a form feed after each page,
  /// blanks squeezed into one each.
  std::string reportText(int report, const std::string& statement,
                         const std::optional<ado::Recordset>& rows = {});
  std::string settlementText(int number);

  std::string file(const std::string& name) const { return out_.file(name); }

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

/// Those of the lines that a text does not have.
std::vector<std::string> missing(const std::string& text, std::vector<std::string> lines);
/// How often it occurs.
std::size_t count(const std::string& text, const std::string& part);
/// "1.234,56" of cents that are not negative.
std::string amountText(long cents);

}  // namespace korvantes::office
