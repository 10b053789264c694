#pragma once

#include <cstdint>
#include <string>

#include "mirolen/core/Array.h"
#include "mirolen/core/wafer.h"

namespace mirolen::GlobalFunctions {

/// Loads sites from three arrays of the lower bound 1: millimetres, millimetres, value. At most 32,767 sites.
/// With PlotLimitSet the plot limits in force outlast the load.
/// @return 0 loaded; 1 the upper bound of y is neither that of x nor that of Z; 2 the same for lower bounds.
/// @throws RunTimeError: a bound or an element that does not fit or is not finite (found before the store is
/// touched); an array that is too short, or no sites, or `MaxMin`'s errors (the store keeps what had come
/// in).
std::int16_t LoadSiteArrays(bool PlotLimitSet, wafer& wafer, const ArrayView& x, const ArrayView& y,
                            const ArrayView& Z);

/// Loads nops sites, rounded half to even, from a binary file: all x, then all y, then all z, as
/// little-endian IEEE doubles without any header. Numbers that the file does not reach, or reaches only in
/// part, are 0; bytes beyond them are ignored. The count is not in the file: a wrong one gives a scrambled
/// map and no error.
/// @param datafile path in UTF-8.
/// @return 0 loaded; 4 any failure (no such file, a device or a pipe, nops negative or above 32,767, a number
/// that is not finite): the store has been reset by then and keeps what had come in.
std::int16_t LoadSiteFile(bool PlotLimitSet, wafer& wafer, const std::string& datafile, double nops);

/// Sets the plot limits to LPL and UPL and returns true; false, changing nothing, unless LPL is below UPL.
/// @throws OverflowError where their difference leaves the range of Double.
bool ApplyPlotLimit(wafer& wafer, double LPL, double UPL);

/// Shrinks the store to the number of sites that lie within the new test diameter (on its circle counts as
/// within) and makes it the test diameter. It is the first sites of the store that remain, so many as lie
/// within, whichever those are. With all sites within it changes nothing, the test diameter neither.
/// @throws RunTimeError as `MaxMin`, so always when no site is left; the store is empty then.
void ClipToTestDiameter(bool PlotLimitSet, wafer& wafer, double new_diameter);

}  // namespace mirolen::GlobalFunctions
