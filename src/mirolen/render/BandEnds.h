#pragma once

#include <cstdint>
#include <string>

#include "mirolen/render/ColorScale.h"

namespace mirolen {

/// How a legend writes its numbers.
struct NumberField {
  std::int16_t width = 0;
  std::int16_t decimals = 0;
  bool useExp = false;
};

/// The numbers of a legend: the ends of the ten bands of a scale, all in fields of one width. Where a number
/// that is shown is longer than its field, the fields are as wide as the longest of them.
class BandEnds {
 public:
  /// @throws OverflowError.
  BandEnds(const ScaleEnds& ends, const NumberField& field);

  /// The upper end of a band, 1 at the top of the scale, and the lower one.
  std::string upper(int band) const { return text(band - 1); }
  std::string lower(int band) const { return text(band); }

 private:
  /// An end, from 0 at the top of the scale to 10 at its bottom.
  double end(int k) const { return high_ - k * step_; }
  std::string text(int k) const;

  double high_, step_;
  NumberField field_;
};

}  // namespace mirolen
