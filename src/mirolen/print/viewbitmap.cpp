#include "mirolen/print/viewbitmap.h"

#include "mirolen/core/palette.h"
#include "mirolen/core/translation.h"
#include "mirolen/core/version.h"
#include "mirolen/print/frame.h"
#include "mirolen/print/text_writers.h"
#include "mirolen/render/StringFormat.h"

namespace mirolen {
namespace {

constexpr std::int16_t room_for_two_blocks = 4900;

/// Makes the picture taller; what it shows stays.
void make_taller(PictureBox& picture, double height) {
  const std::shared_ptr<const Image> shown = picture.Image();
  picture.Height = height;
  picture.device()->restore(*shown);
}

void flip_bold(PictureBox& picture, double size) {
  FontSpec font = picture.Font();
  font.bold = !font.bold;
  font.size = size;
  picture.Font(font);
}

void flip_underline(PictureBox& picture) {
  FontSpec font = picture.Font();
  font.underline = !font.underline;
  picture.Font(font);
}

}  // namespace

PictureBox& viewbitmap::picture() const {
  if (!picture_) throw InvalidArgument(tr("there is no picture to extend"));
  return *picture_;
}

const wafer& viewbitmap::data() const {
  if (!wafer_) throw InvalidArgument(tr("there is no wafer to write of"));
  return *wafer_;
}

void viewbitmap::Resetbitobj() {
  picture().FontTransparent(true);
  picture().ScaleMode(twips);
  picture().DrawWidth(1);
  picture().DrawStyle(solid_line);
  picture().FillStyle(solid_fill);
  picture().FillColor(QBColor(15));
  picture().ForeColor(QBColor(0));
}

void viewbitmap::DrawWaferData() {
  Resetbitobj();
  const std::int16_t H = to_int16(picture().Height), W = to_int16(picture().Width);
  double height;
  if (W < room_for_two_blocks) {
    height = picture().Height + 4400;
    make_taller(picture(), height);
    DrawStatisticsBlock(100, H);
    DrawSizeBlock(100, to_int16(H + 2400));
  } else {
    height = picture().Height + 3000;
    make_taller(picture(), height);
    DrawStatisticsBlock(100, H);
    DrawSizeBlock(to_int16((W - 200) * 0.5), H);
  }
  write_footer(height, W);
}

void viewbitmap::write_footer(double height, std::int16_t width) {
  flip_bold(picture(), 12);
  std::string text =  // contract 110
      "SONVERA View.OCX " + std::to_string(version().major) + "." + std::to_string(version().minor);
  ViewLeftText(text, 100, to_int16(height - 400), to_int16(width - 200), 0);
  flip_bold(picture(), 10);  // contract 109
}

void viewbitmap::write_block(const std::string& title, std::int16_t left, std::int16_t top,
                             const print::ReportRows& rows) {
  std::string text = title;
  flip_underline(picture());
  ViewLeftText(text, left, top, 2775, 0);
  flip_underline(picture());
  print::write_rows(rows, left + 120, left + 1300, top, [this](std::string& row, double x, double y) {
    ViewLeftText(row, to_int16(x), to_int16(y), 1200, 0);
  });
}

void viewbitmap::DrawStatisticsBlock(std::int16_t left, std::int16_t top) {
  const auto number = [](double value) {
    std::string format = "0.00";
    return ViewFormatNonZero(value, format);
  };
  write_block(tr("Wafer Statistics"), left, top, print::statistics_rows(data(), number));
}

void viewbitmap::DrawSizeBlock(std::int16_t left, std::int16_t top) {
  const auto diameter = [](double value) { return StringFormat::format_number(value, "00.00"); };
  write_block(tr("Wafer Size"), left, top, print::size_rows(data(), diameter));
}

void viewbitmap::DrawRemarksBlock(std::int16_t left, std::int16_t top) {
  print::ReportRows rows = print::remarks_rows(data());
  rows.push_back({2040, tr("Filename:"), [&wafer = data()] { return print::first_15(wafer.filename); }});
  write_block(tr("Wafer Remarks "), left, top, rows);
}

std::string viewbitmap::ViewFormatNonZero(double value, std::string& format) {
  return print::format_non_zero(value, format);
}

void viewbitmap::ViewLeftText(std::string& text, std::int16_t left, std::int16_t top, std::int16_t width,
                              std::int16_t color) {
  print::write_left(picture(), text, left, top, width, color);
}

void viewbitmap::ViewFrame(const std::string& caption, std::int16_t left, std::int16_t top,
                           std::int16_t width, std::int16_t height) {
  Resetbitobj();
  picture().ScaleMode(twips);
  picture().DrawWidth(3);
  const auto whole = [](double place) -> double { return to_int16(place); };
  print::draw_captioned_frame(picture(), caption, left, top, width, height, whole);
  Resetbitobj();
}

}  // namespace mirolen
