#pragma once

#include "mirolen/controls/Plot3DS.h"
#include "mirolen/qt/SurfaceWidget.h"

namespace mirolen::qt {

/// The sigma surface of a wafer as a QWidget.
class Plot3DS : public SurfaceWidget {
  Q_OBJECT
  Q_PROPERTY(double SigmaRange READ SigmaRange WRITE setSigmaRange NOTIFY SigmaRangeChanged)

 public:
  explicit Plot3DS(QWidget* parent = nullptr);

  /// The control behind the face, in the size that the face has now.
  mirolen::Plot3DS& control() { return frame_as<mirolen::Plot3DS>(); }
  const mirolen::Plot3DS& control() const { return frame_as<mirolen::Plot3DS>(); }

  double SigmaRange() const { return control().SigmaRange(); }
  void setSigmaRange(double v) { control().SigmaRange(v); }

 public slots:
  int PrintLegend_No_Frame(double left, double top) { return control().PrintLegend_No_Frame(left, top); }

 signals:
  void SigmaRangeChanged();
};

}  // namespace mirolen::qt
