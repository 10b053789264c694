#include "mirolen/core/SiteIndex.h"

#include <gtest/gtest.h>

#include <utility>
#include <vector>

#include "mirolen/core/RunTimeError.h"

namespace mirolen {
namespace {

constexpr double cell = 2;
constexpr std::int16_t half_cells = 3;

SiteIndex index_of(double x, double y) {
  const std::vector<SiteIndex::Position> sites{{0, 0}, {x, y}};
  SiteIndex index;
  index.build(cell, half_cells, sites);
  return index;
}

TEST(SiteIndex, PutsSitesBetweenTwoCellsIntoTheEvenOne) {
  for (const auto& [place, number] :
       {std::pair{-7.0, 0}, {-5.0, 2}, {-3.0, 2}, {3.0, 4}, {5.0, 6}, {7.0, 6}}) {
    const SiteIndex along_x = index_of(place, 0), along_y = index_of(0, place);
    EXPECT_EQ(along_x.cell(number, 3).back(), 1) << place;
    EXPECT_EQ(along_y.cell(3, number).back(), 1) << place;
  }
}

TEST(SiteIndex, RefusesSitesMoreThanHalfACellBeyondItsLastOne) {
  for (const double place : {-7.00000001, 7.00000001, -1e4, 1e4}) {
    EXPECT_THROW(index_of(place, 0), SubscriptOutOfRange) << place;
    EXPECT_THROW(index_of(0, place), SubscriptOutOfRange) << place;
  }
}

TEST(SiteIndex, RefusesCellsWhoseNumberDoesNotFitSixteenBits) {
  for (const double place : {-1e5, 1e5, -1e300, 1e300, 1e308 * 10})
    EXPECT_THROW(index_of(place, 0), OverflowError) << place;
}

TEST(SiteIndex, HasNoCellAfterASiteThatItRefused) {
  SiteIndex index = index_of(1, 1);
  EXPECT_THROW(index.build(cell, half_cells, std::vector<SiteIndex::Position>{{0, 0}, {8, 0}}),
               SubscriptOutOfRange);
  EXPECT_EQ(index.side(), 0);
  EXPECT_EQ(index.GridCell(), 0);
  EXPECT_TRUE(index.sites().empty());
  EXPECT_FALSE(index.contains(index.home(0, 0)));
}

TEST(SiteIndex, TakesFewerSitesAndFewerCellsInTheSameRoom) {
  SiteIndex index;
  index.build(cell, half_cells, std::vector<SiteIndex::Position>{{4, 4}, {0, 0}, {-6, -6}});
  index.build(2 * cell, 1, std::vector<SiteIndex::Position>{{4, -4}});
  EXPECT_EQ(index.side(), 3);
  EXPECT_EQ(index.sites().size(), 1U);
  EXPECT_EQ(index.cell(2, 0).front(), 0);
  EXPECT_TRUE(index.cell(1, 1).empty());
}

TEST(SiteIndex, KeepsTheOrderOfTheSitesOfACell) {
  const std::vector<SiteIndex::Position> sites{{4, 4}, {0, 0}, {4, 4}, {-6, -6}, {0.5, 0}, {4, 4}};
  SiteIndex index;
  index.build(cell, half_cells, sites);
  const std::vector<std::int16_t> expected{3, 1, 4, 0, 2, 5};
  EXPECT_EQ(std::vector(index.sites().begin(), index.sites().end()), expected);
  const auto crowd = index.cell(5, 5);
  EXPECT_EQ(std::vector(crowd.begin(), crowd.end()), (std::vector<std::int16_t>{0, 2, 5}));
  EXPECT_TRUE(index.cell(6, 6).empty());
}

}  // namespace
}  // namespace mirolen
