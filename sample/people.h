#pragma once

#include <optional>
#include <span>

#include "runtime/ado/connection.h"

namespace korvantes::sample {

struct SampleAgent {
  int id;
  const char* name;
  const char* taxNumber;
  const char* street;
  const char* postCode;
  const char* town;
  const char* province;
  int country;
  const char* telephone;
  const char* mobile;
  const char* mail;
  int commission;             ///< usual commission, in thousandths of a percent
  std::optional<int> regime;  ///< none counts as regime 1
};

struct SampleCustomer {
  int id;
  int code;
  const char* name;
  const char* town;
  int agent;  ///< who sells to it
};

std::span<const SampleAgent> sampleAgents();
std::span<const SampleCustomer> sampleCustomers();

/// Writes agents and customers.
void loadPeople(ado::Connection& connection);

}  // namespace korvantes::sample
