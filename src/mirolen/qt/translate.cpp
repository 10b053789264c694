#include "mirolen/qt/translate.h"

#include <QPixmap>
#include <algorithm>
#include <array>
#include <cmath>

#include "mirolen/qt/Picture.h"

namespace mirolen::qt {
namespace {

/// What the font "Symbol" shows for the characters from "A" to "z".
constexpr std::u16string_view greek_letters = u"ΑΒΧΔΕΦΓΗΙϑΚΛΜΝΟΠΘΡΣΤΥςΩΞΨΖ[∴]⊥_‾αβχδεφγηιϕκλμνοπθρστυϖωξψζ";

double luminance(const QColor& color) {
  const auto linear = [](double part) {
    return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

double contrast(const QColor& one, const QColor& other) {
  const double a = luminance(one) + 0.05, b = luminance(other) + 0.05;
  return std::max(a, b) / std::min(a, b);
}

Qt::CursorShape shape_of(std::int16_t mouse_pointer) {
  switch (mouse_pointer) {
    case 2:
      return Qt::CrossCursor;
    case 3:
      return Qt::IBeamCursor;
    case 5:
    case 15:
      return Qt::SizeAllCursor;
    case 6:
      return Qt::SizeBDiagCursor;
    case 7:
      return Qt::SizeVerCursor;
    case 8:
      return Qt::SizeFDiagCursor;
    case 9:
      return Qt::SizeHorCursor;
    case 10:
      return Qt::UpArrowCursor;
    case 11:
      return Qt::WaitCursor;
    case 12:
      return Qt::ForbiddenCursor;
    case 13:
      return Qt::BusyCursor;
    case 14:
      return Qt::WhatsThisCursor;
    default:
      return Qt::ArrowCursor;
  }
}

}  // namespace

int pixels_of(double twips) {
  constexpr double widest = 1 << 24;
  return static_cast<int>(round_half_even(std::clamp(twips / twips_per_pixel, -widest, widest)));
}

QColor qcolor_of(Color color) {
  return QColor(static_cast<int>(color & 0xFF), static_cast<int>(color >> 8 & 0xFF),
                static_cast<int>(color >> 16 & 0xFF));
}

Color color_of(const QColor& color) {
  const QRgb rgb = color.rgb();
  return static_cast<Color>(qRed(rgb) | qGreen(rgb) << 8 | qBlue(rgb) << 16);
}

Color system_color(const QPalette& palette, unsigned index) {
  using enum QPalette::ColorRole;
  // The face of a form is what a host's form is painted in, so 15 is its window and not its button.
  constexpr std::array roles{Mid,
                             Window,
                             Highlight,
                             Mid,
                             Window,
                             Base,
                             Dark,
                             Text,
                             Text,
                             HighlightedText,
                             Mid,
                             Mid,
                             Dark,
                             Highlight,
                             HighlightedText,
                             Window,
                             Dark,
                             PlaceholderText,
                             ButtonText,
                             WindowText,
                             Light,
                             Shadow,
                             Midlight,
                             ToolTipText,
                             ToolTipBase};
  return color_of(palette.color(index < roles.size() ? roles[index] : Window));
}

QColor readable_on(const QColor& background, const QColor& wanted) {
  constexpr double readable = 4.5;
  if (contrast(background, wanted) >= readable) return wanted;
  return contrast(background, Qt::black) >= contrast(background, Qt::white) ? Qt::black : Qt::white;
}

QString text_of(std::string_view utf8) {
  return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

std::string utf8_of(const QString& text) { return text.toStdString(); }

QString shown_text(const FontSpec& font, std::string_view utf8) {
  QString text = text_of(utf8);
  if (font.Name != "Symbol") return text;
  for (QChar& letter : text)
    if (letter >= u'A' && letter <= u'z') letter = greek_letters[letter.unicode() - u'A'];
  return text;
}

QFont font_of(const FontSpec& wanted, const QPaintDevice& device, double ratio) {
  const bool stands_in = wanted.Name == "MS Sans Serif" || wanted.Name == "Symbol";
  QFont font(stands_in ? QStringLiteral("Arial") : text_of(wanted.Name));
  font.setStyleHint(QFont::SansSerif,
                    QFont::StyleStrategy(QFont::PreferAntialias | QFont::NoSubpixelAntialias));
  constexpr double smallest = 1, largest = 1000;
  const double size =
      std::isfinite(wanted.size) ? std::clamp(wanted.size, smallest, largest) : FontSpec{}.size;
  font.setPointSizeF(size * ratio * pixels_per_inch / std::max(1, device.logicalDpiY()));
  font.setBold(wanted.bold);
  font.setUnderline(wanted.underline);
  return font;
}

QCursor cursor_of(std::int16_t mouse_pointer, const Image* icon) {
  constexpr std::int16_t custom = 99;
  const auto* picture = dynamic_cast<const Picture*>(icon);
  if (mouse_pointer == custom && picture) return QCursor(QPixmap::fromImage(picture->image()));
  return QCursor(shape_of(mouse_pointer));
}

}  // namespace mirolen::qt
