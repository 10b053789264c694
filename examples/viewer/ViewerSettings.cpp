#include "ViewerSettings.h"

#include <QDir>
#include <QFileInfo>
#include <QMainWindow>
#include <QSettings>
#include <QTabWidget>
#include <algorithm>

#include "mirolen/qt/SettingsBag.h"

using mirolen::automation::ClassInfo;
using mirolen::automation::StoredKey;
using mirolen::qt::PlotWidget;
using mirolen::qt::SettingsBag;

namespace {

constexpr const char *geometry_key = "geometry", *page_key = "page";

/// The class of a plot without some of its stored properties. What is missing in a file keeps its present
/// value, not the control's default.
ClassInfo without(const PlotWidget& plot, const std::vector<std::string>& properties) {
  ClassInfo info = *plot.by_name().info;
  std::erase_if(info.stored, [&](const StoredKey& key) {
    return std::find(properties.begin(), properties.end(), key.property) != properties.end();
  });
  for (StoredKey& key : info.stored) key.fallback.reset();
  return info;
}

/// The stored properties that tell of the wafer that is shown.
std::vector<std::string> of_the_wafer(const PlotWidget& plot) {
  std::vector<std::string> properties{"PlotCaption", "BeamScale"};
  const QVariant unless_percent = plot.property("IntervalInPercent");
  if (unless_percent.isValid() && unless_percent.toInt() != 0) properties.emplace_back("Interval");
  return properties;
}

}  // namespace

QString ViewerSettings::file_of(const NamedPlot& named) const {
  return QDir(folder_).filePath("plots/" + named.name + ".json");
}

QString ViewerSettings::window_file() const { return QDir(folder_).filePath("window.ini"); }

QString ViewerSettings::read(const NamedPlot& named) {
  PlotWidget& plot = *named.plot;
  const QString file = file_of(named);
  QStringList refused;
  const auto usual = plot.toolkit().on_message;
  plot.toolkit().on_message = [&](const QString& text, const QString&, mirolen::MessageIcon) {
    refused << QStringLiteral("%1: %2").arg(file, text);
  };
  try {
    const SettingsBag bag(file);
    const ClassInfo info = without(plot, {"PlotCaption"});
    mirolen::automation::ReadProperties({&info, plot.by_name().instance}, bag);
  } catch (const std::exception& error) {
    refused << QString::fromUtf8(error.what());
    left_alone_ << named.name;
  }
  plot.toolkit().on_message = usual;
  return refused.join('\n');
}

QString ViewerSettings::write(const NamedPlot& named, bool diameters) const {
  if (left_alone_.contains(named.name)) return {};
  const PlotWidget& plot = *named.plot;
  const QString file = file_of(named);
  std::vector<std::string> left_out = of_the_wafer(plot);
  if (!diameters) left_out.insert(left_out.end(), {"WaferDiameter", "TestDiameter"});
  try {
    QDir().mkpath(QFileInfo(file).path());
    SettingsBag bag(file);
    const ClassInfo info = without(plot, left_out);
    mirolen::automation::WriteProperties({&info, plot.by_name().instance}, bag);
    bag.save();
  } catch (const std::exception& error) {
    return QString::fromUtf8(error.what());
  }
  return {};
}

void ViewerSettings::read_window(QMainWindow& window, QTabWidget& tabs) const {
  const QSettings kept(window_file(), QSettings::IniFormat);
  window.restoreGeometry(kept.value(geometry_key).toByteArray());
  tabs.setCurrentIndex(kept.value(page_key, 0).toInt());
}

void ViewerSettings::write_window(const QMainWindow& window, const QTabWidget& tabs) const {
  QSettings kept(window_file(), QSettings::IniFormat);
  kept.setValue(geometry_key, window.saveGeometry());
  kept.setValue(page_key, tabs.currentIndex());
}
