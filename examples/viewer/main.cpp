#include <QApplication>
#include <QCommandLineParser>
#include <cstdio>
#include <optional>

#include "ViewerWindow.h"

namespace {

/// The millimetres of an option, or nothing behind a complaint.
std::optional<double> diameter(const QCommandLineParser& options, const QString& name, double unless_given) {
  if (!options.isSet(name)) return unless_given;
  bool is_number = false;
  const double value = options.value(name).toDouble(&is_number);
  if (is_number && value > 0 && value <= 1000) return value;
  std::fprintf(stderr,
               "viewer: --%s is a diameter in millimetres, above 0 and at most 1000, and not \"%s\"\n",
               qPrintable(name), qPrintable(options.value(name)));
  return std::nullopt;
}

}  // namespace

int main(int argc, char** argv) {
  QApplication app(argc, argv);
  QCommandLineParser options;
  options.setApplicationDescription(
      "Shows the sites of wafers in nine plots, prints them and writes reports.");
  options.addHelpOption();
  options.addOption({"diameter", "Wafer diameter, 300 unless given.", "mm"});
  options.addOption({"test-diameter", "Diameter that the plot fills, 6 mm less unless given.", "mm"});
  options.addOption({"unit", "Unit of the values, for reports.", "text"});
  options.addPositionalArgument("files", "Wafers to show, with the sites of one each: x_mm,y_mm,z.",
                                "[file.csv...]");
  options.process(app);

  const auto wafer = diameter(options, "diameter", 300);
  if (!wafer) return 1;
  const auto test = diameter(options, "test-diameter", *wafer > 12 ? *wafer - 6 : *wafer);
  if (!test) return 1;

  ViewerWindow window(*wafer, *test, options.value("unit"));
  window.show();
  const QStringList files = options.positionalArguments();
  if (!files.isEmpty()) window.open_csv(files);
  return QApplication::exec();
}
