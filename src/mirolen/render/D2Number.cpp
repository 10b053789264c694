#include "mirolen/render/ColorScale.h"
#include "mirolen/render/PlanPainter.h"
#include "mirolen/render/StringFormat.h"

namespace mirolen {
namespace {

/// Texts at the places of the sites, on a white disc of the test diameter.
class SiteTextPainter : protected PlanPainter {
 public:
  SiteTextPainter(wafer& wafer, PlotCanvas& canvas, PlotArea& area) : PlanPainter(wafer, canvas, area) {}

  void set_scale() { fit(wafer_.test_diam); }

  void paint_disc() {
    resume([&] { canvas_.ForeColor(QBColor(0)); });
    prepare_disc();
    resume([&] { canvas_.Circle(cx_, cy_, S_ * wafer_.test_diam / 2); });
  }

 protected:
  void write_at(std::int32_t site, const std::string& text) {
    const SurfacePoint at = on_canvas(position(site));
    resume([&] { canvas_.CurrentX(at.x - canvas_.TextWidth(text) / 2); });
    resume([&] { canvas_.CurrentY(at.y - canvas_.TextHeight(text) / 2); });
    resume([&] { canvas_.Print(text); });
    show();
  }
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
    resume([&] { wafer_.Low = scale_base(wafer_.maximal, wafer_.minimal); });
  }

  void paint_values() {
    resume([&] { band_ = band_height(wafer_.maximal, wafer_.minimal); });  // contract 72
    bool useExp = false;
    const std::int16_t w = StringFormat::IntegerWidth(wafer_.maximal, true, useExp);
    const auto decimals = static_cast<std::int16_t>(useExp ? 3 : 7 - w);
    const std::int16_t count = count_sites();
    for (std::int32_t k = 1; k <= count; ++k) {
      resume([&] { canvas_.ForeColor(to_color(color_of(value(k)))); });
      write_at(k, StringFormat::FormatField(value(k), -1, decimals, useExp));
    }
  }

 private:
  double color_of(double z) const {
    if (wafer_.maximal == wafer_.minimal) return wafer_.col6;  // contract 73
    return band_color(wafer_, band_of(norm(z, wafer_.maximal), S_, band_));
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
