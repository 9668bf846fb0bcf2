// The three lists of codes in the shared database.
#include "agents/code_lists.h"
#include "agents/fields.h"
#include "agents/frmAgentes.h"
#include "component/mdoKORVANTES.h"
#include "runtime/screen/conversions.h"
#include "runtime/screen/desktop.h"

namespace korvantes {

using namespace agents;

namespace {

constexpr const char* kProvincias = "Select * from vespara.dbo.PROV";
constexpr const char* kPaises = "Select * from vespara.dbo.PAIS";
constexpr const char* kRegimenes =
    "Select Sit_Cod,Sit_Des from Vespara.dbo.situaciones WHERE Sit_Idioma = 0 AND Sit_Proceso = 3";

constexpr int kPaisPredeterminado = 9;
constexpr std::int32_t kProvinciaExtranjera = 99;

struct Campos {
  const char* codigo;
  const char* mascara;
  const char* nombre;
};

void llena(screen::ComboBox& lista, const char* sentencia, const Campos& campos, int nEntrada) {
  lista.Clear();
  ado::Recordset rs = mdoKORVANTES::Conexion().Execute(sentencia);
  for (; !rs.isEOF(); rs.MoveNext())
    lista.AddItem(screen::Format(rs.Collect(campos.codigo), campos.mascara) + " - " +
                  screen::CStr(rs.Collect(campos.nombre)));
  rs.Close();
  if (lista.ListCount() > 0) lista.ListIndex = nEntrada < lista.ListCount() ? nEntrada : 0;
}

}  // namespace

void frmAgentes::msCargaProvincias() {
  llena(cboProvincias, kProvincias, {"PROV_COD", "00", "PROV_NOM"}, 0);
}

void frmAgentes::msCargaPaises() {
  llena(cboPais, kPaises, {"PAIS_COD", "000", "PAIS_NOM"}, kPaisPredeterminado);
}

void frmAgentes::msCargaRegimenes() {
  llena(cboRegFiscal, kRegimenes, {"Sit_COD", "00", "Sit_Des"}, 0);
}

void frmAgentes::cargaListas() {
  std::string sFallos;
  const auto intenta = [&](void (frmAgentes::*carga)(), const char* nombre) {
    try {
      (this->*carga)();
    } catch (const std::exception& fallo) {
      sFallos += std::string(kSalto) + nombre + ": " + fallo.what();
    }
  };
  intenta(&frmAgentes::msCargaProvincias, "Provincias");
  intenta(&frmAgentes::msCargaPaises, "Países");
  intenta(&frmAgentes::msCargaRegimenes, "Regímenes fiscales");
  if (sFallos.empty()) return;
  screen::MsgBox(
      "No se han podido leer estas listas. Los agentes se pueden consultar, pero no guardar:" +
          sFallos,
      screen::style::Exclamation, kTitulo);
}

void frmAgentes::cboProvincias_Click() {
  cboPais.Enabled = codigoInicial(cboProvincias.Text(), kCifrasProvincia) == kProvinciaExtranjera;
}

}  // namespace korvantes
