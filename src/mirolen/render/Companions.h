#pragma once

#include <string>

#include "mirolen/core/numbers.h"

namespace mirolen {

// What a renderer is handed next to its canvas. Lengths are in the units of whatever holds the object.

/// Takes a caption.
class CaptionLabel {
 public:
  virtual ~CaptionLabel() = default;
  virtual void caption(const std::string& text) = 0;
};

/// A value of a legend.
class ValueLabel : public CaptionLabel {
 public:
  virtual void tool_tip(const std::string& text) = 0;
  virtual void set_visible(bool visible) = 0;
};

/// A colour of a legend.
class ColorBox {
 public:
  virtual ~ColorBox() = default;
  virtual void set_color(Color color) = 0;
  virtual void set_visible(bool visible) = 0;
};

/// The marks of the sites on a line scan: widgets that are made as they are needed, and numbered from 0.
class SiteMarks {
 public:
  virtual ~SiteMarks() = default;
  virtual int count() const = 0;
  virtual void add() = 0;
  virtual void hide_all() = 0;
  /// Shows a mark with its top left corner at a place of the chart.
  virtual void show(int mark, double left, double top, const std::string& tool_tip) = 0;
};

/// The scan line of the small wafer picture.
class IndicatorLine {
 public:
  virtual ~IndicatorLine() = default;
  virtual void set_ends(double X1, double Y1, double X2, double Y2) = 0;
};

/// The mark beyond the start of that line.
class IndicatorMark {
 public:
  virtual ~IndicatorMark() = default;
  virtual double width() const = 0;
  virtual double height() const = 0;
  virtual void move_to(double left, double top) = 0;
  virtual void set_visible(bool visible) = 0;
};

}  // namespace mirolen
