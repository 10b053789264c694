#include "mirolen/render/BandEnds.h"

#include <algorithm>

#include "mirolen/render/StringFormat.h"

namespace mirolen {

BandEnds::BandEnds(const ScaleEnds& ends, const NumberField& field)
    : high_(ends.high), step_(checked((ends.high - ends.low) / 10)), field_(field) {
  // The outer bands of a limited scale are open.
  const int first = ends.limited ? 1 : 0, last = ends.limited ? 9 : 10;
  for (int k = first; k <= last; ++k)
    field_.width = std::max(field_.width, StringFormat::FieldWidth(end(k), field_.decimals, field_.useExp));
}

std::string BandEnds::text(int k) const {
  return StringFormat::FormatField(end(k), field_.width, field_.decimals, field_.useExp);
}

}  // namespace mirolen
