#include "outside/office/objects.h"
#include "settlement/frmNewLiquidAgentes.h"

namespace korvantes {

namespace {

/// Disables a form for as long as the object lives.
class Inhabilitado {
 public:
  explicit Inhabilitado(screen::Form& form) : form_(form) { form_.Enabled = false; }
  ~Inhabilitado() { form_.Enabled = true; }
  Inhabilitado(const Inhabilitado&) = delete;
  Inhabilitado& operator=(const Inhabilitado&) = delete;

 private:
  screen::Form& form_;
};

}  // namespace

void frmNewLiquidAgentes::cmdExcell_Click() {
  const Inhabilitado sinOtrosClics(*this);
  const std::unique_ptr<office::Object> oSheets = office::CreateObject("BELTRIS.BSHEETS");
  oSheets->call("ListToExcel", {static_cast<screen::Control*>(&ListView1)});
}

}  // namespace korvantes
