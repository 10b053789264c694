#pragma once

#include <memory>
#include <optional>
#include <string>

#include "mirolen/automation/ClassInfo.h"

namespace mirolen::automation {

enum class Mode : std::int32_t { Off = 0, Slow = 1, Fast = 7 };

struct Probe {
  int number = 0;
};

/// A small class with a member of every kind.
struct Gauge {
  double Level = 0;
  std::int16_t Step = 0;
  bool Loud = false;
  std::string Name = "gauge";
  std::uint32_t Paint = 0;
  Mode Speed = Mode::Off;
  std::shared_ptr<Probe> Attached;
  std::string last_call;
};

/// Stored under the keys "Level" (16-bit, 5), "Loud" (boolean, True), "Paint" (32-bit, the present value),
/// "Name" (text, "none") and "Step" (16-bit, 3), in this order.
const ClassInfo& description_of_gauge();

inline Object described(Gauge& gauge) { return {&description_of_gauge(), &gauge}; }

}  // namespace mirolen::automation
