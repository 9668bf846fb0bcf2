#include <stdexcept>

#include "agents/code_lists.h"
#include "agents/fields.h"
#include "agents/frmAgentes.h"
#include "component/mdoKORVANTES.h"
#include "runtime/ado/error.h"
#include "runtime/ado/transaction.h"
#include "runtime/ado/utf8.h"
#include "runtime/screen/conversions.h"
#include "runtime/screen/desktop.h"

namespace korvantes {

using namespace agents;

namespace {

constexpr const char* kBuscaAgente = "Select AGE_ID from AGE where AGE_ID=";
constexpr const char* kSiguienteCodigo = "select isnull(max(age_id),0) +1 from age";
constexpr const char* kWhereAgente = " where AGE_ID = ";
constexpr const char* kNombreGuardado = "Select AGE_NOM from AGE where AGE_ID=";

constexpr long kFallo = -99999;
constexpr int kDecimales = 2, kDecimalesComision = 3;

/// The value saved for a list: the leading characters of its text.
std::string codigoVisible(const screen::ComboBox& lista, std::size_t nCifras, const char* nombre) {
  if (lista.Text().empty())
    throw std::runtime_error(
        std::string("No hay ningún valor en la lista «") + nombre +
        "». Si está vacía, cierre la pantalla y vuelva a abrirla cuando se pueda leer.");
  return std::string(ado::firstCharacters(lista.Text(), nCifras));
}

/// The same for a column that takes digits only.
std::string codigoNumerico(const screen::ComboBox& lista, std::size_t nCifras, const char* nombre) {
  std::string codigo = codigoVisible(lista, nCifras, nombre);
  if (!codigoInicial(lista.Text(), nCifras))
    throw std::runtime_error(std::string(nombre) + ": «" + lista.Text() +
                             "» no empieza por un código. Elija una entrada de la lista.");
  return codigo;
}

}  // namespace

void frmAgentes::cmdSalvar_Click() {
  if (!confirmaEntrada()) return;

  const std::shared_ptr<plindor::BaseDatos> MyBd = mdoKORVANTES::MyBd();
  ado::Connection& conexion = MyBd->Conexion();
  std::optional<ado::Transaction> transaccion;
  bool bGuardado = false;
  std::int32_t nNuevo = 0;
  try {
    MyBd->LimpiaSentencia(0);
    MyBd->Tabla = "AGE";
    transaccion.emplace(conexion);
    agregaCampos(*MyBd);
    const std::string& sCodigo = txtFields(kCodigo).Text();
    const std::int32_t nCodigo = screen::IsNumeric(sCodigo) ? screen::CLng(sCodigo) : -1;
    const ado::Recordset rsId = conexion.Execute(kBuscaAgente + std::to_string(nCodigo));
    if (rsId.isEOF() || rsId.isBOF()) {
      nNuevo = anadeAgente(*MyBd);
      transaccion->commit();
      bGuardado = true;
      msCargaAgentes();
      msPosicionAgente(0, true);
    } else {
      const std::int32_t nId = rsId.Fields(0).Value().asLong();
      actualizaAgente(*MyBd, nId);
      transaccion->commit();
      bGuardado = true;
      msCargaAgentes();
      msPosicionAgente(nId, false);
    }
    msEstadoPantalla(Consulta);
    txtFields(kCodigo).SetFocus();
  } catch (const std::exception& fallo) {
    std::string texto = fallo.what();
    if (transaccion) texto += mdoKORVANTES::deshaz(*transaccion);
    if (nNuevo != 0 && (bGuardado || estaGuardado(conexion, nNuevo))) {
      // It is now an agent like any other: the next click updates it instead of adding another.
      txtFields(kCodigo).Text = std::to_string(nNuevo);
      bGuardado = true;
    }
    if (bGuardado) texto += std::string(kSalto) + "Los datos del agente sí se han guardado.";
    screen::MsgBox(texto, screen::style::Critical, "");
  }
}

bool frmAgentes::confirmaEntrada() {
  if (!screen::IsNumeric(txtFields(kComision).Text())) {
    screen::MsgBox("Error, Debe especificar un valor en % Comisión", screen::style::Critical,
                   kTitulo);
    return false;
  }
  avisaCodigosSinEntrada();
  return screen::MsgBox(
             std::string("Confirma la entrada de datos") + kSalto + txtFields(kNombre).Text(),
             screen::style::Information | screen::style::YesNo) == screen::Answer::Yes;
}

void frmAgentes::avisaCodigosSinEntrada() const {
  std::string sCambios;
  bool bDesconocidos = false;
  for (const CodigoSinEntrada& cada : codigosSinEntrada) {
    if (cada.lista->ListIndex() != 0) continue;
    bDesconocidos |= !cada.codigo.empty();
    sCambios += std::string(kSalto) + cada.nombre + " " +
                (cada.codigo.empty() ? "(sin valor)" : cada.codigo) + " pasará a ser «" +
                cada.lista->Text() + "»";
  }
  if (sCambios.empty()) return;
  screen::MsgBox(std::string(bDesconocidos ? "El agente tiene códigos que no están en las listas."
                                           : "El agente tiene códigos sin valor.") +
                     " Si confirma la entrada:" + sCambios,
                 screen::style::Exclamation, kTitulo);
}

void frmAgentes::agregaCampos(plindor::BaseDatos& oDb) const {
  using plindor::ListaCampos;
  ListaCampos& campos = oDb.Campos;
  const auto texto = [&](const char* campo, int index) {
    campos.AgregaCampo(campo, ListaCampos::Texto, txtFields(index).Text(), kDecimales);
  };
  texto("AGE_NOM", kNombre);
  texto("AGE_NIF", kNif);
  texto("AGE_DIR", kDireccion);
  texto("AGE_POB", kPoblacion);
  texto("AGE_CP", kCodigoPostal);
  campos.AgregaCampo("AGE_PRO", ListaCampos::Texto,
                     codigoVisible(cboProvincias, kCifrasProvincia, "Provincia"), kDecimales);
  campos.AgregaCampo("AGE_PAI", ListaCampos::Entero, codigoNumerico(cboPais, kCifrasPais, "País"),
                     kDecimales);
  texto("AGE_TEL", kTelefono);
  texto("AGE_MOV", kMovil);
  texto("AGE_EMA", kEmail);
  texto("AGE_Fax", kFax);
  campos.AgregaCampo("AGE_COM", ListaCampos::Doble, screen::CDbl(txtFields(kComision).Text()),
                     kDecimalesComision);
  campos.AgregaCampo("AGE_REG", ListaCampos::Entero,
                     codigoNumerico(cboRegFiscal, kCifrasRegimen, "Régimen fiscal"), kDecimales);
}

std::int32_t frmAgentes::anadeAgente(plindor::BaseDatos& oDb) {
  const std::int32_t nNuevo = oDb.Conexion().Execute(kSiguienteCodigo).Fields(0).Value().asLong();
  oDb.Campos.AgregaCampo("AGE_ID", plindor::ListaCampos::Texto, nNuevo, kDecimales);
  oDb.Condicion = " ";
  std::string sSql;
  if (!oDb.InsertaFila(sSql))
    throw ado::Error(kFallo, std::string("Error Añadiendo Agente") + kSalto + sSql);
  return nNuevo;
}

void frmAgentes::actualizaAgente(plindor::BaseDatos& oDb, std::int32_t nId) {
  oDb.Condicion = kWhereAgente + std::to_string(nId);
  std::string sSql;
  if (!oDb.ActualizaFilas(sSql))
    throw ado::Error(kFallo, std::string("Error actualizando Agente") + kSalto + sSql);
}

bool frmAgentes::estaGuardado(ado::Connection& conexion, std::int32_t nId) const {
  try {
    const ado::Recordset rs = conexion.Execute(kNombreGuardado + std::to_string(nId));
    return !rs.isEOF() && screen::CStr(rs.Fields(0).Value()) == txtFields(kNombre).Text();
  } catch (const std::exception&) {
    return false;
  }
}

}  // namespace korvantes
