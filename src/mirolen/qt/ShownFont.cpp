#include "mirolen/qt/ShownFont.h"

#include <QPaintDevice>

#include "mirolen/qt/translate.h"

namespace mirolen::qt {

ShownFont::ShownFont(const FontSpec& wanted, const QPaintDevice& device, double ratio)
    : wanted_(wanted), font_(font_of(wanted, device, ratio)), metrics_(font_, &device) {}

const ShownFont::Text& ShownFont::text(std::string_view utf8) {
  if (utf8 == last_.utf8) return last_;
  last_.shown = shown_text(wanted_, utf8);
  last_.width = metrics_.horizontalAdvance(last_.shown);
  last_.utf8 = utf8;
  return last_;
}

}  // namespace mirolen::qt
