#include "report/frmLiquidAgentes.h"

namespace korvantes {

frmLiquidAgentes::frmLiquidAgentes() : Form("frmLiquidAgentes") {}

}  // namespace korvantes
