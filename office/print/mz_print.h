// office/print: the report component. A report first gathers all its data, from the database or
// from a recordset, and is then paged by Qt for any device: a PDF, a preview, a printer.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "office/outlets.h"
#include "outside/office/objects.h"

namespace korvantes::office {

/// "marzenes.MZPrint": gathers a report's data and hands it to an outlet.
///
/// Properties: sAcotacion1, a text, the limits of the search as a sentence; MyBd, the database
/// service. Method: ShowReport, with a report number, the text of a statement and 0; or with a
/// number, "", 0, four omitted arguments and a recordset, whose current row does not change. Report
/// 11 is one settlement with its delivery notes, report 12 a list of settlements.
class MZPrint : public Object {
 public:
  /// Throws std::logic_error without an outlet.
  explicit MZPrint(std::shared_ptr<ReportOutlet> outlet);

  /// Throws ado::Error for a property it does not have or a value of another kind.
  void set(std::string_view property, const Argument& value) override;
  /// Returns Null when the outlet is done with the report. Throws ado::Error in Spanish for an
  /// unknown method or report number, arguments that do not fit, a missing MyBd, and a text that is
  /// not a SELECT; errors of the database and of the outlet are passed on.
  ado::Variant call(std::string_view method, const std::vector<Argument>& arguments) override;

 private:
  std::shared_ptr<const Report> gather(const std::vector<Argument>& arguments) const;
  /// Runs a SELECT on MyBd.
  ado::Recordset query(const std::string& statement) const;

  std::shared_ptr<ReportOutlet> outlet_;
  std::shared_ptr<plindor::BaseDatos> database_;
  std::string limits_;
};

}  // namespace korvantes::office
