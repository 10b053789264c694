#pragma once

namespace mirolen {

class wafer;

/// A spacing of contour curves in the unit of the values as percent of the mean, or of what stands in for a
/// mean of 0: first the range that is meant, then the extremes; 1 where nothing does. @throws OverflowError.
double contour_interval_in_percent(const wafer& wafer, double range, double interval);

}  // namespace mirolen
