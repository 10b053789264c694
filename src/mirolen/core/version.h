#pragma once

namespace mirolen {

/// The version of the library that the program runs with.
struct Version {
  int major;
  int minor;
  int patch;
};
Version version();

}  // namespace mirolen
