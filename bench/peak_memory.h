#pragma once

#include <fstream>
#include <stdexcept>
#include <string>

namespace korvantes::bench {

/// A figure of /proc/self/status in kB, "VmRSS:" or "VmHWM:".
inline double memory(const std::string& name) {
  std::ifstream status("/proc/self/status");
  for (std::string word; status >> word;) {
    double kilobytes = 0;
    if (word == name && status >> kilobytes) return kilobytes;
  }
  throw std::runtime_error(name);
}

/// Resets the peak.
inline void forgetPeak() {
  std::ofstream("/proc/self/clear_refs") << "5";
}

}  // namespace korvantes::bench
