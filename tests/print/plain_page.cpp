#include "plain_page.h"

#include <cmath>
#include <cstdlib>

#include "mirolen/core/RunTimeError.h"
#include "mirolen/render/Screen.h"
#include "mirolen/render/StringFormat.h"

namespace mirolen {
namespace {

constexpr Color kBlack = 0, kWhite = 0xFFFFFF, kRed = 0x0000FF, kGrey = 0x404040;
constexpr Color kPalette[] = {0x000000, 0x800000, 0x008000, 0x808000, 0x000080, 0x800080, 0x008080, 0xC0C0C0,
                              0x808080, 0xFF0000, 0x00FF00, 0xFFFF00, 0x0000FF, 0xFF00FF, 0x00FFFF, 0xFFFFFF};

double quotient(double a, double b) {
  if (b == 0) throw DivisionByZero();
  return a / b;
}

std::int32_t whole32(double number) {
  const double rounded = std::nearbyint(number);
  if (!(std::abs(rounded) < 2147483648.0)) throw OverflowError("32 bits");
  return static_cast<std::int32_t>(rounded);
}

void require_character(const std::vector<std::string>& characters, std::size_t count) {
  if (characters.size() < count) throw InvalidArgument("string function");
}

}  // namespace

std::int16_t whole(double number) {
  const double rounded = std::nearbyint(number);
  if (!(rounded >= -32768 && rounded <= 32767)) throw OverflowError("16 bits");
  return static_cast<std::int16_t>(rounded);
}

double in_range(double number) {
  if (std::isinf(number)) throw OverflowError("Double");
  return number;
}

std::vector<std::string> characters_of(const std::string& text) {
  std::vector<std::string> characters;
  for (const char byte : text) {
    const auto bits = static_cast<unsigned char>(byte);
    if (characters.empty() || bits < 0x80 || bits >= 0xC0) characters.emplace_back();
    characters.back() += byte;
  }
  return characters;
}

std::string joined(const std::vector<std::string>& characters) {
  std::string text;
  for (const std::string& character : characters) text += character;
  return text;
}

std::string first_fifteen(const std::string& text) {
  std::vector<std::string> characters = characters_of(text);
  if (characters.size() > 15) characters.resize(15);
  return joined(characters);
}

std::string lengthened(double value, std::string& format) {
  if (value == 0) return format;
  for (;;) {
    std::string text = StringFormat::format_number(value, format);
    format += "0";
    std::string read = text;
    for (char& c : read)
      if (c == ',') c = '.';
    double back = 0;
    for (const char c : read)
      if (c >= '1' && c <= '9') back = 1;
    if (back != 0) return text;
  }
}

// ---- Small steps ----

double PlainPage::twips_x() const { return printer ? p.TwipsPerPixelX() : screen().TwipsPerPixelX; }
double PlainPage::twips_y() const { return printer ? p.TwipsPerPixelY() : screen().TwipsPerPixelY; }
std::int16_t PlainPage::measured(const std::string& text) const { return whole(p.TextWidth(text)); }

void PlainPage::put(double x, double y, const std::string& text) {
  p.CurrentX(x);
  p.CurrentY(y);
  p.Print(text);
}

void PlainPage::line(double x1, double y1, double x2, double y2, Color color) {
  p.Line(6, x1, y1, x2, y2, color);
}

void PlainPage::polygon(const std::vector<std::pair<double, double>>& corners) {
  std::vector<PixelPoint> points;
  for (const auto& corner : corners) points.push_back({whole32(corner.first), whole32(corner.second)});
  p.Polygon(points);
}

// ---- Primitives ----

void PlainPage::ResetPrinterObj() {
  p.FontTransparent(true);
  FontSpec font = p.Font();
  font.Name = "Arial";
  font.size = 8;
  p.Font(font);
  p.ScaleMode(1);
  p.DrawWidth(1);
  p.DrawStyle(0);
  p.FillStyle(0);
  p.FillColor(kWhite);
  p.ForeColor(kBlack);
}

void PlainPage::DrawLeftText(std::string& text, double left, double top, double width, int color) {
  std::int16_t w = measured(text);
  while (w > width) {
    std::vector<std::string> characters = characters_of(text);
    require_character(characters, 1);
    characters.pop_back();
    text = joined(characters);
    w = measured(text);
  }
  p.DrawStyle(0);
  p.ForeColor(kPalette[color]);
  p.FontTransparent(true);
  put(left, top, text);
}

void PlainPage::DrawCenterText(std::string& text, double center, double top, double width, int color) {
  std::int16_t w = measured(text);
  while (w > width) {
    std::vector<std::string> characters = characters_of(text);
    require_character(characters, 2);
    characters.erase(characters.begin());
    characters.pop_back();
    text = joined(characters);
    w = measured(text);
  }
  const std::int16_t x = whole(center - w / 2.0);
  p.ForeColor(kPalette[color]);
  p.FontTransparent(true);
  put(x, top, text);
}

void PlainPage::DrawRightText(std::string& text, double right, double top, double width, int color) {
  std::int16_t w = measured(text);
  while (w > width) {
    std::vector<std::string> characters = characters_of(text);
    require_character(characters, 1);
    characters.erase(characters.begin());
    text = joined(characters);
    w = measured(text);
  }
  p.ForeColor(kPalette[color]);
  p.FontTransparent(true);
  put(right - w, top, text);
}

void PlainPage::DrawFrame(const std::string& caption, double left, double top, double width, double height) {
  ResetPrinterObj();
  p.ScaleMode(1);
  p.DrawWidth(2);
  if (caption != "") {
    const double tw = p.TextWidth(caption);
    const double th = p.TextHeight(caption);
    const double y1 = top + th, y2 = top + height + th;
    line(left + 100, y1, left, y1, kGrey);
    line(left, y1, left, y2, kGrey);
    line(left, y2, left + width, y2, kGrey);
    line(left + width, y2, left + width, y1, kGrey);
    line(left + width, y1, left + tw + 200, y1, kGrey);
    put(left + 150, top + th / 2, caption);
  } else {
    const double th = p.TextHeight("P");
    const double y1 = top + th, y2 = top + height + th;
    line(left, y1, left, y2, kGrey);
    line(left, y2, left + width, y2, kGrey);
    line(left + width, y2, left + width, y1, kGrey);
    line(left + width, y1, left, y1, kGrey);
  }
  ResetPrinterObj();
}

void PlainPage::DrawSigmaChar(double left, double top, int color) {
  const FontSpec kept = p.Font();
  FontSpec symbol;
  symbol.Name = "Symbol";
  symbol.size = 14;
  p.Font(symbol);
  p.DrawStyle(0);
  p.ForeColor(kPalette[color]);
  p.CurrentX(left);
  p.CurrentY(top - p.TextHeight("s") / 4);
  p.Print("s");
  p.Font(kept);
}

std::string PlainPage::FormatLbl(double value) const {
  const double a = std::abs(value);
  if (value == 0) return "0.0";
  std::string format = "0.0###";
  if (a < 1) format = "0.0######";
  if (a > 10000) format = "0.0#";
  if (a > 100000 || a < 1e-7) format = "0.###E+#0";
  return StringFormat::format_number(value, format);
}

std::string PlainPage::FormatNonZero(double value, std::string format) const {
  return lengthened(value, format);
}

// ---- Report blocks ----

void PlainPage::write_column(const std::vector<std::pair<double, std::string>>& rows, double x, double top) {
  for (const auto& row : rows) {
    std::string text = row.second;
    DrawLeftText(text, x, top + row.first, 975, 0);
  }
}

void PlainPage::DrawWaferRemarks(const wafer& w, double left, double top) {
  DrawFrame("Wafer Remarks ", left, top, 2775, 1875);
  write_column({{360, "Operator ID:"},
                {600, "FAB Name:"},
                {840, "Equip Info:"},
                {1080, "Wafer ID:"},
                {1320, "Lot:"},
                {1560, "Meas. Equip:"},
                {1800, "Special:"}},
               left + 120, top);
  write_column({{360, first_fifteen(w.Operator)},
                {600, first_fifteen(w.FAB)},
                {840, first_fifteen(w.equip)},
                {1080, first_fifteen(w.wafer)},
                {1320, first_fifteen(w.lot)},
                {1560, first_fifteen(w.meq)},
                {1800, first_fifteen(w.Special)}},
               left + 1080, top);
}

void PlainPage::DrawWaferSize(const wafer& w, double left, double top) {
  DrawFrame("Size ", left, top, 2775, 1155);
  write_column({{360, "Wafer Diam:"}, {600, "Test Diam:"}, {840, "No. Sites:"}, {1080, "Style:"}}, left + 120,
               top);
  write_column({{360, FormatNonZero(w.WafDiam, "00.00") + " mm"},
                {600, FormatNonZero(w.test_diam, "00.00") + " mm"},
                {840, std::to_string(static_cast<int>(w.GetNop()))},
                {1080, w.flat_ratio == 1 ? "Notch" : "Flat"}},
               left + 1080, top);
}

void PlainPage::DrawWaferStatistics(const wafer& w, double left, double top) {
  DrawFrame("Statistics ", left, top, 2775, 2115);
  write_column({{360, "Mean:"},
                {600, "Maximum:"},
                {840, "Minimum:"},
                {1080, "Std. Dev:"},
                {1560, "Range:"},
                {1800, "Hi/Lo Var:"},
                {2040, "Unit:"}},
               left + 120, top);
  const auto write_value = [&](double row, const std::string& value) {
    write_column({{row, value}}, left + 1080, top);
  };
  write_value(360, FormatLbl(w.mean));
  write_value(600, FormatLbl(w.maxi));
  write_value(840, FormatLbl(w.mini));
  write_value(1080, FormatLbl(w.StdDev));
  if (w.mean > 0)
    write_value(1320, FormatNonZero(std::abs(in_range(w.StdDev / w.mean)) * 100, "0.00") + " %");
  write_value(1560, FormatLbl(in_range(w.maxi - w.mini)));
  const double sum = in_range(w.mini + w.maxi);
  const double v = sum == 0 ? 0 : std::abs(in_range(w.maxi - w.mini) / sum) * 100;
  write_value(1800, FormatNonZero(v, "0.00") + " %");
  write_value(2040, first_fifteen(w.Meas_unit));
}

void PlainPage::DrawColoredLegend(const wafer& w, double left, double top, bool framed) {
  double x = left, y = top;
  if (framed) {
    DrawFrame("Legend ", left, top, 2775, 2895);
    x = left + 120;
    y = top + 500;
  }
  DrawColoredScale(w, x, y);
}

void PlainPage::DrawSigmaLegend(const wafer& w, double& left, double& top, double sigma, bool framed) {
  if (framed) {
    DrawFrame("Legend ", left, top, 2775, 2895);
    double x = left + 210, y = top + 500;
    DrawSigmaScale(x, y, sigma, w);
  } else {
    DrawSigmaScale(left, top, sigma, w);
  }
}

void PlainPage::DrawSigmaLegend_No_Frame(const wafer& w, double& left, double& top, double sigma) {
  DrawSigmaScale(left, top, sigma, w);
}

PlainPage::Scale PlainPage::begin_scale(double& left, double& top) {
  ResetPrinterObj();
  const double X = twips_x();
  const double Y = twips_y();
  left = quotient(left, X);
  top = quotient(top, Y);
  p.ScaleMode(3);
  p.FillStyle(0);
  return {X, Y, 240 / X, 255 / Y};
}

void PlainPage::scale_box(const Scale& s, double left, double top, int i, double color) {
  p.FillColor(static_cast<Color>(static_cast<std::int64_t>(std::nearbyint(color))));
  polygon({{left, top + i * s.r},
           {left + s.b, top + i * s.r},
           {left + s.b, top + (i + 1) * s.r},
           {left, top + (i + 1) * s.r}});
}

void PlainPage::DrawColoredScale(const wafer& w, double& left, double& top) {
  const Scale scale = begin_scale(left, top);
  const bool limited = w.maximal != w.maxi || w.minimal != w.mini;
  double lo = w.minimal, hi = w.maximal;
  if (limited) {
    lo = w.minimal - (w.maximal - w.minimal) / 8;
    hi = w.maximal + (w.maximal - w.minimal) / 8;
  }
  const std::int16_t t = whole(450 / scale.X);
  const double width = 2000 / scale.X, s = (hi - lo) / 10;
  bool exponent = false;
  std::int16_t digits = lo < 0 ? 5 : 6;
  const std::int16_t other = lo < 0 ? 9 : 10;
  std::int16_t decimals = StringFormat::DecimalsFor(hi, digits, exponent);
  StringFormat::DecimalsFor(hi, other, exponent);
  digits = 6;
  if (exponent) {
    decimals = 2;
    digits = 9;
  }
  const double colors[] = {w.col1, w.col2, w.col3, w.col4, w.col5, w.col6, w.col7, w.col8, w.col9, w.col10};
  for (int i = limited ? 1 : 0; i <= (limited ? 9 : 10); ++i) {
    const std::string uncut = StringFormat::FormatField(hi - i * s, 0, decimals, exponent);
    digits = std::max(digits, static_cast<std::int16_t>(uncut.size()));
  }
  for (int i = 0; i < 10; ++i) {
    const std::string a = StringFormat::FormatField(hi - i * s, digits, decimals, exponent);
    const std::string c = StringFormat::FormatField(hi - (i + 1) * s, digits, decimals, exponent);
    std::string text = c + " - " + a;
    if (limited && i == 0) text = " > " + c;
    if (limited && i == 9) text = " < " + a;
    DrawLeftText(text, left + t, top + i * scale.r + (scale.r + scale.r) / 10, width, 0);
    scale_box(scale, left, top, i, colors[i]);
  }
  ResetPrinterObj();
}

void PlainPage::DrawSigmaScale(double& left, double& top, double sigma, const wafer& w) {
  const Scale scale = begin_scale(left, top);
  const std::string q = FormatNonZero(sigma, "0.0");
  const double t = 400 / scale.X, width = 2000 / scale.X;
  const std::string starts[] = {">   ", "", "+-  ", "", "< - "};
  const double colors[] = {w.ColS1, 0, w.ColS2, 0, w.ColS3};
  for (int i = 0; i <= 4; i += 2) {
    std::string text = starts[i] + q;
    DrawLeftText(text, left + t, top + i * scale.r + (scale.r + scale.r) / 10, width, 0);
    DrawSigmaChar(left + t + p.TextWidth(text) + t / 8, top + i * scale.r, 0);
    scale_box(scale, left, top, i, colors[i]);
  }
  ResetPrinterObj();
}

// ---- The orientation mark ----

void PlainPage::white_polygon(const std::vector<std::pair<double, double>>& corners) {
  p.ForeColor(kWhite);
  p.FillColor(kWhite);
  p.FillStyle(0);
  polygon(corners);
}

void PlainPage::DrawFlatNotchSymbol(double& x, double& y, double style, double& r, double rot, double incl) {
  ResetPrinterObj();
  p.ScaleMode(3);
  p.DrawWidth(printer ? 2 : 1);
  x = quotient(x, twips_x());
  y = quotient(y, twips_y());
  r = quotient(r, twips_x());
  const double Pi = 4 * std::atan(1.0);
  const auto s = [&](double a) { return std::sin(a * Pi / 180); };
  const auto c = [&](double a) { return std::cos(a * Pi / 180); };
  p.ForeColor(kBlack);
  p.FillColor(kWhite);
  p.Circle(x, y, r, {}, {}, {}, s(incl));
  const double ry = s(incl) * r;
  if (style == 1) {
    const double q = r / 3, R = q + r, Ry = R * s(incl);
    const double Ax = x + R * s(rot + 10), Ay = y + Ry * c(rot + 10);
    const double Bx = x + R * s(rot - 10), By = y + Ry * c(rot - 10);
    const double Tx = x + 0.8 * s(rot) * r, Ty = y + 0.8 * c(rot) * ry;
    white_polygon({{Ax, Ay}, {Tx, Ty}, {Bx, By}, {Bx, By}, {Ax, By}});
    line(x + r * s(rot + 10), y + ry * c(rot + 10), Tx, Ty, kRed);
    line(Tx, Ty, x + r * s(rot - 10), y + ry * c(rot - 10), kRed);
  } else {
    const double q = r / 4, R = q + r, Ry = R * s(incl);
    const double Ax = x + r * s(rot + 35), Ay = y + ry * c(rot + 35);
    const double Bx = x + r * s(rot - 35), By = y + ry * c(rot - 35);
    const double Cx = x + R * s(rot + 35), Cy = y + Ry * c(rot + 35);
    const double Dx = x + R * s(rot - 35), Dy = y + Ry * c(rot - 35);
    white_polygon({{Ax, Ay}, {Bx, By}, {Dx, Dy}, {Cx, Cy}});
    line(Ax, Ay, Bx, By, kRed);
  }
  ResetPrinterObj();
}

void PlainPage::DrawFlatNotchBox(double left, double top, double style, double rot, double incl) {
  DrawFrame(style == 1 ? "Notch" : "Flat", left, top, 975, 1095);
  double x = left + 488, y = top + 800, r = 350;
  DrawFlatNotchSymbol(x, y, style, r, rot, incl);
}

}  // namespace mirolen
