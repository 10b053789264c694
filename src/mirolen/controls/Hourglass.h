#pragma once

#include "mirolen/widgets/widgets.h"

namespace mirolen {

/// The hourglass as long as it lives, and the default pointer after it, whatever the host had set.
class Hourglass {
 public:
  explicit Hourglass(UserControl& control) : control_(control) { control_.MousePointer = 11; }
  ~Hourglass() { control_.MousePointer = 0; }  // contract 38
  Hourglass(const Hourglass&) = delete;
  Hourglass& operator=(const Hourglass&) = delete;

 private:
  UserControl& control_;
};

}  // namespace mirolen
