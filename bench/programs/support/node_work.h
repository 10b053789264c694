#pragma once

#include <memory>
#include <numeric>
#include <utility>
#include <vector>

#include "support/Rounds.h"
#include "support/wafers.h"

namespace mirolen::bench {

/// The work of finding the values at all nodes of a map, row by row; its result is their sum.
/// @param fill_row called with the x, the y and the values of a row. It keeps what it needs.
template <class FillRow>
Work node_work(FillRow fill_row, int cells = map_cells) {
  struct State {
    std::vector<NodeRow> rows;
    std::vector<std::vector<double>> values;
    FillRow fill_row;
    State(FillRow fill, int cells) : rows(node_rows(cells)), fill_row(std::move(fill)) {
      for (const NodeRow& row : rows) values.emplace_back(row.x.size());
    }
  };
  const auto state = std::make_shared<State>(std::move(fill_row), cells);
  return {[state] {
            for (std::size_t at = 0; at < state->rows.size(); ++at)
              state->fill_row(state->rows[at].x, state->rows[at].y, state->values[at]);
          },
          [state] {
            double sum = 0;
            for (const auto& row : state->values) sum = std::accumulate(row.begin(), row.end(), sum);
            return sum;
          }};
}

}  // namespace mirolen::bench
