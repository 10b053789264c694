#include "failing_heap.h"

#include <cstdlib>
#include <limits>
#include <new>

namespace {

constexpr int never = std::numeric_limits<int>::max();

int asked = 0;
int fails_at = never;
bool fails_behind = false;

bool fails() {
  if (fails_at == never) return false;
  ++asked;
  return asked == fails_at || (fails_behind && asked > fails_at);
}

}  // namespace

// The other forms of `new` and `delete` come down to these, also under a sanitizer, which brings its own.
void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
  return fails() ? nullptr : std::malloc(size == 0 ? 1 : size);
}

void* operator new(std::size_t size) {
  void* const block = operator new(size, std::nothrow);
  if (!block) throw std::bad_alloc();
  return block;
}

void operator delete(void* block) noexcept { std::free(block); }
void operator delete(void* block, std::size_t) noexcept { std::free(block); }

namespace mirolen::heap {

Failing::Failing(int n, bool lasting) : n_(n) {
  asked = 0;
  fails_behind = lasting;
  fails_at = n;
}

Failing::~Failing() { fails_at = never; }

bool Failing::reached() const { return asked >= n_; }

}  // namespace mirolen::heap
