#pragma once

#include "runtime/ado/connection.h"
#include "sample/documents.h"

namespace korvantes::sample {

/// Settles some of the notes as the settlement screen would have done: writes the settlements with
/// their details, and marks the notes with the keys that the database assigned.
void settleSample(ado::Connection& connection, SampleDocuments& documents);

}  // namespace korvantes::sample
