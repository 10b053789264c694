#pragma once

#include <functional>
#include <map>
#include <string>

namespace mirolen::bench {

/// One piece of work that is measured again and again.
struct Work {
  std::function<void()> run;
  /// What the last run came to, for whoever compares.
  std::function<double()> result = [] { return 0.0; };
};

/// The works of a program by their names; each is prepared when it is asked for first.
using Works = std::map<std::string, std::function<Work()>>;

/// Answers on the standard output what the standard input asks, line by line, until that ends:
///
///     works            the names, in one line
///     NAME MILLISECONDS  "NANOSECONDS RESULT": after a run for the caches the mean of as many runs as fit in
///                      the time, one at least, and the result
///
/// @return the exit status of the program.
int answer_rounds(const Works& works);

}  // namespace mirolen::bench
