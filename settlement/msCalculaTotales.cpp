#include "runtime/screen/conversions.h"
#include "settlement/frmNewLiquidAgentes.h"

namespace korvantes {

double frmNewLiquidAgentes::numeroEn(int index) const {
  const std::string& text = Text1(index).Text();
  return text.empty() ? 0.0 : screen::CDbl(text);
}

void frmNewLiquidAgentes::msCalculaTotales() {
  double dBase = 0;
  for (std::size_t row = 0; row < ListView1.Count(); ++row) {
    const screen::ListView::ListItem& fila = ListView1.item(row);
    if (fila.Checked) dBase += screen::CDbl(fila.cell(6));
  }
  Text1(10).Text = screen::CStr(dBase != 0 ? dBase : 0.0);

  const double dIva = oUtil->Redondea(numeroEn(3) * (dBase / 100), 2);
  Text1(9).Text = screen::CStr(dBase != 0 ? dIva : 0.0);

  const double dRetencion = oUtil->Redondea(numeroEn(11) * (dBase / 100), 2);
  Text1(12).Text = screen::CStr(dBase != 0 ? dRetencion : 0.0);

  // From the texts: their 15 digits take the noise of the binary sum away.
  Text1(8).Text = screen::CStr(numeroEn(10) + numeroEn(9) - numeroEn(12));
}

}  // namespace korvantes
