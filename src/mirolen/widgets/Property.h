#pragma once

#include <utility>

namespace mirolen {

/// A value of a widget that reads and writes like a plain member and tells its widget of each change.
template <class Owner, class T>
class Property {
 public:
  Property(Owner& owner, T value) : owner_(owner), value_(std::move(value)) {}
  Property(const Property&) = delete;

  operator const T&() const { return value_; }
  const T& get() const { return value_; }

  Property& operator=(const T& value) {
    if (!(value_ == value)) {
      value_ = value;
      owner_.changed();
    }
    return *this;
  }
  Property& operator=(const Property& other) { return *this = other.value_; }

 private:
  Owner& owner_;
  T value_;
};

}  // namespace mirolen
