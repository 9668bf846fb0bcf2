#pragma once

namespace korvantes::agents {

/// Indexes of txtFields.
enum Field {
  kCodigo = 0,
  kNombre = 1,
  kNif = 2,
  kDireccion = 3,
  kCodigoPostal = 4,
  kPoblacion = 5,
  kTelefono = 6,
  kMovil = 7,
  kEmail = 8,
  kComision = 9,
  kFax = 10,
};

/// Title of the screen's own messages.
constexpr const char* kTitulo = "Agentes";
constexpr const char* kSalto = "\r\n";

}  // namespace korvantes::agents
