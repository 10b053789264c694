#pragma once

namespace mirolen::heap {

/// While it lives, the nth `new` from now on throws std::bad_alloc, and all behind it if that lasts.
class Failing {
 public:
  Failing(int n, bool lasting);
  ~Failing();
  Failing(const Failing&) = delete;
  Failing& operator=(const Failing&) = delete;

  /// Whether as many have been asked for.
  bool reached() const;

 private:
  int n_;
};

}  // namespace mirolen::heap
