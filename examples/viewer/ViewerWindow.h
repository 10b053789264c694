#pragma once

#include <QLabel>
#include <QMainWindow>
#include <array>
#include <functional>

#include "mirolen/qt/Plot2D.h"

/// A window with the map of one wafer and its statistics.
class ViewerWindow : public QMainWindow {
 public:
  /// Diameters in millimetres.
  ViewerWindow(double wafer_diameter, double test_diameter);

  mirolen::qt::Plot2D& map() { return *map_; }

  /// Shows a file. One that is not in order is told by a message, and the plot before it stays. @return
  /// shown.
  bool open_csv(const QString& path);
  bool open_binary(const QString& path, int sites);

 protected:
  /// Tells the user what is wrong.
  virtual void complain(const QString& text);

 private:
  void add_file_menu();
  void add_view_menu();
  QLayout* statistics();
  void ask_csv();
  void ask_binary();
  void show_loaded(const QString& path);
  bool load(const QString& path, const std::function<int()>& load_into_map);

  mirolen::qt::Plot2D* map_;
  std::array<QLabel*, 8> figures_{};
};
