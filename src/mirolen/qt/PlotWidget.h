#pragma once

#include <QColor>
#include <QPixmap>
#include <QWidget>
#include <memory>
#include <optional>
#include <span>
#include <vector>

#include "mirolen/automation/ClassInfo.h"
#include "mirolen/controls/ControlFrame.h"
#include "mirolen/qt/QtToolkit.h"

namespace mirolen::qt {

/// What the faces of all plot controls share. A face shows one control of the library as a QWidget and passes
/// its members, notices and events on under their own names; the control's header tells what they do. Where a
/// control counts in 16 bits the face takes an int, and one that does not fit changes nothing.
///
/// It needs no display: with the platform "offscreen" a face that was never shown draws too, and
/// QWidget::grab gives its picture. Until a face is seen for the first time its size counts as not settled:
/// the plot is drawn anew for each. After that a size only stretches a valid plot.
///
/// The control takes the smallest size it can work in by itself, also against a layout; `minimumSizeHint`
/// tells it.
///
/// A face may be deleted in any slot of its signals, and while its control waits for the user of a form or of
/// a message, which are closed then; the call of the control comes to its end unseen. What changes while Qt
/// itself works with the face (a change of size, a character typed) is told behind that.
class PlotWidget : public QWidget {
  Q_OBJECT
  Q_PROPERTY(double TestDiameter READ TestDiameter WRITE setTestDiameter NOTIFY TestDiameterChanged)
  Q_PROPERTY(double WaferDiameter READ WaferDiameter WRITE setWaferDiameter NOTIFY WaferDiameterChanged)
  Q_PROPERTY(WaferSt WaferStyle READ WaferStyle WRITE setWaferStyle NOTIFY WaferStyleChanged)
  Q_PROPERTY(bool HideLegend READ HideLegend WRITE setHideLegend NOTIFY HideLegendChanged)
  Q_PROPERTY(QColor BackColor READ BackColor WRITE setBackColor NOTIFY BackColorChanged)
  Q_PROPERTY(int MousePointer READ MousePointer WRITE setMousePointer NOTIFY MousePointerChanged)
  Q_PROPERTY(QPixmap MouseIcon READ MouseIcon WRITE setMouseIcon NOTIFY MouseIconChanged)
  Q_PROPERTY(bool DesignMode READ DesignMode WRITE setDesignMode NOTIFY DesignModeChanged STORED false)
  Q_PROPERTY(std::shared_ptr<mirolen::PlotCanvas> PrinterObj READ PrinterObj WRITE setPrinterObj STORED false)
  Q_PROPERTY(double mean READ mean STORED false)
  Q_PROPERTY(double StdDev READ StdDev STORED false)
  Q_PROPERTY(double Maximum READ Maximum STORED false)
  Q_PROPERTY(double Minimum READ Minimum STORED false)
  Q_PROPERTY(double range READ range STORED false)
  Q_PROPERTY(double HiLo READ HiLo STORED false)
  Q_PROPERTY(double StdDevPercent READ StdDevPercent STORED false)
  Q_PROPERTY(int hdc READ hdc STORED false)
  Q_PROPERTY(int hwnd READ hwnd STORED false)

 public:
  enum WaferSt : int { Notch = 1, Flat = 2 };
  Q_ENUM(WaferSt)

  ~PlotWidget() override;

  // ---- Data ----
  int SetWaferData(const ArrayView& x, const ArrayView& y, const ArrayView& Z);
  int SetWaferData(std::span<const double> x, std::span<const double> y, std::span<const double> Z);
  int SetWaferData(const std::vector<double>& x, const std::vector<double>& y, const std::vector<double>& Z);
  Q_INVOKABLE int SetDataFile(const QString& datafile, double nops);
  double GetWaferData(std::vector<double>& x, std::vector<double>& y, std::vector<double>& Z) const;
  Q_INVOKABLE double Interpolation(double x, double y) const { return control_->Interpolation(x, y); }

  double mean() const { return control_->mean(); }
  double StdDev() const { return control_->StdDev(); }
  double Maximum() const { return control_->Maximum(); }
  double Minimum() const { return control_->Minimum(); }
  double range() const { return control_->range(); }
  double HiLo() const { return control_->HiLo(); }
  double StdDevPercent() const { return control_->StdDevPercent(); }

  // ---- Properties ----
  double TestDiameter() const { return control_->TestDiameter(); }
  void setTestDiameter(double v) { control_->TestDiameter(v); }
  double WaferDiameter() const { return control_->WaferDiameter(); }
  void setWaferDiameter(double v) { control_->WaferDiameter(v); }
  WaferSt WaferStyle() const { return static_cast<WaferSt>(control_->WaferStyle()); }
  void setWaferStyle(WaferSt v) { control_->WaferStyle(static_cast<mirolen::WaferSt>(v)); }
  bool HideLegend() const { return control_->HideLegend(); }
  void setHideLegend(bool v) { frame().HideLegend(v); }
  QColor BackColor() const;
  /// A colour that is not valid changes nothing.
  void setBackColor(const QColor& v);
  int MousePointer() const { return control_->MousePointer(); }
  /// Below 0 becomes 0, above 99 becomes 99.
  void setMousePointer(int v);
  QPixmap MouseIcon() const;
  void setMouseIcon(const QPixmap& v);
  int hdc() const { return control_->hdc(); }
  int hwnd() const { return control_->hwnd(); }

  /// Design use: the control has a context menu for its properties, its plot options and its About box.
  bool DesignMode() const { return design_mode_; }
  void setDesignMode(bool v);

  /// Whether ShowPlotOption has a form to show.
  virtual bool has_plot_options() const { return true; }

  /// The control, for calls by name and for its stored properties.
  const automation::Object& by_name() const { return by_name_; }

  /// What the print members draw on: a PrintJob, or any other canvas of the host. A new face has one on the
  /// default printer of the system.
  std::shared_ptr<PlotCanvas> PrinterObj() const { return control_->PrinterObj; }
  void setPrinterObj(std::shared_ptr<PlotCanvas> v) { control_->PrinterObj = std::move(v); }

  /// The messages and the forms of the control, for a host that wants them elsewhere than in windows.
  QtToolkit& toolkit() { return *toolkit_; }

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 public slots:
  int Plot() { return frame().Plot(); }
  void ShowPlotOption() { frame().ShowPlotOption(); }
  /// Shows the control's property pages and, when they are closed, what has become of the plot.
  void ShowProperties();
  void clear() { control_->clear(); }
  bool SetPlotLimit(double LPL, double UPL) { return frame().SetPlotLimit(LPL, UPL); }
  void ReleasePlotLimit() { frame().ReleasePlotLimit(); }
  void SetPlotNotVaild() { control_->SetPlotNotVaild(); }
  void About() { frame().About(); }
  void InitProperties() { frame().InitProperties(); }

  // Printing throws RunTimeError where the target fails.
  int PrintPlot(double left, double top, double width, double height, bool DrawFrame = false) {
    return frame().PrintPlot(left, top, width, height, DrawFrame);
  }
  int PrintWaferStatistic(double left, double top, const QString& units) {
    return frame().PrintWaferStatistic(left, top, units.toStdString());
  }
  int PrintWaferSize(double left, double top) { return frame().PrintWaferSize(left, top); }

 signals:
  void Click();
  void DblClick();
  void MouseDown(int Button, int Shift, float x, float y);
  void MouseMove(int Button, int Shift, float x, float y);
  void MouseUp(int Button, int Shift, float x, float y);

  void TestDiameterChanged();
  void WaferDiameterChanged();
  void WaferStyleChanged();
  void HideLegendChanged();
  void BackColorChanged();
  void MousePointerChanged();
  void MouseIconChanged();
  void DesignModeChanged();

 protected:
  explicit PlotWidget(QWidget* parent);

  /// What the control of a derived face lies on.
  Container& container();
  /// Takes the control, which is new, and gives it its first settings.
  template <class Control>
  void adopt(std::unique_ptr<Control> control) {
    by_name_ = described(*control);
    take(std::move(control));
  }
  /// The control, in the size that this face has now.
  ControlFrame& frame();
  const ControlFrame& frame() const { return *control_; }
  /// The same as what it is to a derived face, which has adopted a control of this class.
  template <class Control>
  Control& frame_as() {
    return static_cast<Control&>(frame());
  }
  template <class Control>
  const Control& frame_as() const {
    return static_cast<const Control&>(frame());
  }
  /// A whole number as the controls take it: none beyond their 16 bits.
  static std::optional<std::int16_t> short_of(int v);
  /// Draws anew for a screen with so many device pixels a logical pixel.
  void change_ratio(double ratio);

  // What the entries of the menu in design use open.
  virtual void open_properties() { ShowProperties(); }
  virtual void open_plot_options() { ShowPlotOption(); }
  virtual void open_about() { About(); }

  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;

 private:
  class Host;
  class Remains;

  void take(std::unique_ptr<ControlFrame> control);
  void property_changed(std::string_view name);
  /// Runs a step for an event of Qt, or behind it where the step is going to ask the user.
  void follow(void (PlotWidget::*step)());
  void take_size();
  void take_ratio();
  void take_palette();
  void take_first_sight();
  void redraw();

  std::unique_ptr<QtToolkit> toolkit_;
  std::unique_ptr<Host> host_;
  std::unique_ptr<ControlFrame> control_;
  automation::Object by_name_;
  std::unique_ptr<class MouseRelay> mouse_;
  QSize told_;
  bool seen_ = false;
  bool design_mode_ = false;
};

}  // namespace mirolen::qt
