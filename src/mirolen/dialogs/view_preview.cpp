#include "mirolen/dialogs/view_preview.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "mirolen/core/palette.h"

namespace mirolen {
namespace {

constexpr int cells = 5;

/// The board as it is seen: by places on it, in cells from its top left corner, rows growing downward.
class Board {
 public:
  Board(const PlotCanvas& box, double rot, double incl)
      : cos_(std::cos(rot * radians_)), sin_(std::sin(rot * radians_)), flat_(std::sin(incl * radians_)) {
    const double width = box.ScaleWidth() - 2, height = box.ScaleHeight() - 2;
    centre_ = {width / 2, height / 2};
    const double extent = (std::abs(cos_) + std::abs(sin_)) * cells / 2;  // from the centre to the edge
    cell_ = std::min(width, height) / 2 / extent;
  }

  PixelPoint operator()(int column, int row) const {
    const double x = column - cells / 2.0, y = cells / 2.0 - row;
    return {to_int32(centre_.x + cell_ * (x * cos_ - y * sin_)),
            to_int32(centre_.y - cell_ * (x * sin_ + y * cos_) * flat_)};
  }

 private:
  const double radians_ = 4 * std::atan(1.0) / 180;
  double cos_, sin_, flat_;
  double cell_ = 0;
  SurfacePoint centre_;
};

}  // namespace

void DrawViewPreview(PlotCanvas& box, double rot, double incl) {
  box.ForeColor(QBColor(0));
  box.FillColor(QBColor(15));
  box.FillStyle(solid_fill);
  box.DrawStyle(solid_line);
  box.DrawWidth(1);
  box.Cls();
  const Board board(box, rot, incl);
  for (int row = 0; row < cells; ++row)
    for (int column = 0; column < cells; ++column) {
      const bool corner = row == cells - 1 && column == cells - 1;
      box.FillColor(QBColor(corner ? 4 : 15));
      box.Polygon(std::array{board(column, row), board(column + 1, row), board(column + 1, row + 1),
                             board(column, row + 1)});
    }
  box.Refresh();
}

}  // namespace mirolen
