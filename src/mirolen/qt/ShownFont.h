#pragma once

#include <QFont>
#include <QFontMetricsF>
#include <QString>
#include <string>
#include <string_view>

#include "mirolen/render/Surface.h"

namespace mirolen::qt {

/// A font as a device shows it. A text is measured more than once and then written, so the last one is
/// remembered.
class ShownFont {
 public:
  /// @param ratio device pixels of a logical one.
  ShownFont(const FontSpec& wanted, const QPaintDevice& device, double ratio);

  const FontSpec& wanted() const { return wanted_; }
  const QFont& font() const { return font_; }

  struct Text {
    std::string utf8;
    QString shown;     // in the letters of the font
    double width = 0;  // in device pixels, as the height
  };
  /// A text, for any use up to the next one.
  const Text& text(std::string_view utf8);
  double height() const { return metrics_.height(); }

 private:
  FontSpec wanted_;
  QFont font_;
  QFontMetricsF metrics_;
  Text last_;
};

}  // namespace mirolen::qt
