#include "runtime/ado/error.h"
#include "scripts/office_names.h"
#include "scripts/office_objects.h"

namespace korvantes::scripts {
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

}  // namespace korvantes::scripts
