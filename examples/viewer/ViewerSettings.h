#pragma once

#include <QSet>
#include <QString>
#include <QStringList>

#include "plots.h"

class QMainWindow;
class QTabWidget;

/// What is kept from one run to the next, in a folder: the looks of each plot in a file of its own, the place
/// of the window and the page that is seen. Nothing of a wafer is kept: neither its name nor what was fitted
/// to its values.
class ViewerSettings {
 public:
  explicit ViewerSettings(QString folder) : folder_(std::move(folder)) {}

  /// Gives a plot what is kept for it; what is not, or is damaged, stays as it is.
  /// @return what is wrong, empty for nothing. A file that is not in order is left alone from then on.
  QString read(const NamedPlot& named);
  /// Keeps the looks of a plot, with its diameters or with those that were kept before.
  /// @return what is wrong, empty for nothing.
  QString write(const NamedPlot& named, bool diameters) const;

  void read_window(QMainWindow& window, QTabWidget& tabs) const;
  void write_window(const QMainWindow& window, const QTabWidget& tabs) const;

 private:
  QString file_of(const NamedPlot& named) const;
  QString window_file() const;

  QString folder_;
  QSet<QString> left_alone_;
};
