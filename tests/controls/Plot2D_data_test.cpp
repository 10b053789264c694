#include <cmath>
#include <filesystem>
#include <fstream>
#include <random>

#include "control_support.h"

namespace mirolen {
namespace {

using Plot2DData = Plot2DTest;

/// A data file that goes with the test.
class DataFile {
 public:
  explicit DataFile(const std::string& bytes)
      : path_(std::filesystem::temp_directory_path() /
              ("mirolen_controls_" + std::to_string(std::random_device{}()) + ".dat")) {
    std::ofstream(path_, std::ios::binary) << bytes;
  }
  DataFile(const DataFile&) = delete;
  DataFile& operator=(const DataFile&) = delete;
  ~DataFile() {
    std::error_code ignored;
    std::filesystem::remove(path_, ignored);
  }
  std::string name() const { return path_.string(); }

 private:
  std::filesystem::path path_;
};

const std::vector<double> one{1}, two{1, 2}, three{1, 2, 3};

TEST_F(Plot2DData, ComesBackAsItWasLoaded) {
  place();
  EXPECT_EQ(control.load(square_of_sites()), 0);
  Array x, y, z;
  EXPECT_EQ(control.GetWaferData(x, y, z), 25);
  EXPECT_EQ(x, Array(square_of_sites().x));
  EXPECT_EQ(y, Array(square_of_sites().y));
  EXPECT_EQ(z, Array(square_of_sites().z));
}

TEST_F(Plot2DData, ArraysOfTheHostAreResized) {
  place();
  control.SetWaferData(two, two, two);
  Array x(0, 9), y, z(5, 5);
  EXPECT_EQ(control.GetWaferData(x, y, z), 2);
  for (const Array* array : {&x, &y, &z}) {
    EXPECT_EQ(array->LBound(), 1);
    EXPECT_EQ(array->UBound(), 2);
  }
}

TEST_F(Plot2DData, UpperBoundsThatDifferGiveOne) {
  place();
  EXPECT_EQ(control.SetWaferData(two, three, two), 1);
  EXPECT_EQ(control.SetWaferData(two, one, three), 1);
}

TEST_F(Plot2DData, OneOtherUpperBoundMayDiffer) {
  place();
  EXPECT_EQ(control.SetWaferData(three, two, two), 4) << "passes the test and lacks an element";
  EXPECT_EQ(control.SetWaferData(two, two, three), 0);
  EXPECT_EQ(control.SetWaferData(two, three, three), 0);
  EXPECT_EQ(sites_of(control).x.size(), 2u) << "it is x that counts";
}

TEST_F(Plot2DData, LowerBoundsThatDifferGiveTwo) {
  place();
  EXPECT_EQ(control.SetWaferData(Array({1, 2}, 1), Array({1, 2, 3}, 0), Array({1, 2}, 1)), 2);
}

TEST_F(Plot2DData, ALowerBoundOfZeroGivesFourAndLeavesTheStatistics) {
  place();
  control.SetWaferData(three, three, three);
  ASSERT_EQ(control.mean(), 2);
  const Array values({10, 20, 30, 40}, 0);
  EXPECT_EQ(control.SetWaferData(values, values, values), 4);
  EXPECT_EQ(control.mean(), 2);
  EXPECT_EQ(control.Maximum(), 3);
}

TEST_F(Plot2DData, NoSitesGiveFour) {
  place();
  EXPECT_EQ(control.SetWaferData(std::vector<double>{}, std::vector<double>{}, std::vector<double>{}), 4);
  EXPECT_EQ(control.Plot(), 1);
}

TEST_F(Plot2DData, TheLargestNumberOfSitesIsThirtyTwoThousand767) {
  place();
  const std::vector<double> most(32767, 1.5), too_many(32768, 1.5);
  EXPECT_EQ(control.SetWaferData(most, most, most), 0);
  EXPECT_EQ(control.GetWaferData(*std::make_unique<Array>(), *std::make_unique<Array>(),
                                 *std::make_unique<Array>()),
            32767);
  EXPECT_EQ(control.SetWaferData(too_many, too_many, too_many), 4);
  EXPECT_EQ(control.wafobj.GetNop(), 32767) << "refused before the store is touched";
}

TEST_F(Plot2DData, ASiteFarOutsideGivesFour) {
  place();
  SiteColumns sites = square_of_sites();
  sites.x[3] = 5000;
  EXPECT_EQ(control.load(sites), 4);
}

TEST_F(Plot2DData, NumbersThatAreNotFiniteGiveFourAndLeaveTheStore) {
  place();
  control.load(square_of_sites());
  for (const double number : {not_a_number, infinity, -infinity}) {
    for (auto column : {&SiteColumns::x, &SiteColumns::y, &SiteColumns::z}) {
      SiteColumns sites = sites_near_centre();
      (sites.*column)[2] = number;
      EXPECT_EQ(control.load(sites), 4);
      EXPECT_EQ(sites_of(control), square_of_sites());
    }
  }
}

TEST_F(Plot2DData, LoadingWipesTheDrawing) {
  plot_square();
  EXPECT_EQ(control.load(sites_near_centre()), 0);
  EXPECT_TRUE(picture_is_blank());
  EXPECT_FALSE(control.PlotShown);
  EXPECT_FALSE(control.PlotValid);
  EXPECT_FALSE(stretched());
  EXPECT_TRUE(control.PLOTA.Visible);
  EXPECT_EQ(control.RePlot.Picture.get(), nullptr);
}

TEST_F(Plot2DData, LoadingWipesAStretchedDrawing) {
  plot_square();
  control.resize_to(7000, 5000);
  ASSERT_TRUE(stretched());
  control.load(sites_near_centre());
  EXPECT_FALSE(stretched());
  EXPECT_TRUE(control.PLOTA.Visible);
  EXPECT_EQ(control.RePlot.Picture.get(), nullptr);
  EXPECT_TRUE(picture_is_blank());
}

TEST_F(Plot2DData, RefusedBoundsWipeTheDrawingAndKeepTheData) {
  for (const bool lower : {false, true}) {
    plot_square();
    const auto result = lower ? control.SetWaferData(Array({1, 2}, 1), Array({1, 2, 3}, 0), Array({1, 2}, 1))
                              : control.SetWaferData(two, three, two);
    EXPECT_EQ(result, lower ? 2 : 1);
    EXPECT_TRUE(picture_is_blank());
    EXPECT_FALSE(control.PlotShown);
    EXPECT_FALSE(control.PlotValid);
    EXPECT_EQ(sites_of(control), square_of_sites());
  }
}

TEST_F(Plot2DData, AnErrorInLoadingLeavesTheDrawing) {
  plot_square();
  SiteColumns sites = sites_near_centre();
  sites.z[0] = not_a_number;
  EXPECT_EQ(control.load(sites), 4);
  EXPECT_FALSE(picture_is_blank());
  EXPECT_TRUE(control.PlotShown);
  EXPECT_NE(control.RePlot.Picture.get(), nullptr);
}

TEST_F(Plot2DData, AnErrorInLoadingThatLeavesOtherSitesShowsThemWithTheNextPlot) {
  plot_square();
  SiteColumns sites = sites_near_centre();
  sites.x[4] = 1e6;
  for (int more = 0; more < 5; ++more) {
    sites.x.push_back(more);
    sites.y.push_back(1);
    sites.z.push_back(5);
  }
  EXPECT_EQ(control.load(sites), 4);
  ASSERT_EQ(sites_of(control), sites);
  const auto before = control.RePlot.Picture.get();
  control.Plot();
  EXPECT_NE(control.RePlot.Picture.get(), before);
}

TEST_F(Plot2DData, LoadingTellsNoChange) {
  place();
  control.load(square_of_sites());
  EXPECT_TRUE(form.changes.empty());
}

TEST_F(Plot2DData, ComesFromAFile) {
  place();
  const DataFile file(file_bytes(square_of_sites()));
  EXPECT_EQ(control.SetDataFile(file.name(), 25), 0);
  EXPECT_EQ(sites_of(control), square_of_sites());
  EXPECT_EQ(control.Plot(), 0);
}

TEST_F(Plot2DData, AFileWipesTheDrawing) {
  plot_square();
  control.resize_to(7000, 5000);
  const DataFile file(file_bytes(sites_near_centre()));
  EXPECT_EQ(control.SetDataFile(file.name(), 5), 0);
  EXPECT_TRUE(picture_is_blank());
  EXPECT_FALSE(control.PlotShown);
  EXPECT_FALSE(control.PlotValid);
  EXPECT_FALSE(stretched());
  EXPECT_TRUE(control.PLOTA.Visible);
  EXPECT_EQ(control.RePlot.Picture.get(), nullptr);
}

TEST_F(Plot2DData, AMissingFileGivesFourAndWipesTheDrawing) {
  plot_square();
  const std::string nowhere = (std::filesystem::temp_directory_path() / "mirolen_no_such_file.dat").string();
  EXPECT_EQ(control.SetDataFile(nowhere, 5), 4);
  EXPECT_FALSE(std::filesystem::exists(nowhere));
  EXPECT_TRUE(picture_is_blank());
  EXPECT_FALSE(control.PlotShown);
  EXPECT_FALSE(control.PlotValid);
}

TEST_F(Plot2DData, ABadNumberOfSitesInAFileGivesFour) {
  place();
  const DataFile file(file_bytes(square_of_sites()));
  for (const double nops : {-1.0, 32768.0, 1e300, infinity, -infinity, not_a_number})
    EXPECT_EQ(control.SetDataFile(file.name(), nops), 4) << nops;
}

TEST_F(Plot2DData, AShorterFileCountsAsFilledUpWithZeros) {
  place();
  const DataFile file(file_bytes({{1, 2}, {3, 4}, {5, 6}}));
  EXPECT_EQ(control.SetDataFile(file.name(), 4), 0);
  EXPECT_EQ(sites_of(control), (SiteColumns{{1, 2, 3, 4}, {5, 6, 0, 0}, {0, 0, 0, 0}}));
}

TEST_F(Plot2DData, StatisticsAreThoseOfTheDataWhateverTheLimits) {
  place();
  control.SetWaferData(three, three, std::vector<double>{2, 4, 9});
  control.SetPlotLimit(-100, 100);
  EXPECT_EQ(control.mean(), 5);
  EXPECT_EQ(control.Maximum(), 9);
  EXPECT_EQ(control.Minimum(), 2);
  EXPECT_EQ(control.range(), 7);
  EXPECT_DOUBLE_EQ(control.HiLo(), 7.0 / 11 * 100);
  EXPECT_DOUBLE_EQ(control.StdDev(), std::sqrt((9.0 + 1 + 16) / 2));
  EXPECT_DOUBLE_EQ(control.StdDevPercent(), std::sqrt(13.0) / 5 * 100);
}

TEST_F(Plot2DData, SpreadsInPercentAreZeroWhereTheyHaveNoMeaning) {
  place();
  control.SetWaferData(three, three, std::vector<double>{-4, 0, 4});
  EXPECT_EQ(control.HiLo(), 0);
  EXPECT_EQ(control.StdDevPercent(), 0);
  control.SetWaferData(three, three, std::vector<double>{-4, -3, -2});
  EXPECT_EQ(control.StdDevPercent(), 0);
  EXPECT_DOUBLE_EQ(control.HiLo(), 2.0 / 6 * 100);
}

TEST_F(Plot2DData, InterpolatesAsItsWafer) {
  place();
  control.load(square_of_sites());
  EXPECT_EQ(control.Interpolation(-60, -60), 0);
  EXPECT_EQ(control.Interpolation(60, 60), 100);
  EXPECT_EQ(control.Interpolation(7, 11), control.wafobj.Interpolation(7, 11));
  control.SetWaferData(three, three, three);
  EXPECT_EQ(control.Interpolation(1, 1), 0) << "fewer than four sites";
}

}  // namespace
}  // namespace mirolen
