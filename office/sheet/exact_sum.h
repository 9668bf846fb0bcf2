#pragma once

#include "runtime/ado/decimal.h"

namespace korvantes::office {

/// A sum of amounts without the error of binary fractions: 0.10 and 0.20 are 0.30.
class ExactSum {
 public:
  void add(const ado::Decimal& number);
  /// The decimal that the double shows at 15 significant digits.
  void add(double number);

  /// The double nearest to the sum. Only sums beyond some thirty digits are rounded on the way.
  double value() const;

 private:
  __extension__ using Wide = __int128;
  /// False when it does not fit.
  bool addExactly(Wide units, int scale);

  Wide units_ = 0;
  int scale_ = 0;
  double inexact_ = 0;  ///< what did not fit
};

}  // namespace korvantes::office
