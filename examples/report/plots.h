#pragma once

#include <QString>
#include <optional>
#include <vector>

#include "mirolen/qt/PlotWidget.h"

/// One of the nine plots, with a name for files and a title for people.
struct NamedPlot {
  QString name, title;
  mirolen::qt::PlotWidget* plot;
};

/// All nine, the colour map first, as children of a widget.
std::vector<NamedPlot> nine_plots(QWidget* parent);

/// A plot of the same kind with the same diameters and looks, without data. Its size is that of a new one,
/// which all that can be printed fits into.
NamedPlot twin_of(const NamedPlot& original, QWidget* parent);

/// Chooses what depends on the size of the values: the height of bars and the spacing of curves, unless that
/// is in percent. Without it both are far off for values of another magnitude.
void fit_to_data(mirolen::qt::PlotWidget& plot);

/// Marks the sites on a plot that has marks for them.
void mark_sites(mirolen::qt::PlotWidget& plot, bool on);
/// Whether they are marked; nothing for a plot without marks.
std::optional<bool> sites_marked(const mirolen::qt::PlotWidget& plot);
