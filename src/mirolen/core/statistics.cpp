#include <cmath>

#include "mirolen/core/wafer.h"

namespace mirolen {

void wafer::MaxMin() {
  maxi = value_of(1);
  mini = maxi;
  HiLo = 0;
  Low = -0.001;
  range = mean = StdDev = 0;
  if (Nop >= sites_worth_an_index) BuildSiteCells();

  double sum = 0;
  for (const double z : GridVal) {
    sum = checked(sum + z);
    if (z > maxi) maxi = z;
    if (z < mini) mini = z;
  }
  maximal = maxi;
  minimal = mini;
  Summe_Value = sum;
  mean = divide(sum, Nop);
  set_scale(maxi, mini);

  if (Nop < 2) return;
  StdDev = square_root(Globlal_Value_Sub_Mean(mean) / (Nop - 1));
}

void wafer::setMaximalMinial(double maxim, double minim) {
  set_scale(maxim, minim);  // fails before it changes anything, or not at all
  maximal = maxim;
  minimal = minim;
}

void wafer::set_scale(double high, double low) {
  const double spread = checked(high - low), sum = checked(high + low);
  const double percent = sum == 0 ? 0 : checked(std::abs(spread / sum) * 100);
  const double base = high == low ? base_of_equal_limits(low) : low;
  range = spread;  // contract 28
  HiLo = percent;
  Low = base;
}

double wafer::base_of_equal_limits(double limit) {  // contract 56
  return checked((limit < 0 ? limit * 1.1 : limit * 0.9) - 0.001);
}

double wafer::Globlal_Value_Sub_Mean(double glmean) const {
  double sum = 0;
  for (const double z : GridVal) sum = checked(sum + (z - glmean) * (z - glmean));
  return sum;
}

void wafer::Points_OutCL(double LCL, double UCL) {
  NptLCL = 0;
  NptUCL = 0;
  for (const double z : GridVal) {
    if (z > UCL) NptUCL += 1;
    if (z < LCL) NptLCL += 1;
  }
}

// contract 57
double wafer::Gauss(double hist_x) const { return StdNormal(divide(checked(hist_x - mean), StdDev)); }

double wafer::StdNormal(double u) { return 1 / std::sqrt(2 * Pi) * std::exp(-0.5 * checked(u * u)); }

void wafer::BuildSiteCells() {
  const double R = WafDiam / 2;
  const std::int16_t n = to_int16(Nop);
  quick_ = false;
  SiteCells.clear();
  const double GridCell = n >= 4 ? square_root(checked(R * R * Pi * 4) / n) : 2 * R;
  SiteCells.build(GridCell, to_int16(divide(R, GridCell)), GridPos);
  Quick.build(SiteCells, GridPos, GridVal);
  quick_ = true;
}

}  // namespace mirolen
