#include "plots.h"

#include <QMetaProperty>

#include "mirolen/qt/Histogram.h"
#include "mirolen/qt/LineScan.h"
#include "mirolen/qt/Plot2D.h"
#include "mirolen/qt/Plot2DB.h"
#include "mirolen/qt/Plot2DC.h"
#include "mirolen/qt/Plot2DN.h"
#include "mirolen/qt/Plot2DS.h"
#include "mirolen/qt/Plot3D.h"
#include "mirolen/qt/Plot3DS.h"
#include "texts.h"

using namespace mirolen::qt;

namespace {

void copy_settings(const PlotWidget& from, PlotWidget& to) {
  const QMetaObject& type = *from.metaObject();
  for (int i = PlotWidget::staticMetaObject.propertyOffset(); i < type.propertyCount(); ++i) {
    const QMetaProperty property = type.property(i);
    if (property.isWritable() && property.isStored()) property.write(&to, property.read(&from));
  }
}

}  // namespace

std::vector<NamedPlot> nine_plots(QWidget* parent) {
  constexpr double cell = 2;  // mm
  auto* const map = new Plot2D(parent);
  map->setResolution(cell);
  auto* const sigma_map = new Plot2DS(parent);
  sigma_map->setResolution(cell);
  auto* const contour = new Plot2DC(parent);
  contour->setPlotColored(Plot2DC::Ten_ColorPlot);
  contour->setResolution(Plot2DC::HighQuality);
  return {{"plot2d", text("Colour map"), map},
          {"plot2ds", text("Sigma map"), sigma_map},
          {"plot2dc", text("Contour"), contour},
          {"plot2dn", text("Values"), new Plot2DN(parent)},
          {"plot2db", text("Bars"), new Plot2DB(parent)},
          {"plot3d", text("Surface"), new Plot3D(parent)},
          {"plot3ds", text("Sigma surface"), new Plot3DS(parent)},
          {"histogram", text("Histogram"), new Histogram(parent)},
          {"linescan", text("Line scan"), new LineScan(parent)}};
}

NamedPlot twin_of(const NamedPlot& original, QWidget* parent) {
  QWidget nursery;
  for (const NamedPlot& twin : nine_plots(&nursery)) {
    if (twin.name != original.name) continue;
    twin.plot->setParent(parent);
    copy_settings(*original.plot, *twin.plot);
    return twin;
  }
  throw mirolen::InvalidArgument("there is no plot of this name");
}

void fit_to_data(PlotWidget& plot) {
  constexpr double highest_bar = 40;  // mm
  constexpr int curves = 10;
  const double range = plot.range();
  if (!(range > 0)) return;
  // The legend and the forms show them.
  const auto rounded = [](double value) { return QString::number(value, 'g', 2).toDouble(); };
  if (auto* bars = qobject_cast<Plot2DB*>(&plot)) bars->setBeamScale(rounded(highest_bar / range));
  auto* const contour = qobject_cast<Plot2DC*>(&plot);
  if (contour && contour->IntervalInPercent() != 0) contour->setInterval(rounded(range / curves));
}

void mark_sites(PlotWidget& plot, bool on) {
  if (auto* map = qobject_cast<CellMapWidget*>(&plot))
    map->setShowSites(on ? CellMapWidget::ShowSite : CellMapWidget::HideSite);
  if (auto* scan = qobject_cast<LineScan*>(&plot)) scan->setShowSites(on);
  if (auto* contour = qobject_cast<Plot2DC*>(&plot))
    contour->setMarksites(on ? Plot2DC::Exact : Plot2DC::None);
}

std::optional<bool> sites_marked(const PlotWidget& plot) {
  if (const auto* map = qobject_cast<const CellMapWidget*>(&plot))
    return map->ShowSites() == CellMapWidget::ShowSite;
  if (const auto* scan = qobject_cast<const LineScan*>(&plot)) return scan->ShowSites();
  if (const auto* contour = qobject_cast<const Plot2DC*>(&plot)) return contour->marksites() != Plot2DC::None;
  return std::nullopt;
}
