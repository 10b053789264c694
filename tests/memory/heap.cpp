#include "heap.h"

#include <algorithm>
#include <cstdlib>
#include <new>

namespace {

std::size_t held_now = 0;
std::size_t most_held = 0;

/// What lies before each block, as long as the strictest alignment.
union Header {
  std::size_t size;
  std::max_align_t aligned;
};

}  // namespace

// The other forms of `new` and `delete` come down to these two.
void* operator new(std::size_t size) {
  auto* header = static_cast<Header*>(std::malloc(sizeof(Header) + size));
  if (!header) throw std::bad_alloc();
  header->size = size;
  held_now += size;
  most_held = std::max(most_held, held_now);
  return header + 1;
}

void operator delete(void* block) noexcept {
  if (!block) return;
  Header* header = static_cast<Header*>(block) - 1;
  held_now -= header->size;
  std::free(header);
}

void operator delete(void* block, std::size_t) noexcept { operator delete(block); }

namespace mirolen::heap {

std::size_t held() { return held_now; }

Peak::Peak() : before_(held_now) { most_held = held_now; }

std::size_t Peak::bytes() const { return most_held - before_; }

}  // namespace mirolen::heap
