#pragma once

#include <array>
#include <memory>

#include "mirolen/core/RunTimeError.h"
#include "mirolen/widgets/Widget.h"

namespace mirolen {

/// Widgets of one kind under one name, numbered from first.
template <class Kind, int first, std::size_t count>
class ControlArray {
 public:
  explicit ControlArray(Widget* container) {
    for (auto& widget : widgets_) widget = std::make_unique<Kind>(container);
  }

  static constexpr int LBound() { return first; }
  static constexpr int UBound() { return first + static_cast<int>(count) - 1; }

  /// @throws SubscriptOutOfRange.
  Kind& operator()(int index) const {
    if (index < LBound() || index > UBound()) throw SubscriptOutOfRange();
    return *widgets_[static_cast<std::size_t>(index - first)];
  }

  /// All of them as what they are to a renderer.
  template <class Role>
  std::array<Role*, count> as() const {
    std::array<Role*, count> roles;
    for (std::size_t i = 0; i < count; ++i) roles[i] = widgets_[i].get();
    return roles;
  }

 private:
  std::array<std::unique_ptr<Kind>, count> widgets_;
};

}  // namespace mirolen
