#include "ViewerOptions.h"

#include <QCommandLineParser>
#include <QStandardPaths>

#include "mirolen/core/RunTimeError.h"
#include "texts.h"

namespace {

std::optional<double> diameter(const QCommandLineParser& options, const QString& name) {
  if (!options.isSet(name)) return std::nullopt;
  bool is_number = false;
  const double value = options.value(name).toDouble(&is_number);
  if (is_number && value > 0 && value <= 1000) return value;
  throw mirolen::InvalidArgument(
      text("--%1 is a diameter in millimetres, above 0 and at most 1000, and not \"%2\"")
          .arg(name, options.value(name))
          .toStdString());
}

}  // namespace

ViewerOptions options_in(const QStringList& command_line) {
  QCommandLineParser options;
  options.setApplicationDescription(
      text("Shows the sites of wafers in nine plots, prints them and writes reports."));
  options.addHelpOption();
  options.addOption({"diameter", text("Wafer diameter of this run, 300 unless given or kept."), "mm"});
  options.addOption({"test-diameter",
                     text("Diameter that the plot fills in this run, 6 mm less than a given wafer diameter "
                          "unless given or kept."),
                     "mm"});
  options.addOption({"unit", text("Unit of the values, for reports."), "text"});
  options.addOption({"settings", text("Folder that keeps the settings of the plots and of the window."),
                     "dir", QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation)});
  options.addOption({"no-settings", text("Start with the usual settings and keep none.")});
  options.addPositionalArgument("files", text("Wafers to show, with the sites of one each: x_mm,y_mm,z."),
                                "[file.csv...]");
  options.process(command_line);
  return {diameter(options, "diameter"), diameter(options, "test-diameter"), options.value("unit"),
          options.isSet("no-settings") ? QString() : options.value("settings"),
          options.positionalArguments()};
}
