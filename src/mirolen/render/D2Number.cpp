#include "mirolen/render/ColorScale.h"
#include "mirolen/render/Painter.h"
#include "mirolen/render/StringFormat.h"

namespace mirolen {
namespace {

constexpr double margin = 6;

/// Texts at the places of the sites, on a white disc of the test diameter.
class SiteTextPainter : protected Painter {
 public:
  SiteTextPainter(wafer& wafer, PlotCanvas& canvas, PlotArea& area) : Painter(wafer, canvas, area) {}

  void set_scale() {
    resume([&] {
      const double x = divide(area_.width - margin, wafer_.test_diam);
      const double y = divide(area_.height - margin, wafer_.test_diam);
      S_ = x < y ? x : y;
    });
    cx_ = area_.left + area_.width / 2;
    cy_ = area_.top + area_.height / 2;
  }

  void paint_disc() {
    resume([&] { canvas_.ForeColor(QBColor(0)); });
    resume([&] { canvas_.FillStyle(solid_fill); });
    resume([&] { canvas_.FillColor(QBColor(15)); });
    resume([&] { canvas_.DrawStyle(solid_line); });
    resume([&] { canvas_.DrawWidth(1); });
    resume([&] { canvas_.Circle(cx_, cy_, S_ * wafer_.test_diam / 2); });
  }

 protected:
  std::int16_t count_sites() {
    std::int16_t count = 0;
    resume([&] { count = sites(); });
    return count;
  }

  void write_at(std::int32_t site, const std::string& text) {
    const double px = cx_ + S_ * position(site).x;
    const double py = cy_ - S_ * position(site).y;
    resume([&] { canvas_.CurrentX(px - canvas_.TextWidth(text) / 2); });
    resume([&] { canvas_.CurrentY(py - canvas_.TextHeight(text) / 2); });
    resume([&] { canvas_.Print(text); });
    show();
  }

  double S_ = 0, cx_ = 0, cy_ = 0;
};

/// The running numbers of the sites.
class NumberPainter : public SiteTextPainter {
 public:
  using SiteTextPainter::SiteTextPainter;

  void paint_numbers() {
    const std::int16_t count = count_sites();
    for (std::int32_t k = 1; k <= count; ++k) write_at(k, StringFormat::FormatField(k, 0, 0, false));
  }
};

/// The values of the sites in the colours of their bands.
class ValuePainter : public SiteTextPainter {
 public:
  using SiteTextPainter::SiteTextPainter;

  void set_base() {
    resume([&] {
      const double high = wafer_.maximal, low = wafer_.minimal;
      wafer_.Low = high == low ? base_of_equal_limits(low) : checked(low - (high - low) * 0.1);
    });
  }

  void paint_values() {
    const double high = wafer_.maximal;
    resume(
        [&] { band_ = checked(S_ * (1 - divide((high - wafer_.minimal) * 0.1, high - wafer_.Low)) / 10); });
    bool useExp = false;
    const std::int16_t w = StringFormat::IntegerWidth(high, true, useExp);
    const auto decimals = static_cast<std::int16_t>(useExp ? 3 : 7 - w);
    const std::int16_t count = count_sites();
    for (std::int32_t k = 1; k <= count; ++k) {
      resume([&] { canvas_.ForeColor(to_color(color_of(value(k)))); });
      write_at(k, StringFormat::FormatField(value(k), -1, decimals, useExp));
    }
  }

 private:
  double color_of(double z) const {
    if (wafer_.maximal == wafer_.minimal) return wafer_.col6;
    const double v = (z - wafer_.Low) * S_ / (wafer_.maximal - wafer_.Low);
    return band_color(wafer_, band_of(v, S_, band_));
  }

  double band_ = 0;
};

}  // namespace

void wafer::GridPosPlot(PlotCanvas& Plot, double left, double top, double width, double height,
                        std::int16_t ShowDispl) {
  PlotArea area(Plot, left, top, width, height, ShowDispl);
  area.clear();
  area.locate();
  NumberPainter painter(*this, Plot, area);
  painter.set_scale();
  painter.paint_disc();
  painter.paint_numbers();
}

void wafer::D2Number(PlotCanvas& Plot, double left, double top, double width, double height,
                     std::int16_t ShowDispl) {
  PlotArea area(Plot, left, top, width, height, ShowDispl);
  area.clear();
  ValuePainter painter(*this, Plot, area);
  painter.set_base();
  area.locate();
  painter.set_scale();
  painter.paint_disc();
  painter.paint_values();
  area.resume([&] { setMaximalMinial(maximal, minimal); });
}

}  // namespace mirolen
