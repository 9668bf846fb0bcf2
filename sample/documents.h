#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "runtime/ado/connection.h"
#include "runtime/ado/date.h"

namespace korvantes::sample {

/// A line of a delivery note or of an order: money in 1/10000, commission in thousandths of a
/// percent.
struct SampleLine {
  std::optional<std::int64_t> amount;
  std::optional<std::int64_t> commission;
  std::string text;
};

/// A delivery note. Discounts in hundredths of a percent.
struct SampleNote {
  int id = 0;
  std::optional<std::string> series;
  int number = 0;
  std::string customer;
  std::optional<std::int64_t> discount1 = 0, discount2 = 0;
  std::optional<int> invoice;
  int agent = 0;
  int state = 0;
  std::optional<int> settlement;
  std::vector<SampleLine> lines;
};

/// An invoice; each digit of `receipts` is the state of one receipt. Tax bases in cents.
struct SampleInvoice {
  int id = 0;
  std::string series;
  int number = 0;
  ado::Date date;
  int customerId = 0, customerCode = 0;
  std::string customer;
  std::array<std::optional<std::int64_t>, 3> bases = {0, 0, 0};
  std::string receipts;
};

struct SampleOrder {
  int id = 0;
  std::optional<std::int64_t> discount1 = 0, discount2 = 0;
  std::vector<SampleLine> lines;
};

struct SampleDocuments {
  std::vector<SampleInvoice> invoices;
  std::vector<SampleNote> notes;
  std::vector<SampleOrder> orders;
};

/// 120 invoices with their receipts, 180 delivery notes and 20 orders, from January 2024 to June
/// 2026; no note is settled yet. They are always the same.
SampleDocuments makeDocuments();

void loadDocuments(ado::Connection& connection, const SampleDocuments& documents);

/// Commission of a note, in cents.
std::int64_t commissionOf(const SampleNote& note);

/// True when all receipts that count are collected, or all of them are pending; receipts in state 8
/// do not count, and there must be one that does.
bool isCollected(const SampleInvoice& invoice);
bool isPending(const SampleInvoice& invoice);

}  // namespace korvantes::sample
