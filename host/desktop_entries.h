#pragma once

namespace korvantes::host {

/// A screen that the main window offers.
struct DesktopEntry {
  const char* screen;   ///< as scripts name it
  const char* caption;  ///< with the access key
  const char* purpose;
  const char* icon;
  const char* shortcut;
};

/// In the order in which they are shown.
constexpr DesktopEntry kDesktopEntries[] = {
    {"liquidacion", "&Nueva liquidación",
     "Busca los albaranes pendientes de un agente y liquida sus comisiones.", "liquidacion",
     "Ctrl+N"},
    {"informe", "&Informe de liquidaciones",
     "Consulta las liquidaciones guardadas por fechas y agentes; las imprime, las exporta y las "
     "abre.",
     "informe", "Ctrl+I"},
    {"agentes", "&Agentes comerciales",
     "Da de alta a los agentes y mantiene sus datos, su comisión y su imagen.", "agentes",
     "Ctrl+A"},
};

}  // namespace korvantes::host
