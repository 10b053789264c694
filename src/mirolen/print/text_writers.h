#pragma once

#include <string>

#include "mirolen/render/PlotCanvas.h"

namespace mirolen::print {

/// Width of a text in whole units of the canvas. @throws OverflowError beyond 16 bits.
std::int16_t whole_width(const PlotCanvas& canvas, const std::string& text);

// Take a character off a text, whatever number of bytes it has, or one off either end. @throws
// InvalidArgument for a text that has not as many; it stays as it is.
void lose_first(std::string& text);
void lose_last(std::string& text);
void lose_both(std::string& text);

/// Writes a text from left, after it has lost characters at its end until it is no wider than width.
void write_left(PlotCanvas& canvas, std::string& text, double left, double top, double width,
                std::int16_t color);

/// A value in a format that gets a decimal more at each turn, until the text is not zero. For 0 the format
/// itself.
std::string format_non_zero(double value, std::string& format);

}  // namespace mirolen::print
