#pragma once

#include "mirolen/controls/MapFrame.h"

namespace mirolen {

/// What the two sigma plots share: their range, their three colours, and a legend of three rows with sigma
/// signs. Control is MapFrame or one of its kin.
template <class Control>
class SigmaLegend : public Control {
 public:
  double SigmaRange() const { return sigma_range_; }
  /// Half of the range round the mean, in standard deviations.
  void SigmaRange(double v);

  int intervals() const override { return 3; }

  std::int16_t PrintLegend(double& left, double& top, bool DrawFrame = false) override;
  /// Prints the legend without a frame; left and top come back in pixels. @return as `PrintLegend`.
  std::int16_t PrintLegend_No_Frame(double& left, double& top);

  // The signs behind the texts of rows 1, 3 and 5.
  ControlArray<Label, 0, 3> sigma{&this->legende};
  Frame frInt{&this->frleg};
  Label Label8{&frInt, "Range :"};
  Label lbldist{&frInt};

 protected:
  SigmaLegend(Toolkit& toolkit, Container& container);

  static constexpr double default_range = 0.5;

  void fill_in_settings() override;
  void fill_legend() override;
  void color_legend(Color v) override { frInt.BackColor = v; }
  double& color_field(int interval) override;
  /// Draws each time and, as no resize handler runs, then brings the legend up to date itself.
  void show_plot() override;

 private:
  double sigma_range_ = 0;
};

}  // namespace mirolen
