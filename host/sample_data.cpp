#include "host/sample_data.h"

#include "host/sample_documents.h"
#include "host/sample_lookups.h"
#include "host/sample_people.h"
#include "host/sample_settlements.h"

namespace korvantes::host {

void loadSampleData(ado::Connection& connection) {
  loadLookups(connection);
  loadPeople(connection);
  SampleDocuments documents = makeDocuments();
  settleSample(connection, documents);
  loadDocuments(connection, documents);
}

}  // namespace korvantes::host
