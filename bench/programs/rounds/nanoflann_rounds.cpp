// Answers the rounds of nanoflann: the same inverse-square mean, of the four nearest sites that its tree
// finds.

#include <cstdint>
#include <nanoflann.hpp>

#include "support/node_work.h"

namespace mirolen::bench {
namespace {

/// Sites as the tree reads them.
struct Cloud {
  Sites sites;

  std::size_t kdtree_get_point_count() const { return sites.x.size(); }
  double kdtree_get_pt(std::size_t site, std::size_t axis) const {
    return axis == 0 ? sites.x[site] : sites.y[site];
  }
  template <class Box>
  bool kdtree_get_bbox(Box&) const {
    return false;
  }
};

class TreeMean {
 public:
  explicit TreeMean(const std::string& sites) : cloud_{sites_named(sites)} {}

  double operator()(double x, double y) const {
    constexpr double on_a_site = 0.0001 * 0.0001;
    const double place[] = {x, y};
    std::uint32_t site[4];
    double square[4];
    tree_.knnSearch(place, 4, site, square);
    if (square[0] < on_a_site) return cloud_.sites.z[site[0]];
    double weighted = 0, weights = 0;
    for (int slot = 0; slot < 4; ++slot) {
      weighted += cloud_.sites.z[site[slot]] / square[slot];
      weights += 1 / square[slot];
    }
    return weighted / weights;
  }
  void build() { tree_.buildIndex(); }

 private:
  using Distance = nanoflann::L2_Simple_Adaptor<double, Cloud>;
  using Tree = nanoflann::KDTreeSingleIndexAdaptor<Distance, Cloud, 2>;

  static constexpr std::size_t leaf_size = 10;  // of 4 to 32 among the fastest for each of the wafers

  Cloud cloud_;
  Tree tree_{2, cloud_, nanoflann::KDTreeSingleIndexAdaptorParams(leaf_size)};
};

int answer() {
  Works works;
  for (const std::string sites : {"49", "1000", "32767", "dies"}) {
    works["row/" + sites] = [=] {
      return node_work([mean = std::make_shared<TreeMean>(sites)](const auto& x, const auto& y, auto& z) {
        for (std::size_t i = 0; i < x.size(); ++i) z[i] = (*mean)(x[i], y[i]);
      });
    };
  }
  works["build/32767"] = [] { return Work{[mean = std::make_shared<TreeMean>("32767")] { mean->build(); }}; };
  return answer_rounds(works);
}

}  // namespace
}  // namespace mirolen::bench

int main() { return mirolen::bench::answer(); }
