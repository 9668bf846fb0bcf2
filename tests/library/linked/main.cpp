#include "../host.h"
#include "library/factory.h"

int main() {
  host::require(std::string(korvantes_version()) == PACKAGE_VERSION, "one version everywhere");
  const auto component = korvantes::KORVAN::Create();
  host::use(*component, PACKAGE_VERSION);
}
