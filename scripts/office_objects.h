#pragma once

#include <filesystem>
#include <memory>

#include "office/outlets.h"
#include "outside/office/objects.h"
#include "scripts/transcript.h"

namespace korvantes::office {
class OutputFolder;
}

namespace korvantes::scripts {

// The outside objects that the screens ask for by name.

void offerSpreadsheets(office::Registry& objects, std::shared_ptr<office::SheetOutlet> outlet);

/// Offers spreadsheets and reports for a script run: each is a file in the folder and an event of
/// the transcript, "[hoja] N filas | PATH" or "[informe NUMBER] N filas | PATH". The folder is
/// created with the first one. The transcript must outlive the offer.
void offerDocumentsInFolder(office::Registry& objects, std::filesystem::path folder,
                            Transcript& transcript);
/// Withdraws the offer: creating such an object then throws ado::Error.
void withdrawDocuments(office::Registry& objects);

/// The same for reports alone. A program built without windows cannot lay out pages: there,
/// creating the object throws an ado::Error that says so.
void offerReportsInFolder(office::Registry& objects, std::shared_ptr<office::OutputFolder> folder,
                          Transcript& transcript);

}  // namespace korvantes::scripts
