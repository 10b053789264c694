#include "support/Rounds.h"

#include <chrono>
#include <exception>
#include <iomanip>
#include <iostream>
#include <sstream>

namespace mirolen::bench {
namespace {

using Clock = std::chrono::steady_clock;

/// What is measured alone, by name where instructions are counted.
[[gnu::noinline]] double mean_nanoseconds(const Work& work, double milliseconds) {
  const std::chrono::duration<double, std::milli> wanted(milliseconds);
  const Clock::time_point start = Clock::now();
  int runs = 0;
  Clock::duration passed{};
  do {
    work.run();
    ++runs;
    passed = Clock::now() - start;
  } while (passed < wanted);
  return std::chrono::duration<double, std::nano>(passed).count() / runs;
}

void list(const Works& works) {
  for (const auto& [name, prepare] : works) std::cout << name << ' ';
  std::cout << std::endl;
}

}  // namespace

int answer_rounds(const Works& works) {
  std::map<std::string, Work> prepared;
  std::cout << std::setprecision(17);
  for (std::string line; std::getline(std::cin, line);) {
    std::istringstream words(line);
    std::string name;
    double milliseconds = 0;
    words >> name >> milliseconds;
    if (name == "works") {
      list(works);
      continue;
    }
    const auto known = works.find(name);
    if (known == works.end()) {
      std::cerr << "no such work: " << name << '\n';
      return 1;
    }
    try {
      if (!prepared.contains(name)) prepared.emplace(name, known->second());
      const Work& work = prepared.at(name);
      work.run();
      const double taken = mean_nanoseconds(work, milliseconds);
      std::cout << taken << ' ' << work.result() << std::endl;
    } catch (const std::exception& failure) {
      std::cerr << name << ": " << failure.what() << '\n';
      return 1;
    }
  }
  return 0;
}

}  // namespace mirolen::bench
