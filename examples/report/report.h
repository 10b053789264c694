#pragma once

#include <QString>
#include <functional>
#include <memory>

#include "mirolen/qt/PlotWidget.h"

// Pages as a host composes them: a plot with its legend and the blocks of its numbers, each at its place in twips
// (1/1440 inch) of the page.

/// The size that a page needs, in twips: it fits on A4 and on Letter.
inline constexpr double report_width = 10500, report_height = 13000;

/// Prints a page of the plot of a loaded control. The unit is that of the values.
/// @throws mirolen::RunTimeError where the target fails.
void print_page(mirolen::qt::PlotWidget& plot, const std::shared_ptr<mirolen::PlotCanvas>& target,
                const QString& unit);
