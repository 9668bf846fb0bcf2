#include "sample/data.h"

#include "sample/documents.h"
#include "sample/lookups.h"
#include "sample/people.h"
#include "sample/settlements.h"

namespace korvantes::sample {

void loadSampleData(ado::Connection& connection) {
  loadLookups(connection);
  loadPeople(connection);
  SampleDocuments documents = makeDocuments();
  settleSample(connection, documents);
  loadDocuments(connection, documents);
}

}  // namespace korvantes::sample
