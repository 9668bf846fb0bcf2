#include "agents/code_lists.h"
#include "agents/fields.h"
#include "agents/frmAgentes.h"
#include "component/mdoKORVANTES.h"
#include "runtime/ado/characters.h"
#include "runtime/screen/conversions.h"

namespace korvantes {

using namespace agents;

namespace {

struct BoundField {
  int index;
  const char* column;
};

constexpr BoundField kFields[] = {
    {kCodigo, "AGE_ID"},     {kNombre, "AGE_NOM"},      {kNif, "AGE_NIF"},
    {kDireccion, "AGE_DIR"}, {kCodigoPostal, "AGE_CP"}, {kPoblacion, "AGE_POB"},
    {kTelefono, "AGE_TEL"},  {kMovil, "AGE_MOV"},       {kEmail, "AGE_EMA"},
    {kComision, "AGE_COM"},  {kFax, "AGE_Fax"},
};

/// Compared with a longer piece of the entry than is saved: the third character is the blank
/// after the two digits.
constexpr std::size_t kCaracteresRegimen = 3;

}  // namespace

void frmAgentes::rsOper_MoveComplete() {
  codigosSinEntrada.clear();
  // Without a current row, as after a Find without a match, there is nothing to show either.
  if (rsOper.RecordCount() == 0 || !rsOper.Bookmark()) {
    nIdAgente = 0;
    Frame2.Enabled = false;
    return;
  }
  nIdAgente = rsOper.Collect("AGE_ID").asLong();
  Frame2.Enabled = true;
  mdoKORVANTES::msCargaImagen(nIdAgente, imgAgente);
  for (const BoundField& field : kFields)
    muestra(txtFields(field.index), screen::CStr(rsOper.Collect(field.column)));
  seleccionaEntrada(cboProvincias, "Provincia", kCifrasProvincia, rsOper.Collect("AGE_PRO"));
  seleccionaEntrada(cboPais, "País", kCifrasPais, rsOper.Collect("AGE_PAI"));
  seleccionaEntrada(cboRegFiscal, "Régimen fiscal", kCaracteresRegimen, rsOper.Collect("AGE_REG"));
}

// The filter of the focused field would treat a stored value as typed: "SW1A 2AA" would become
// "12", and be saved.
void frmAgentes::muestra(screen::TextBox& box, const std::string& guardado) {
  box.Text = guardado;
  if (box.Text() == guardado) return;
  bSinFiltro = true;
  box.Text = guardado;
  bSinFiltro = false;
}

void frmAgentes::seleccionaEntrada(screen::ComboBox& lista, const char* nombre,
                                   std::size_t nCaracteres, const ado::Variant& codigo) {
  if (lista.ListCount() == 0) {
    // What was typed for the previous agent must not be saved for this one.
    lista.Text = "";
    return;
  }
  const std::optional<std::int32_t> numero = codigoGuardado(codigo);
  const std::optional<int> entrada = numero ? entradaDe(lista, nCaracteres, *numero) : std::nullopt;
  lista.ListIndex = entrada.value_or(0);
  if (!entrada)
    codigosSinEntrada.push_back({&lista, nombre, std::string(ado::trimmed(screen::CStr(codigo)))});
}

}  // namespace korvantes
