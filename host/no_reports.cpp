#include "host/office_names.h"
#include "host/office_objects.h"
#include "outside/ado/error.h"

namespace korvantes::host {
namespace {

/// The runtime's number for an object that cannot be created.
constexpr long kCannotCreate = 429;

}  // namespace

void offerReportsInFolder(office::Registry& objects, std::shared_ptr<office::OutputFolder>,
                          Transcript&) {
  objects.add(kReportObject, []() -> std::unique_ptr<office::Object> {
    throw ado::Error(kCannotCreate, "Esta versión del programa no imprime informes");
  });
}

}  // namespace korvantes::host
