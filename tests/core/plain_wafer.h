#pragma once

#include <cstdint>
#include <functional>
#include <vector>

#include "mirolen/core/Array.h"
#include "support/site_support.h"

namespace mirolen {

/// What a run-time error is here.
struct PlainFailure {};

double half_even(double value);

/// A wafer's core in the plainest words, to measure the real one against. It shares no code with it: the
/// index is a table of lists, nothing is cached, and every step is taken.
class PlainWafer {
 public:
  double WafDiam = 0, WaferOrigRad = 0, test_diam = 0;
  double mean = 0, StdDev = 0, maxi = 0, mini = 0, maximal = 0, minimal = 0;
  double HiLo = 0, Low = 0, range = 0, Summe_Value = 0;
  bool FW_NUll = false, FW_Negativ = false;

  double GetNop() const { return Nop; }
  const SiteList& sites() const { return sites_; }
  /// True where an interpolation has a defined result: with an index, and no site so far away that its
  /// distance leaves the numbers.
  bool interpolates() const;

  void reset();
  void SetNop(double number);
  void SetGridValue(const Site& site);
  void SetGridValueD(int number, const Site& site);
  void OverwriteGridValue(int number, const Site& site);

  void MaxMin();
  void setMaximalMinial(double maxim, double minim);

  double Interpolation(double Xa, double Ya) const;
  double Interpolation_Einfach(double Xa, double Ya) const;

  int LoadSiteArrays(bool keep_limits, const Array& x, const Array& y, const Array& z);
  /// bytes is null for a file that is not there.
  int LoadSiteFile(bool keep_limits, const std::string* bytes, double nops);
  void ClipToTestDiameter(bool keep_limits, double new_diameter);

 private:
  using Cell = std::vector<int>;

  void put(std::int64_t number, const Site& site);
  void set_scale(double high, double low);
  void BuildSiteCells();
  const Cell* cell(double cx, double cy) const;
  void MaxMin_keeping(bool keep_limits);

  double Nop = 0, NextSite = 1;
  SiteList sites_;
  double GridCell = 0, HalfCells = 0;
  std::vector<std::vector<Cell>> SiteCells;
  bool indexed_ = false;
};

}  // namespace mirolen
