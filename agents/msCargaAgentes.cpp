#include "agents/frmAgentes.h"
#include "component/mdoKORVANTES.h"

namespace korvantes {

namespace {

constexpr const char* kAgentes =
    "Select AGE_ID,AGE_NOM,AGE_TEL,AGE_MOV,AGE_EMA,AGE_COM,AGE_NIF,AGE_DIR,AGE_CP,AGE_POB,AGE_PRO,"
    "AGE_PAI,AGE_REg,Age_Fax from AGE";

struct ColumnRow {
  const char* caption;
  int width;  ///< twips
};

constexpr ColumnRow kColumns[] = {{"Código", 1000},     {"Nombre", 5300}, {"Tlf. Fijo", 1300},
                                  {"Tlf. Movil", 1300}, {"Email", 1300},  {"%Com.", 1000}};
constexpr std::size_t kColumnaComision = 5;
constexpr std::size_t kPrimeraOculta = 6, kUltimaOculta = 11;

}  // namespace

void frmAgentes::msCargaAgentes() {
  // The previous list is dropped only once the new one has been read.
  rsOper = mdoKORVANTES::Conexion().Execute(kAgentes);
  rsOper.onMoveComplete([this] { rsOper_MoveComplete(); });
  dboOper.DataSource(rsOper);
  for (std::size_t position = 0; position < std::size(kColumns); ++position) {
    dboOper.Columns(position).Caption = kColumns[position].caption;
    dboOper.Columns(position).Width = kColumns[position].width;
  }
  dboOper.Columns(kColumnaComision).NumberFormat = "00.000";
  dboOper.Columns(kColumnaComision).TextAlignment = screen::Alignment::Right;
  for (std::size_t position = kPrimeraOculta; position <= kUltimaOculta; ++position)
    dboOper.Columns(position).Visible = false;
  dboOper.columnsChanged();
  // Binding counts as a move to the first row.
  rsOper_MoveComplete();
}

}  // namespace korvantes
