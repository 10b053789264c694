#include "plain_picture.h"

#include <cmath>

#include "mirolen/core/palette.h"
#include "mirolen/core/version.h"
#include "mirolen/render/StringFormat.h"
#include "mirolen/widgets/Headless.h"
#include "plain_page.h"

namespace mirolen {
namespace {

std::string number(double value) {
  std::string format = "0.00";
  return lengthened(value, format);
}

}  // namespace

void PlainPicture::Resetbitobj() {
  p.FontTransparent(true);
  p.ScaleMode(1);
  p.DrawWidth(1);
  p.DrawStyle(0);
  p.FillStyle(0);
  p.FillColor(QBColor(15));
  p.ForeColor(QBColor(0));
}

void PlainPicture::grow_to(double height) {
  const Recording before = recording_of(p);
  p.Height = height;
  Recording drawn;
  for (const recorded::Call& call : before)
    if (!std::holds_alternative<recorded::Clear>(call)) drawn.push_back(call);
  replay(drawn, *p.device());
}

void PlainPicture::DrawWaferData() {
  Resetbitobj();
  const int H = whole(p.Height), W = whole(p.Width);
  double new_height;
  if (W < 4900) {
    new_height = p.Height + 4400;
    grow_to(new_height);
    DrawStatisticsBlock(100, H);
    DrawSizeBlock(100, whole(H + 2400));
  } else {
    new_height = p.Height + 3000;
    grow_to(new_height);
    DrawStatisticsBlock(100, H);
    DrawSizeBlock(whole((W - 200) * 0.5), H);
  }
  FontSpec font = p.Font();
  font.bold = !font.bold;
  font.size = 12;
  p.Font(font);
  std::string text = "SONVERA View.OCX ";
  text += std::to_string(version().major) + "." + std::to_string(version().minor);
  ViewLeftText(text, 100, whole(new_height - 400), W - 200, 0);
  font.bold = !font.bold;
  font.size = 10;
  p.Font(font);
}

void PlainPicture::ViewLeftText(std::string& text, int left, int top, int width, int color) {
  while (whole(p.TextWidth(text)) > width) {
    std::vector<std::string> characters = characters_of(text);
    if (characters.empty()) throw InvalidArgument("string function");
    characters.pop_back();
    text = joined(characters);
  }
  p.DrawStyle(0);
  p.ForeColor(QBColor(color));
  p.FontTransparent(true);
  p.CurrentX(whole(left));
  p.CurrentY(whole(top));
  p.Print(text);
}

void PlainPicture::write_title(const std::string& title, int left, int top) {
  FontSpec font = p.Font();
  font.underline = !font.underline;
  p.Font(font);
  std::string text = title;
  ViewLeftText(text, left, top, 2775, 0);
  font.underline = !font.underline;
  p.Font(font);
}

void PlainPicture::write_column(const std::vector<std::pair<int, std::string>>& rows, int left, int top) {
  for (const auto& row : rows) {
    std::string text = row.second;
    ViewLeftText(text, left, top + row.first, 1200, 0);
  }
}

void PlainPicture::DrawStatisticsBlock(int left, int top) {
  write_title("Wafer Statistics", left, top);
  write_column({{360, "Mean:"},
                {600, "Maximum:"},
                {840, "Minimum:"},
                {1080, "Std. Dev:"},
                {1560, "Range:"},
                {1800, "Hi/Lo Var:"},
                {2040, "Unit:"}},
               left + 120, top);
  const auto write_value = [&](int row, const std::string& value) {
    write_column({{row, value}}, left + 1300, top);
  };
  write_value(360, number(w.mean));
  write_value(600, number(w.maxi));
  write_value(840, number(w.mini));
  write_value(1080, number(w.StdDev));
  if (w.mean > 0) write_value(1320, number(std::abs(in_range(w.StdDev / w.mean)) * 100) + " %");
  write_value(1560, number(in_range(w.maxi - w.mini)));
  const double sum = in_range(w.mini + w.maxi);
  write_value(1800, number(sum == 0 ? 0 : std::abs(in_range(w.maxi - w.mini) / sum) * 100) + " %");
  write_value(2040, first_fifteen(w.Meas_unit));
}

void PlainPicture::DrawSizeBlock(int left, int top) {
  write_title("Wafer Size", left, top);
  write_column({{360, "Wafer Diam:"}, {600, "Test Diam:"}, {840, "No. Sites:"}, {1080, "Style:"}}, left + 120,
               top);
  write_column({{360, StringFormat::format_number(w.WafDiam, "00.00") + " mm"},
                {600, StringFormat::format_number(w.test_diam, "00.00") + " mm"},
                {840, std::to_string(static_cast<int>(w.GetNop()))},
                {1080, w.flat_ratio == 1 ? "Notch" : "Flat"}},
               left + 1300, top);
}

void PlainPicture::DrawRemarksBlock(int left, int top) {
  write_title("Wafer Remarks ", left, top);
  write_column({{360, "Operator ID:"},
                {600, "FAB Name:"},
                {840, "Equip Info:"},
                {1080, "Wafer ID:"},
                {1320, "Lot:"},
                {1560, "Meas. Equip:"},
                {1800, "Special:"},
                {2040, "Filename:"}},
               left + 120, top);
  write_column({{360, first_fifteen(w.Operator)},
                {600, first_fifteen(w.FAB)},
                {840, first_fifteen(w.equip)},
                {1080, first_fifteen(w.wafer)},
                {1320, first_fifteen(w.lot)},
                {1560, first_fifteen(w.meq)},
                {1800, first_fifteen(w.Special)},
                {2040, first_fifteen(w.filename)}},
               left + 1300, top);
}

void PlainPicture::ViewFrame(const std::string& caption, int left, int top, int width, int height) {
  Resetbitobj();
  p.DrawWidth(3);
  const double tw = p.TextWidth(caption), th = p.TextHeight(caption);
  const int y1 = whole(top + th), y2 = whole(top + height + th), right = whole(left + width);
  const int gap_from = whole(left + 100), gap_to = whole(left + tw + 200);
  const Color grey = 0x404040;
  p.Line(6, gap_from, y1, left, y1, grey);
  p.Line(6, left, y1, left, y2, grey);
  p.Line(6, left, y2, right, y2, grey);
  p.Line(6, right, y2, right, y1, grey);
  p.Line(6, right, y1, gap_to, y1, grey);
  p.CurrentX(whole(left + 150));
  p.CurrentY(whole(top + th / 2));
  p.Print(caption);
  Resetbitobj();
}

}  // namespace mirolen
