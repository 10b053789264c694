#pragma once

#include <cstddef>

namespace mirolen::heap {

/// The bytes that this program holds from `new`.
std::size_t held();

/// The most bytes that were held at once since it was made, less those held then.
class Peak {
 public:
  Peak();
  std::size_t bytes() const;

 private:
  std::size_t before_;
};

}  // namespace mirolen::heap
