#pragma once

#include <string>
#include <utility>
#include <vector>

#include "mirolen/core/wafer.h"
#include "mirolen/widgets/PictureBox.h"

namespace mirolen {

/// The operations of `viewbitmap` in the plainest words, on a picture of their own.
class PlainPicture {
 public:
  PlainPicture(PictureBox& picture, const wafer& data) : p(picture), w(data) {}

  void DrawWaferData();
  void Resetbitobj();
  void DrawRemarksBlock(int left, int top);
  void DrawSizeBlock(int left, int top);
  void DrawStatisticsBlock(int left, int top);
  void ViewLeftText(std::string& text, int left, int top, int width, int color);
  void ViewFrame(const std::string& caption, int left, int top, int width, int height);

 private:
  void grow_to(double height);
  void write_title(const std::string& title, int left, int top);
  void write_column(const std::vector<std::pair<int, std::string>>& rows, int left, int top);

  PictureBox& p;
  const wafer& w;
};

}  // namespace mirolen
