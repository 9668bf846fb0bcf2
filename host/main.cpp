#include <iostream>
#include <string>
#include <vector>

#include "host/host.h"

int main(int argc, char** argv) {
  std::ios::sync_with_stdio(false);
  std::cin.tie(nullptr);
  return korvantes::host::runHost(std::vector<std::string>(argv + 1, argv + argc),
                                  {std::cin, std::cout, std::cerr});
}
