#pragma once

#include <QCoreApplication>
#include <QLabel>
#include <QMainWindow>
#include <array>
#include <functional>
#include <optional>
#include <vector>

#include "ViewerSettings.h"
#include "lot.h"

class QAction;
class QActionGroup;
class QComboBox;
class QPrinter;
class QTabWidget;
struct ViewerOptions;

/// A window with the nine plots of a wafer, a page each, and its statistics; of several files that are open
/// one is shown. Only the page that is seen draws. What fails is told by a message.
class ViewerWindow : public QMainWindow {
  Q_DECLARE_TR_FUNCTIONS(examples)

 public:
  /// Diameters in millimetres. The unit is that of the values; it appears in reports.
  ViewerWindow(double wafer_diameter, double test_diameter, QString unit = {});

  /// Shows itself with the settings that were kept, then with what is given. If a folder for settings is
  /// given, the window writes them when it is closed.
  void start(const ViewerOptions& options);

  /// A page by its place, the colour map first.
  mirolen::qt::PlotWidget& plot(int page) { return *pages_.at(static_cast<std::size_t>(page)).named.plot; }
  QTabWidget& tabs() { return *tabs_; }
  /// The choice of the wafer that is shown.
  QComboBox& wafers() { return *wafers_; }

  /// Opens files in place of those before and shows the first. One that is not in order is left out; if none
  /// is, the plot before stays. @return all are in order.
  bool open_csv(const QStringList& paths);
  bool open_csv(const QString& path) { return open_csv(QStringList(path)); }
  bool open_binary(const QString& path, int sites);

  // What becomes of the plot that is seen. All return whether it was done.
  bool print_on(QPrinter& printer);
  bool write_pdf(const QString& path);
  bool write_svg(const QString& path);
  /// The plot as it is seen, in the pixels of the screen.
  bool write_png(const QString& path);
  void copy();
  /// A PDF with a page of this plot for each wafer that is open.
  bool write_lot_report(const QString& path);

 protected:
  /// Tells the user what is wrong.
  virtual void complain(const QString& text);
  void closeEvent(QCloseEvent* event) override;

 private:
  enum class Data { due, loaded, refused };
  struct Page {
    NamedPlot named;
    Data data = Data::due;
    bool fitted = false, drawn = false;
  };

  void add_pages(double wafer_diameter, double test_diameter);
  void add_file_menu();
  void add_output_actions(QMenu& menu);
  void add_edit_menu();
  void add_view_menu();
  void add_style_actions(QMenu& menu);
  void add_wafer_actions(QMenu& menu);
  void add_options_menu();
  void add_help_menu();
  QLayout* side_column();
  void ask_csv();
  void ask_binary();
  bool open(std::vector<LotWafer> wafers);
  void show_wafer();
  void step_wafer(int by);
  void enable_actions();
  void change_looks(const std::function<void(mirolen::qt::PlotWidget&)>& change);
  void show_page();
  void load(Page& page);
  /// Has the wafer loaded again, when the page is seen.
  void data_gone(Page& page);
  void open_form(void (mirolen::qt::PlotWidget::*form)());
  /// Brings the menus into line with the plot that is seen.
  void follow_plot();
  void clear_statistics();
  void show_statistics(mirolen::qt::PlotWidget& plot);

  void take_diameters(const ViewerOptions& options);
  void complain_of(const QString& what, QStringList wrong);
  void ask_printer();
  void preview();
  void ask_file_for(const QString& title, const QString& filter, const QString& suffix,
                    bool (ViewerWindow::*write)(const QString&));
  Page& seen_page();
  std::size_t seen_wafer() const;
  LotReport report(std::vector<LotWafer> wafers, QWidget* owner);
  bool attempt(const QString& what, const std::function<bool()>& work);
  bool print_page_on(const QString& what,
                     const std::function<std::shared_ptr<mirolen::qt::PrintJob>()>& make_job);

  QTabWidget* tabs_;
  QComboBox* wafers_;
  QString unit_;
  std::optional<ViewerSettings> settings_;
  bool keep_diameters_ = true;
  std::vector<Page> pages_;
  std::vector<LotWafer> lot_;
  std::vector<QAction*> need_data_;
  QAction* next_ = nullptr;
  QAction* previous_ = nullptr;
  QAction* sites_ = nullptr;
  QAction* legend_ = nullptr;
  QActionGroup* styles_ = nullptr;
  QAction* plot_options_ = nullptr;
  std::array<QLabel*, 8> figures_{};
};
