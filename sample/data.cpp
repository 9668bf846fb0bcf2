#include "sample/data.h"

#include "sample/documents.h"
#include "sample/lookups.h"
#include "sample/people.h"
#include "sample/settlements.h"

namespace korvantes::sample {

bool loadSharedSample(ado::Connection& connection) {
  return loadLookups(connection);
}

void loadCompanySample(ado::Connection& connection) {
  loadPeople(connection);
  SampleDocuments documents = makeDocuments();
  settleSample(connection, documents);
  loadDocuments(connection, documents);
}

bool lacksSharedRows(ado::Connection& connection) {
  return lacksLookups(connection);
}

bool isSample(ado::Connection& connection) {
  const ado::Recordset customers =
      connection.Execute("Select Cli_Id,Cli_Nom from Cli order by Cli_Id");
  const auto expected = sampleCustomers();
  if (customers.RecordCount() != expected.size()) return false;
  for (std::size_t row = 0; row < expected.size(); ++row) {
    if (customers.cell(row, 0).asLong() != expected[row].id) return false;
    const ado::Variant& name = customers.cell(row, 1);
    if (name.isNull() || name.text() != expected[row].name) return false;
  }
  return true;
}

}  // namespace korvantes::sample
