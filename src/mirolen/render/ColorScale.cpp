#include "mirolen/render/ColorScale.h"

#include <array>

namespace mirolen {

ScaleEnds scale_ends(const wafer& wafer) {
  if (wafer.maximal == wafer.maxi && wafer.minimal == wafer.mini)
    return {wafer.maximal, wafer.minimal, false};
  const double margin = checked((wafer.maximal - wafer.minimal) / 8);
  return {checked(wafer.maximal + margin), checked(wafer.minimal - margin), true};
}

int band_of(double height, double top, double step) {
  if (step < 0) return height >= top - 9 * step ? 1 : 10;
  // Counted, since a processor guesses branches wrong where the cells of a map have any colours.
  int band = 1;
  for (int k = 1; k <= 9; ++k) band += !(height >= top - k * step);
  return band;
}

double& band_color(wafer& wafer, int band) {
  const std::array colors{&wafer.col1, &wafer.col2, &wafer.col3, &wafer.col4, &wafer.col5,
                          &wafer.col6, &wafer.col7, &wafer.col8, &wafer.col9, &wafer.col10};
  if (band < 1 || band > 10) throw SubscriptOutOfRange();
  return *colors[static_cast<std::size_t>(band - 1)];
}

}  // namespace mirolen
