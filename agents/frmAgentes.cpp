#include "agents/frmAgentes.h"

namespace korvantes {

frmAgentes::frmAgentes() : Form("frmAgentes") {}

}  // namespace korvantes
