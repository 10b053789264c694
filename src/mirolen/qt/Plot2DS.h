#pragma once

#include "mirolen/controls/Plot2DS.h"
#include "mirolen/qt/CellMapWidget.h"

namespace mirolen::qt {

/// The sigma map of a wafer as a QWidget.
class Plot2DS : public CellMapWidget {
  Q_OBJECT
  Q_PROPERTY(double SigmaRange READ SigmaRange WRITE setSigmaRange NOTIFY SigmaRangeChanged)

 public:
  explicit Plot2DS(QWidget* parent = nullptr);

  /// The control behind the face, in the size that the face has now.
  mirolen::Plot2DS& control() { return frame_as<mirolen::Plot2DS>(); }
  const mirolen::Plot2DS& control() const { return frame_as<mirolen::Plot2DS>(); }

  double SigmaRange() const { return control().SigmaRange(); }
  void setSigmaRange(double v) { control().SigmaRange(v); }

 public slots:
  int PrintLegend_No_Frame(double left, double top) { return control().PrintLegend_No_Frame(left, top); }

 signals:
  void SigmaRangeChanged();
};

}  // namespace mirolen::qt
