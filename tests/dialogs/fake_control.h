#pragma once

#include <map>
#include <string>
#include <utility>
#include <vector>

#include "mirolen/automation/ClassInfo.h"

namespace mirolen {

/// An object of a class with properties of the host's choice, which keeps what is written to it and in which
/// order.
class FakeControl {
 public:
  using Variant = automation::Variant;

  explicit FakeControl(std::string class_name);

  /// Adds a property of the type of its value.
  FakeControl& with(const std::string& property, Variant value);

  automation::Object object() { return {&info_, this}; }
  const Variant& operator[](const std::string& property) const { return values_.at(property); }
  /// A value that comes from elsewhere.
  void put(const std::string& property, Variant value) { values_.at(property) = std::move(value); }

  using Writes = std::vector<std::pair<std::string, Variant>>;
  Writes writes;

 private:
  automation::ClassInfo info_;
  std::map<std::string, Variant> values_;
};

// Controls as they are new to their form, with the properties that have pages.
FakeControl fake_of_all(const std::string& class_name);
FakeControl fake_LineScan();
FakeControl fake_Plot2D();
FakeControl fake_Plot2DS();
FakeControl fake_Plot2DC();
FakeControl fake_Plot3D();
FakeControl fake_Plot3DS();
FakeControl fake_Histogram();
/// One of each class that has a page of its own.
std::vector<FakeControl> all_fakes();

}  // namespace mirolen
