#include "mirolen/controls/SigmaLegend.h"

#include "mirolen/controls/CellMapFrame.h"
#include "mirolen/controls/SurfaceFrame.h"
#include "mirolen/render/StringFormat.h"

namespace mirolen {

template <class Control>
SigmaLegend<Control>::SigmaLegend(Toolkit& toolkit, Container& container) : Control(toolkit, container) {
  for (int sign = 0; sign < 3; ++sign) {
    Label& label = sigma(sign);
    label.Caption = "s";
    label.Font = FontSpec{"Symbol", 10};
    label.Height = 255;
    label.AutoSize = true;
  }
  frInt.Border = false;
  frInt.Move(120, 2010, 1695, 300);
  Label8.Move(0, 15, 600, 225);
  lbldist.Move(660, 15, 1000, 225);
}

template <class Control>
void SigmaLegend<Control>::SigmaRange(double v) {
  if (!is_finite(v)) return;
  sigma_range_ = v;
  this->look_changed("SigmaRange");
}

template <class Control>
void SigmaLegend<Control>::fill_in_settings() {
  Control::fill_in_settings();
  if (sigma_range_ == 0) SigmaRange(default_range);
}

template <class Control>
void SigmaLegend<Control>::fill_legend() {
  this->wafobj.scale_sigma(this->scalCol.template as<ColorBox>(), this->ScaleValue.template as<ValueLabel>(),
                           sigma_range_);
  for (int sign = 0; sign < 3; ++sign) {
    const Label& text = this->ScaleValue(2 * sign + 1);
    sigma(sign).Move(text.Left + text.Width + 60, text.Top - 45);
  }
  lbldist.Caption = StringFormat::plain_text(sigma_range_);
}

template <class Control>
void SigmaLegend<Control>::show_plot() {
  this->quietly([&] {
    this->RedrawPlot();
    fill_legend();
  });
}

template <class Control>
std::int16_t SigmaLegend<Control>::PrintLegend(double& left, double& top, bool DrawFrame) {
  return this->print_block({left, top}, [&](PrintWafer& page) {
    page.DrawSigmaLegend(this->wafobj, left, top, sigma_range_, DrawFrame);
  });
}

template <class Control>
std::int16_t SigmaLegend<Control>::PrintLegend_No_Frame(double& left, double& top) {
  return this->print_block({left, top}, [&](PrintWafer& page) {
    page.DrawSigmaLegend_No_Frame(this->wafobj, left, top, sigma_range_);
  });
}

template <class Control>
double& SigmaLegend<Control>::color_field(int interval) {
  wafer& data = this->wafobj;
  switch (interval) {
    case 0:
      return data.ColS1;
    case 1:
      return data.ColS2;
    case 2:
      return data.ColS3;
    default:
      throw SubscriptOutOfRange();
  }
}

template class SigmaLegend<CellMapFrame>;
template class SigmaLegend<SurfaceFrame>;

}  // namespace mirolen
