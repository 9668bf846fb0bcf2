#pragma once

namespace korvantes::host {

/// A screen that the desktop offers.
struct DesktopEntry {
  const char* screen;   ///< as scripts name it
  const char* caption;  ///< with the access key
  const char* purpose;
  const char* icon;
  const char* shortcut;
};

/// Those that are built, in the order in which they are shown.
constexpr DesktopEntry kDesktopEntries[] = {
    {"liquidacion", "&Nueva liquidación",
     "Busca los albaranes pendientes de un agente y liquida sus comisiones.", "liquidacion",
     "Ctrl+N"},
};

}  // namespace korvantes::host
