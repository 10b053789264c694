#pragma once

#include <QLabel>
#include <QMainWindow>
#include <array>
#include <functional>
#include <vector>

#include "plots.h"

class QTabWidget;

/// A window with the nine plots of one wafer, a page each, and its statistics. Only the page that is seen
/// draws.
class ViewerWindow : public QMainWindow {
 public:
  /// Diameters in millimetres.
  ViewerWindow(double wafer_diameter, double test_diameter);

  /// A page by its place, the colour map first.
  mirolen::qt::PlotWidget& plot(int page) { return *pages_.at(static_cast<std::size_t>(page)).named.plot; }
  QTabWidget& tabs() { return *tabs_; }

  /// Shows a file. One that is not in order is told by a message, and the plot before it stays. @return
  /// shown.
  bool open_csv(const QString& path);
  bool open_binary(const QString& path, int sites);

 protected:
  /// Tells the user what is wrong.
  virtual void complain(const QString& text);

 private:
  /// Loads the present wafer into one plot.
  using Load = std::function<int(mirolen::qt::PlotWidget&)>;
  struct Page {
    NamedPlot named;
    bool loaded = false, drawn = false;
  };

  void add_pages(double wafer_diameter, double test_diameter);
  void add_file_menu();
  void add_view_menu();
  QLayout* statistics();
  void ask_csv();
  void ask_binary();
  bool open(const QString& path, const std::function<Load()>& prepare);
  void change_looks(const std::function<void(mirolen::qt::PlotWidget&)>& change);
  void show_page();
  void show_statistics(mirolen::qt::PlotWidget& plot);

  QTabWidget* tabs_;
  std::vector<Page> pages_;
  Load load_;
  std::array<QLabel*, 8> figures_{};
};
