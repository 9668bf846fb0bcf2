#pragma once

#include "office/outlets.h"
#include "office/print/page_flow.h"
#include "runtime/ado/date.h"

namespace korvantes::office {

/// A report written line by line: once to count its pages, and once to paint them.
class PagedReport : public Report {
 public:
  void setUp(QPagedPaintDevice& device) const final;
  /// Throws ado::Error if the device cannot be painted on.
  void paint(QPagedPaintDevice& device) const final;

 protected:
  explicit PagedReport(ado::Date printed) : printed_(printed) {}

  /// The whole report, from its first line to its last.
  virtual void write(PageFlow& flow) const = 0;

 private:
  ado::Date printed_;
};

}  // namespace korvantes::office
