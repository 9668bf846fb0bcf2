#include "data/settlement_draft.h"
#include "runtime/screen/conversions.h"
#include "settlement/frmNewLiquidAgentes.h"

namespace korvantes {

ado::Decimal frmNewLiquidAgentes::exactoEn(int index) const {
  const std::string& text = Text1(index).Text();
  return text.empty() ? ado::Decimal() : screen::CDec(text);
}

void frmNewLiquidAgentes::muestra(int index, const ado::Decimal& importe) {
  Text1(index).Text = screen::CStr(importe.toDouble());
}

void frmNewLiquidAgentes::msCalculaTotales() {
  for (int index : {kBase, kIva, kRetencion, kTotal}) Text1(index).Text = "";
  try {
    ado::Decimal base;
    for (std::size_t row = 0; row < ListView1.Count(); ++row) {
      const screen::ListView::ListItem& fila = ListView1.item(row);
      if (fila.Checked) base += screen::CDec(fila.cell(kColComision));
    }
    muestra(kBase, base);
    sFalloImportes.clear();
    // An empty rate counts as 0 only if no lookup failed.
    if (!sFalloTasas.empty()) return;

    const data::SettlementAmounts importes =
        data::settlementAmounts(base, exactoEn(kPorIva), exactoEn(kPorRetencion));
    muestra(kIva, importes.vat);
    muestra(kRetencion, importes.withholding);
    // From the texts, because these are stored.
    muestra(kTotal, exactoEn(kBase) + exactoEn(kIva) - exactoEn(kRetencion));
  } catch (const std::exception& fallo) {
    sFalloImportes = fallo.what();
    throw;
  }
}

}  // namespace korvantes
