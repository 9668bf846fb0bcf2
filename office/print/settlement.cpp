#include "office/print/settlement.h"

namespace korvantes::office {

namespace {

bool isSet(const ado::Variant& mark) {
  return !mark.isNull() && mark.asBoolean();
}

}  // namespace

Settlement readSettlement(const ado::Recordset& row) {
  Settlement read;
  read.number = row.Collect("Lca_Id").asLong();
  read.agent = row.Collect("Age_Id");
  read.agentName = row.Collect("Age_Nom");
  read.agentTaxNumber = row.Collect("Age_Nif");
  read.date = row.Collect("Lca_Fecha");
  read.limitDate = row.Collect("Lca_HFecha");
  read.collected = isSet(row.Collect("Lca_Cob"));
  read.pending = isSet(row.Collect("Lca_NCob"));
  read.base = row.Collect("Lca_Base");
  read.vatRate = row.Collect("Lca_PorIva");
  read.vat = row.Collect("Lca_Iva");
  read.withholdingRate = row.Collect("Lca_PorRetencion");
  read.withholding = row.Collect("Lca_Retencion");
  read.total = row.Collect("Lca_Total");
  read.remarks = row.Collect("Lca_Obs");
  return read;
}

}  // namespace korvantes::office
