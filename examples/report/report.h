#pragma once

#include <QPageLayout>
#include <QString>
#include <memory>

#include "mirolen/qt/PlotWidget.h"

// Pages as a host composes them: a title, a plot, and its legend and the blocks of its numbers, each at its
// place in twips (1/1440 inch) of the page.

/// Where the parts of a page are.
struct PagePlan {
  struct Place {
    double left, top;
  };
  double width;
  double plot_top, plot_width, plot_height;
  Place statistics, size, legend;
};

/// The smallest page that has room for the parts.
inline constexpr double least_page_width = 8700, least_page_height = 8400;

/// Blocks below the plot on an upright page, and beside it on a wide one.
/// @throws mirolen::InvalidArgument, with a text for the user, for a page that is too small.
PagePlan plan_page(double width, double height);

/// Upright A4, or Letter where paper is measured in inches, with margins of 10 mm.
QPageLayout report_layout();

struct PageTexts {
  QString title;   ///< in bold letters at the left
  QString remark;  ///< at the right
  QString unit;    ///< of the values
};

/// Prints a page of the plot of a loaded control.
/// @throws mirolen::RunTimeError, with a text for the user, where the target fails, or is or the control is
/// too small.
void print_page(mirolen::qt::PlotWidget& plot, const std::shared_ptr<mirolen::PlotCanvas>& target,
                const PageTexts& texts);
