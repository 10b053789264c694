#pragma once

#include <algorithm>
#include <cstdlib>

namespace mirolen::host_test {

/// How often to do what goes wrong only now and then: MIROLEN_EFFORT times as often where that is set.
inline int repeats(int usual) {
  const char* const effort = std::getenv("MIROLEN_EFFORT");
  return effort ? usual * std::max(1, std::atoi(effort)) : usual;
}

}  // namespace mirolen::host_test
