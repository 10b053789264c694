#pragma once

#include <string>

#include "mirolen/core/wafer.h"
#include "mirolen/print/report_rows.h"
#include "mirolen/widgets/PictureBox.h"

namespace mirolen {

/// Appends a wafer's data to a picture that holds its plot: makes the picture taller and writes a block of
/// statistics, a block of sizes and a line at the foot below the plot.
///
/// Lengths are whole twips of 16 bits: a picture that would become taller than 32,767 is an OverflowError.
/// Both objects stay the caller's and live as long as they are set here; without them `DrawWaferData` throws
/// InvalidArgument.
class viewbitmap {  // contract 14
 public:
  /// The picture to extend.
  void BitmapObj(PictureBox* picture) { picture_ = picture; }
  /// The data.
  void WaferObj(const wafer* data) { wafer_ = data; }

  /// Extends the picture and writes. @throws RunTimeError; what is drawn by then stays.
  void DrawWaferData();
  /// The drawing state of the picture: black on white, solid, one pixel wide, twips. The font stays.
  void Resetbitobj();

 protected:
  // For classes that write more into the picture than `DrawWaferData` does.
  void DrawRemarksBlock(std::int16_t left, std::int16_t top);
  void DrawSizeBlock(std::int16_t left, std::int16_t top);
  void DrawStatisticsBlock(std::int16_t left, std::int16_t top);
  /// As `PrintWafer::FormatNonZero`, but the format comes back lengthened.
  static std::string ViewFormatNonZero(double value, std::string& format);
  /// As `PrintWafer::DrawLeftText`.
  void ViewLeftText(std::string& text, std::int16_t left, std::int16_t top, std::int16_t width,
                    std::int16_t color);
  /// As `PrintWafer::DrawFrame` with a caption, its lines three pixels wide.
  void ViewFrame(const std::string& caption, std::int16_t left, std::int16_t top, std::int16_t width,
                 std::int16_t height);

 private:
  PictureBox& picture() const;
  const wafer& data() const;
  void write_block(const std::string& title, std::int16_t left, std::int16_t top,
                   const print::ReportRows& rows);
  void write_footer(double height, std::int16_t width);

  PictureBox* picture_ = nullptr;
  const wafer* wafer_ = nullptr;
};

}  // namespace mirolen
