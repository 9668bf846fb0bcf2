// Reports over a small real database, read back as the text of their PDF.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "office/output_folder.h"
#include "office/print/folder_report_outlet.h"
#include "office/print/mz_print.h"
#include "tests/support/program_output.h"
#include "tests/support/screen_world.h"

namespace korvantes::office {

/// Agent 7, "Núñez e Hijos". Keys of notes, invoices and lines are what the tests say.
class PrintWorld : public support::ScreenWorld {
 public:
  PrintWorld() {
    sql("INSERT INTO Age (AGE_ID, AGE_NOM, AGE_NIF) VALUES (7, 'Núñez e Hijos', '12345678Z')");
  }

  void invoice(int invoice) {
    const std::string key = std::to_string(invoice);
    sql("INSERT INTO Fav (Fav_Id, Fav_Serie, Fav_Numero, Fav_Fecha, Fav_CliNom) VALUES (" + key +
        ", 'F', " + key + ", '01/10/2026', 'Cliente de factura')");
  }
  /// Delivery note A/`note` on invoice F/`invoice` of 01/10/2026, with one line.
  void note(int note, int invoice, const std::string& amount, const std::string& percent) {
    const std::string key = std::to_string(note);
    sql("INSERT INTO Cav (Cav_Id, Cav_Serie, Cav_Numero, Cav_NFiscal, Cav_Dto1, Cav_DTO2, "
        "Cav_IdFactura) VALUES (" +
        key + ", 'A', " + key + ", 'Cliente " + key + "', 0, 0, " + std::to_string(invoice) + ")");
    sql("INSERT INTO Lav (Lav_Id, Lav_IdCav, Lav_Importe, Lav_Comi) VALUES (" + key + ", " + key +
        ", " + amount + ", " + percent + ")");
  }
  /// The next settlement, over notes.
  /// @param values from Lca_Fecha to Lca_Obs, with commas in between
  void settle(const std::vector<int>& notes,
              const std::string& values = "Null, Null, 0, 0, 0, 0, 0, 0, 0, 0, ''", int agent = 7) {
    sql("INSERT INTO Lca (Lca_IdAg, Lca_Fecha, Lca_HFecha, Lca_Cob, Lca_NCob, Lca_Base, "
        "Lca_PorIva, Lca_Iva, Lca_PorRetencion, Lca_Retencion, Lca_Total, Lca_Obs) VALUES (" +
        std::to_string(agent) + ", " + values + ")");
    const std::string number = std::to_string(++settlements_);
    for (const int each : notes)
      sql("INSERT INTO Lcd (Lcd_IdLca, Lcd_IdCav) VALUES (" + number + ", " + std::to_string(each) +
          ")");
  }

  /// The report component as a form uses it.
  std::unique_ptr<Object> print() {
    auto object = std::make_unique<MZPrint>(outlet);
    object->set("MyBd", std::make_shared<plindor::BaseDatos>(connection));
    return object;
  }
  /// The text of a report's PDF: a new line before the first line and a form feed after each page,
  /// blanks squeezed into one each.
  std::string reportText(int report, const std::string& statement,
                         const std::optional<ado::Recordset>& rows = {}) {
    std::vector<Argument> arguments{ado::Variant(report), ado::Variant(statement), ado::Variant(0)};
    if (rows)
      arguments.insert(arguments.end(), {Omitted{}, Omitted{}, Omitted{}, Omitted{}, *rows});
    print()->call("ShowReport", arguments);
    return "\n" +
           support::outputOf("pdftotext -layout -enc UTF-8 '" + delivered.back().file.string() +
                             "' - | sed -E 's/ +/ /g; s/^ //; s/ $//'");
  }
  std::string settlementText(int number) {
    return reportText(
        11,
        "select age_id,age_nom,age_nif,lca.* from lca inner join age on lca_idag=age_id  Where "
        "lca_id = " +
            std::to_string(number));
  }

 private:
  support::TemporaryFolder out_;
  int settlements_ = 0;

 public:
  std::string file(const std::string& name) const { return out_.file(name); }

  struct Delivered {
    int number;
    std::size_t rows;
    std::filesystem::path file;
  };
  std::vector<Delivered> delivered;
  std::shared_ptr<ReportOutlet> outlet = std::make_shared<FolderReportOutlet>(
      std::make_shared<OutputFolder>(out_.file("")),
      [this](int number, std::size_t rows, const std::filesystem::path& file) {
        delivered.push_back({number, rows, file});
      });
};

/// Those of the lines that a text does not have.
inline std::vector<std::string> missing(const std::string& text, std::vector<std::string> lines) {
  std::erase_if(lines, [&](const std::string& line) {
    return text.find("\n" + line + "\n") != std::string::npos;
  });
  return lines;
}

/// How often a text has a part.
inline std::size_t count(const std::string& text, const std::string& part) {
  std::size_t found = 0;
  for (std::size_t place = 0; (place = text.find(part, place)) != std::string::npos; ++place)
    ++found;
  return found;
}

/// "1.234,56" of cents that are not negative.
inline std::string amountText(long cents) {
  std::string euros = std::to_string(cents / 100);
  for (std::size_t place = euros.size(); place > 3;) euros.insert(place -= 3, ".");
  return euros + "," + std::to_string(100 + cents % 100).substr(1);
}

}  // namespace korvantes::office
